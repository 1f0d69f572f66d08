; On Cortex-M3 the Thumb-2 extends other than SXTB, SXTH, UXTB, UXTH, the
; halfword and DSP multiplies, the saturating and parallel arithmetic are
; refused; MUL, MLA, MLS, the long multiplies, the divides and SSAT are not.
; RUN: %s %o -v7M3
        .thumb
        sxtab   r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        uxtb16  r0, r1                  ;! E0002 Illegal Cortex-M3 instruction/directive
        smulbb  r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        smlatt  r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        smulwb  r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        smlawt  r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        smlalbb r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        qadd    r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        smlad   r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        umaal   r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        usad8   r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        subs    pc, lr, #4              ;! E0002 Illegal Cortex-M instruction/directive
        mov.w   pc, lr                  ;! E0002 Illegal Cortex-M instruction/directive
        sxtb.w  r0, r1
        uxth.w  r0, r1, ror #8
        mul.w   r0, r1, r2
        mla     r0, r1, r2, r3
        mls     r0, r1, r2, r3
        umull   r0, r1, r2, r3
        sdiv    r0, r1, r2
        ssat    r0, #8, r1
