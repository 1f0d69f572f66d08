; The exclusives and the coprocessor classes in the Thumb-2 slot: the word
; forms of the exclusives take an offset in words, the coprocessor fields
; lie as in ARM state, and a label is addressed from the aligned pc + 4.
; RUN: %s %o -v7A8
        .text
        .thumb
        LDREX   R0, [R1]
        LDREX   R0, [R1, #1020]
        LDREXB  R2, [R3]
        LDREXH  R4, [R5]
        LDREXD  R6, R7, [R8]
        STREX   R0, R1, [R2]
        STREX   R0, R1, [R2, #8]
        STREXB  R3, R4, [R5]
        STREXH  R6, R7, [R8]
        STREXD  R0, R2, R3, [R4]
        CDP     P1, #2, C3, C4, C5, #6
        MRC     P15, #0, R0, C1, C0, #0
        MCRR    P6, #15, R3, R4, C9
        LDC     P1, C2, [R3, #-1020]
        STCL    P1, C2, [R3], #4
        LDC2L   P1, C2, [R3, #-4]!
back:   .word   0
        LDC     P1, C2, back
        STC     P1, C2, fwd
        .word   0
fwd:    .word   0
; SECTION: .text: 51 e8 00 0f 51 e8 ff 0f d3 e8 4f 2f d5 e8 5f 4f d8 e8 7f 67 42 e8 00 10 42 e8 02 10 c5 e8 43 4f c8 e8 56 7f c4 e8 70 23 24 ee c5 31 11 ee 10 0f 44 ec f9 36 13 ed ff 21 e3 ec 01 21 73 fd 01 21 00 00 00 00 1f ed 02 21 8f ed 01 21 00 00 00 00 00 00 00 00
