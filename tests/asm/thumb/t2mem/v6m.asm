; v6-M has of the 32-bit Thumb-2 words only the barriers and the status
; register moves; the others are refused, those of v7 twice.
; RUN: %s %o -v6M0
        .text
        .thumb
        DMB
        DSB
        ISB
        MRS     R0, PRIMASK
        MSR     CONTROL, R1
        MSR     BASEPRI, R0             ;! E0004 Invalid Operand, Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX
        MRS     R0, FAULTMASK           ;! E0004 Invalid Operand, Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX
        LDREX   R0, [R1]                ;! E0002 Unsupported Thumb-2 instruction for v6M0
        MRC     P15, #0, R0, C1, C0, #0 ;! E0002 Unsupported Thumb-2 instruction for v6M0
        TBB     [R0, R1]                ;! E0002 Unsupported Thumb-2 instruction for v6M0 ;! E0002 Instruction only available in V7 and higher
        PLD     [R0]                    ;! E0002 Unsupported Thumb-2 instruction for v6M0 ;! E0002 Instruction only available in V7 and higher
        CLREX                           ;! E0002 Unsupported Thumb-2 instruction for v6M0 ;! E0002 Instruction only available in V7 and higher
