; A label in the same section is addressed from the pc + 8, backwards and
; forwards, with no relocation; stores and the halfword forms too. An
; immediate operand is the offset itself.
; RUN: %s %o -v7A8
        .text
back:   .word   0x11223344
        LDR     R0, back
        LDRB    R1, fwd
        STR     R2, back
        LDRH    R3, fwd
        LDRSB   R4, back
        LDRD    R6, R7, fwd
        PLD     back
        PLD     fwd
        PLI     fwd
        LDR     R0, #-8
        LDRH    R0, #255
fwd:    .word   0
; SECTION: .text: 44 33 22 11 0c 00 1f e5 20 10 df e5 14 20 0f e5 b8 31 df e1 dc 41 5f e1 d0 61 cf e1 24 f0 5f f5 08 f0 df f5 04 f0 df f4 08 00 1f e5 bf 0f df e1 00 00 00 00
