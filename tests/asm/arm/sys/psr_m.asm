; MRS and MSR on Cortex-M, in Thumb-2: the system registers by number, APSR
; as the one PSR, and the mask of MSR.
; RUN: %s %o -v7M3 -mt
        .text
        mrs     r0, apsr                ; F3EF8000
        mrs     r1, iapsr               ; F3EF8101
        mrs     r2, xpsr                ; F3EF8203
        mrs     r3, ipsr                ; F3EF8305
        mrs     r4, msp                 ; F3EF8408
        mrs     r5, psp                 ; F3EF8509
        mrs     r6, primask             ; F3EF8610
        mrs     r7, basepri             ; F3EF8711
        mrs     r8, basepri_max         ; F3EF8812
        mrs     r9, faultmask           ; F3EF8913
        mrs     r10, control            ; F3EF8A14
        msr     apsr, r0                ; F3808800
        msr     apsr_nzcvq, r1          ; F3818800
        msr     msp, r2                 ; F3828808
        msr     basepri_max, r3         ; F3838812
        msr     control, r4             ; F3848814
        mrs     pc, ipsr                ; F3EF8F05 ;! W0000 R15 should not be used as a destination operand
        msr     psp, pc                 ; F38F8809 ;! W0000 R15 should not be used as an operand
; SECTION: .text: ef f3 00 80 ef f3 01 81 ef f3 03 82 ef f3 05 83 ef f3 08 84 ef f3 09 85 ef f3 10 86 ef f3 11 87 ef f3 12 88 ef f3 13 89 ef f3 14 8a 80 f3 00 88 81 f3 00 88 82 f3 08 88 83 f3 12 88 84 f3 14 88 ef f3 05 8f 8f f3 09 88
