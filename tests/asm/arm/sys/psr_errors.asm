; What MRS and MSR refuse in ARM state, and in Thumb-2 on an A-profile part.
; RUN: %s %o -v7A8
        .text
        mrs     r0, cpsr_c              ;! E0004 Invalid Operand, cannot use processor status register flags
        mrs     r0, apsr_g              ;! E0004 Invalid Operand, cannot use processor status register flags
        mrs     r0, r1                  ;! E0004 Illegal operand.
        msr     r1, r0                  ;! E0004 Illegal operand.
        mrs     r0, primask             ;! E0004 Status register unsupported by this architecture.
        msr     control, r0             ;! E0004 Status register unsupported by this architecture.
        msr     cpsr, #1                ;! W0000 Deprecated use of PSR; flag bits not specified, "cf" assumed ;! E0004 Immediate value can be transferred to PSR flag bits only
        msr     cpsr_f, #0x101          ;! E0004 Immediate not representable as a rotated 8 bit immediate
        msr     apsr_nz, r0             ;! E0004 Illegal APSR field bit mask
        msr     apsr_nzcv, r0           ;! E0004 Illegal APSR field bit mask
        mrs     #1, cpsr                ;! E0004 Destination operand Rd must be a register
        msr     cpsr_c, {r0}            ;! E0004 Illegal operand

; Thumb-2 has no immediate form, and a PSR needs its fields there.
        .thumb
        msr     cpsr, r0                ;! E0004 Deprecated use of PSR; flag bits not specified
        msr     cpsr_f, #0x10000000     ;! E0004 MSR immediate is only available in ARM mode
