; Multiplies below v5E: a destination equal to Rm is warned about, and the
; v5 and v7 forms are refused.
; RUN: %s %o -v4
        .text
        mul     r0, r0, r1              ;! W0000 Destination register operand Rd should not be the same as operand Rm
        mla     r2, r2, r3, r4          ;! W0000 Destination register operand Rd should not be the same as operand Rm
        mul     r0, r1, r0
        umull   r0, r1, r0, r2          ;! W0000 Destination register operand Rdlo should not be the same as operand Rm
        smull   r0, r1, r1, r2          ;! W0000 Destination register operand Rdhi should not be the same as operand Rm
        umlal   r3, r3, r4, r5          ;! W0000 Destination register operands RdLo and RdHi should not be the same
        smlabb  r0, r1, r2, r3          ;! E0002 Instruction is only available in V5 and higher
        qadd    r0, r1, r2              ;! E0002 Instruction is only available in V5 and higher
        smulbb  r0, r0, r2              ;! E0002 Instruction is only available in V5 and higher ;! W0000 Destination register operand Rd should not be the same as operand Rm
        smlalbb r0, r1, r2, r3          ;! E0002 Instruction is only available in V5 and higher
        mls     r0, r1, r2, r3          ;! E0002 Instruction only available in V7 and higher
        clz     r0, r1                  ;! E0002 Instruction is only available in V5 and higher
