; Thumb-2 extends, reversals, multiplies and divides.
; RUN: %s %o -v7M4
        .thumb
        sxtab   r0, pc, r1              ;! E0004 Operand Rn cannot be R15
        sxtb.w  pc, r1                  ;! E0004 Specifying R15 as an operand is illegal
        uxth.w  r0, pc                  ;! E0004 Specifying R15 as an operand is illegal
        sxtb.w  r0, r1, ror #4          ;! E0004 Illegal rotate value. Must be 0, 8, 16 or 24
        sxtb.w  r0, r1, lsl #8          ;! E0004 Illegal shift type. Must be ROR
        uxtah   r0, r1, #2              ;! E0004 Operand Rm must be a register
        rev.w   r0, pc                  ;! E0004 Specifying R15 as an operand is illegal
        rbit    pc, r1                  ;! E0004 Specifying R15 as an operand is illegal
        mul.w   r0, r1, pc              ;! E0004 Specifying R15 as an operand is illegal
        mla     r0, r1, r2, #3          ;! E0004 Operand Racc must be a register
        smlabb  r0, pc, r2, pc          ;! E0004 Specifying R15 as an operand is illegal
        sdiv    sp, r1, r2              ;! W0000 Using Rd == SP or PC will lead to unpredictable results
        udiv    pc, r1, r2              ;! W0000 Using Rd == SP or PC will lead to unpredictable results
        sdiv    r0, r1, pc              ;! E0004 Specifying R15 as an operand is illegal
        ssat    r0, #8, r1, asr #32     ;! E0004 Shift amount exceeds its maximum value
