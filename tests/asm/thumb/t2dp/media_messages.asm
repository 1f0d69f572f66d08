; The media, saturation, bit-field and DSP classes shared with ARM state give
; their messages in Thumb-2 too; an R15 accumulator, which Thumb-2 reads as the
; form without one, is refused.
; RUN: %s %o -v7A8
        .thumb
        smlad   r0, r1, r2, pc          ;! E0004 Operand Racc cannot be R15
        usada8  r0, r1, r2, pc          ;! E0004 Operand Racc cannot be R15
        smlawb  r0, r1, r2, pc          ;! E0004 R15 is an invalid operand
        add16   r0, r1, r2              ;! E0002 Parallel add/subtract instructions must have a prefix
        bfi     r0, r1, #31, #2         ;! E0004 LSB + width cannot be greater than 32
        bfc     r0, #0, #33             ;! E0004 Width must be in the range of 1 to 32
        ubfx    r0, r1, #32, #1         ;! E0004 LSB must be in the range of 0 to 31
        bfi     r0, r1, r2, #1          ;! E0004 The lsb operand must be immediate
        ssat    r0, #33, r1             ;! E0004 Illegal operand for immediate. Should lie between 1 and 32
        usat    r0, #32, r1             ;! E0004 Illegal operand for immediate. Should lie between  0 and 31
        ssat16  r0, #17, r1             ;! E0004 Illegal operand for immediate. Should lie between 1 and 16
        usat16  r0, #16, r1             ;! E0004 Illegal operand for immediate. Should lie between 0 and 15
        ssat    r0, #1, r1, ror #2      ;! E0004 Illegal shift type. Must be ASR or LSL
        ssat    r0, r2, r1              ;! E0004 The second operand must be immediate
        pkhbt   r0, r1, r2, asr #3      ;! E0004 Illegal shift type. Must be LSL
        pkhtb   r0, r1, r2, lsl #3      ;! E0004 Illegal shift type. Must be ASR
        pkhbt   r0, r1, #2              ;! E0004 Illegal operand
        clz     r0, pc                  ;! E0004 R15 is an invalid operand
        qadd    r0, r1, pc              ;! E0004 R15 is an invalid operand
        umull   r0, r1, r2, #3          ;! E0004 Operand Rm must be a register
        umull   r0, r0, r1, r2          ;! W0000 Destination register operands RdLo and RdHi should not be the same
        umaal   r0, r1, pc, r2          ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
        sel     r0, r1, pc              ;! W0000 Specifying R15 as one of the operands will lead to unpredictable results
