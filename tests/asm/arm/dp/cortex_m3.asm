; In ARM state on Cortex-M3 the multiplies of ARM state and the DSP and v6
; media multiplies are refused; SMULxy, CLZ and bit fields are not.
; RUN: %s %o -v7M3
        .text
        qadd    r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        smlabb  r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        smlalbb r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        sel     r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        smlad   r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        umaal   r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        usad8   r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        mul     r0, r1, r2              ;! E0002 Illegal Cortex-M3 instruction/directive
        umull   r0, r1, r2, r3          ;! E0002 Illegal Cortex-M3 instruction/directive
        smulbb  r0, r1, r2
        clz     r0, r1
        bfi     r0, r1, #0, #1
