; v6-M reads and writes the system registers, but has no FAULTMASK or BASEPRI.
; RUN: %s %o -v6M0 -mt
        .text
        mrs     r0, primask             ; F3EF8010
        msr     control, r1             ; F3818814
        mrs     r0, faultmask           ;! E0004 Invalid Operand, Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX
        msr     basepri, r0             ;! E0004 Invalid Operand, Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX
        msr     basepri_max, r0         ;! E0004 Invalid Operand, Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX
