; Coprocessor operations, register transfers and loads/stores, with their
; "2" forms (no condition) and a label addressed from the pc + 8.
; RUN: %s %o -v7A8
        .text
        CDP     P1, #2, C3, C4, C5, #6
        CDP     P15, #15, C15, C15, C15
        CDP2    P1, #2, C3, C4, C5, #7
        MRC     P15, #0, R0, C1, C0, #0
        MRC     P14, #7, R1, C2, C3, #4
        MCR     P15, #1, R2, C7, C10, #5
        MCR2    P2, #3, R4, C5, C6
        MRC2    P3, #1, R4, C5, C6, #2
        MRRC    P5, #3, R1, R2, C4
        MCRR    P6, #15, R3, R4, C9
        MRRC2   P5, #3, R1, R2, C4
        MCRR2   P6, #1, R3, R4, C9
        LDC     P1, C2, [R3]
        LDC     P1, C2, [R3, #4]
        LDC     P1, C2, [R3, #-1020]
        LDC     P1, C2, [R3, #8]!
        LDC     P1, C2, [R3], #-8
        LDC     P1, C2, [R3], {5}
        LDCL    P1, C2, [R3]
        STC     P1, C2, [R3, #4]
        STCL    P1, C2, [R3], #4
        LDC2    P1, C2, [R3]
        LDC2L   P1, C2, [R3, #-4]!
        STC2    P1, C2, [R3], #12
        STC2L   P1, C2, [R3]
        LDCEQ   P1, C2, [R3]
        CDPNE   P1, #2, C3, C4, C5, #6
        MRCGT   P15, #0, R0, C1, C0, #0
back:   .word   0
        LDC     P1, C2, back
        STC     P1, C2, fwd
fwd:    .word   0
; SECTION: .text: c5 31 24 ee 0f ff ff ee e5 31 24 fe 10 0f 11 ee 93 1e f2 ee ba 2f 27 ee 16 42 65 fe 56 43 35 fe 34 15 52 ec f9 36 44 ec 34 15 52 fc 19 36 44 fc 00 21 93 ed 01 21 93 ed ff 21 13 ed 02 21 b3 ed 02 21 33 ec 05 21 93 ec 00 21 d3 ed 01 21 83 ed 01 21 e3 ec 00 21 93 fd 01 21 73 fd 03 21 a3 fc 00 21 c3 fd 00 21 93 0d c5 31 24 1e 10 0f 11 ce 00 00 00 00 03 21 1f ed 01 21 0f ed 00 00 00 00
