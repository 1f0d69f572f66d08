; Labels are reached from the pc + 4 rounded down to a word, also from a
; halfword-aligned statement.
; RUN: %s %o -v7A8
        .text
        .thumb
back    .half   0
        LDR.W   R0, back                ; f85f 0004
        LDR.W   R1, fwd                 ; f8df 1014
        LDRD    R2, R3, back            ; e95f 2303
        PLD     fwd                     ; f89f f00c
        PLI     back                    ; f91f f014
        .half   0
        LDRSB.W R4, fwd                 ; f99f 4000
fwd     .word   0
; SECTION: .text: 00 00 5f f8 04 00 df f8 14 10 5f e9 03 23 9f f8 0c f0 1f f9 14 f0 00 00 9f f9 00 40 00 00 00 00
