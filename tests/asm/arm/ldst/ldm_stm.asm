; Multiple transfers: every addressing mode and its stack name, write-back,
; '^', PUSH and POP, conditions in both orders; and the swaps.
; RUN: %s %o -v5e
        .text
        LDM     R0, {R1, R2}
        LDMIA   R0!, {R1-R3}
        LDMIB   R0, {R1}
        LDMDA   R0, {R1}
        LDMDB   R0!, {R1, PC}
        LDMFD   SP!, {R4-R11, PC}
        LDMFA   R0, {R1}
        LDMEA   R0, {R1}
        LDMED   R0, {R1}
        STM     R0, {R1, R2}
        STMIA   R0!, {R1}
        STMIB   R0, {R1}
        STMDA   R0, {R1}
        STMDB   SP!, {R4, LR}
        STMFD   SP!, {R4, LR}
        STMFA   R0, {R1}
        STMEA   R0, {R1}
        STMED   R0, {R1}
        LDM     R0, {R1, PC}^
        LDM     R0!, {R1, PC}^
        STM     R0, {R1, R2}^
        LDM     R0, {R1, R2}^
        PUSH    {R0, R1}
        POP     {R0, PC}
        LDMEQ   R0, {R1}
        STMIANE R0, {R0, R1}
        STMNEIA R0, {R0, R1}
        SWP     R0, R1, [R2]
        SWPB    R0, R1, [R2]
        SWPEQ   R3, R3, [R4]
        SWPEQB  R3, R3, [R4]
; SECTION: .text: 06 00 90 e8 0e 00 b0 e8 02 00 90 e9 02 00 10 e8 02 80 30 e9 f0 8f bd e8 02 00 10 e8 02 00 10 e9 02 00 90 e9 06 00 80 e8 02 00 a0 e8 02 00 80 e9 02 00 00 e8 10 40 2d e9 10 40 2d e9 02 00 80 e9 02 00 80 e8 02 00 00 e8 02 80 d0 e8 02 80 f0 e8 06 00 c0 e8 06 00 d0 e8 03 00 2d e9 01 80 bd e8 02 00 90 08 03 00 80 18 03 00 80 18 91 00 02 e1 91 00 42 e1 93 30 04 01 93 30 44 01
