; MRS and MSR of an A-profile part in Thumb-2: SPSR is bit 20, fields at 8,
; with the field letters of ARM state.
; RUN: %s %o -v7A8 -mt
        .text
        mrs     r3, spsr                ; F3FF8300
        mrs     r4, cpsr                ; F3EF8400
        msr     spsr_fc, r4             ; F3948900
        msr     cpsr_c, r5              ; F3858100
        msr     apsr_g, r6              ; F3868400
; SECTION: .text: ff f3 00 83 ef f3 00 84 94 f3 00 89 85 f3 00 81 86 f3 00 84
