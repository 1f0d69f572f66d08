; What MRS and MSR refuse on Cortex-M: PSRs other than APSR, the immediate
; form, and field masks that no MSR writes.
; RUN: %s %o -v7M3 -mt
        .text
        mrs     r0, cpsr                ;! E0004 Status register unsupported by this architecture.
        msr     spsr_c, r0              ;! E0004 Status register unsupported by this architecture.
        msr     apsr_nzcvq, #0          ;! E0004 MSR immediate is only available in ARM mode
        msr     apsr_z, r0              ;! E0004 Illegal APSR field bit mask

