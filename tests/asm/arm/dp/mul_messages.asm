; Operand messages of the multiplies, saturating arithmetic and CLZ.
; RUN: %s %o -v7A8
        .text
        mul     pc, r1, r2              ;! E0004 R15 is an invalid operand
        mla     r0, r1, r2, pc          ;! E0004 R15 is an invalid operand
        umull   r0, r1, r2, r15         ;! E0004 R15 is an invalid operand
        qadd    r0, pc, r1              ;! E0004 R15 is an invalid operand
        smulbb  pc, r1, r2              ;! E0004 R15 is an invalid operand
        clz     r0, pc                  ;! E0004 R15 is an invalid operand
        mul     r0, r0, r1
        umull   r0, r0, r1, r2          ;! W0000 Destination register operands RdLo and RdHi should not be the same
        mul     r0, r1, #2              ;! E0004 Operand Rs must be a register
        mla     #0, r1, r2, r3          ;! E0004 Destination operand Rd must be a register
        umull   r0, #1, r2, r3          ;! E0004 Destination operand RdHi must be a register
        umull   #0, r1, r2, r3          ;! E0004 Destination operand RdLo must be a register
        qadd    r0, r1, #1              ;! E0004 Operand Rn must be a register
        smlabb  r0, r1, r2, #3          ;! E0004 Operand Rn must be a register
        clz     #0, r1                  ;! E0004 Destination operand Rd must be a register
        clz     r0, #1                  ;! E0004 Operand Rm must be a register
