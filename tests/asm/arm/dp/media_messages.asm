; Operand messages of bit fields, REV, parallel arithmetic, saturation, SEL,
; extends, the v6 multiplies and the packs.
; RUN: %s %o -v7A8
        .text
        bfi     r0, r1, r2, #8          ;! E0004 The lsb operand must be immediate
        bfi     r0, r1, #2, r3          ;! E0004 The width operand must be immediate
        bfc     r0, #0, #33             ;! E0004 Width must be in the range of 1 to 32
        ubfx    r0, r1, #0, #0          ;! E0004 Width must be in the range of 1 to 32
        sbfx    r0, r1, #32, #1         ;! E0004 LSB must be in the range of 0 to 31
        bfi     r0, r1, #16, #17        ;! E0004 LSB + width cannot be greater than 32
        bfi     r0, #1, #2, #3          ;! E0004 Invalid operand combination.
        bfi     pc, r1, #0, #1          ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
        rev     r0, pc                  ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
        sel     pc, r1, r2              ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
        add16   r0, r1, r2              ;! E0002 Parallel add/subtract instructions must have a prefix
        ssat    r0, r1, r2              ;! E0004 The second operand must be immediate
        ssat    r0, #0, r1              ;! E0004 Illegal operand for immediate. Should lie between 1 and 32
        ssat    r0, #33, r1             ;! E0004 Illegal operand for immediate. Should lie between 1 and 32
        usat    r0, #32, r1             ;! E0004 Illegal operand for immediate. Should lie between  0 and 31
        ssat16  r0, #17, r1             ;! E0004 Illegal operand for immediate. Should lie between 1 and 16
        usat16  r0, #16, r1             ;! E0004 Illegal operand for immediate. Should lie between 0 and 15
        ssat    r0, #8, r1, ror #4      ;! E0004 Illegal shift type. Must be ASR or LSL
        usat    r0, #8, r1, lsr #4      ;! E0004 Illegal shift type. Must be ASR or LSL
        usat    r0, #8, r1, asr #33     ;! E0004 Shift value must lie between 1 and 32
        sxtab   r0, pc, r1              ;! E0004 Operand Rn cannot be R15
        sxtb    r0, r1, lsl #8          ;! E0004 Illegal shift type. Must be ROR
        sxtb    r0, r1, ror #4          ;! E0004 Illegal rotate value. Must be 0, 8, 16 or 24
        smlad   r0, r1, r2, pc          ;! E0004 Operand Rn cannot be R15
        umaal   pc, r1, r2, r3          ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
        umaal   r0, r1, pc, pc          ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
        smlald  #0, r1, r2, r3          ;! E0004 Destination operand Rdlo must be a register
        smlald  r0, #1, r2, r3          ;! E0004 Destination operand Rdhi must be a register
        pkhbt   r0, r1, r2, asr #3      ;! E0004 Illegal shift type. Must be LSL
        pkhtb   r0, r1, r2, lsl #3      ;! E0004 Illegal shift type. Must be ASR
        pkhbt   r0, r1, #3              ;! E0004 Illegal operand
