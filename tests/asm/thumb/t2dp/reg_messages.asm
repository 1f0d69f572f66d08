; Thumb-2 data processing with register operands: PC, SP in moves, the
; shifted operand and the shifts by a register.
; RUN: %s %o -v7A8
        .thumb
        add.w   r0, r1, r2, lsl r3      ;! E0004 Invalid operand
        add.w   r0, r1, pc              ;! E0004 Specifying R15 as an operand is illegal
        add.w   pc, r1, r2              ;! E0004 Specifying R15 as an operand is illegal
        cmp.w   pc, r2                  ;! E0004 Specifying R15 as an operand is illegal
        mvn.w   r0, pc, lsl #2          ;! E0004 Specifying R15 as an operand is illegal
        eor.w   r0, r1, r2, ror #32     ;! E0004 Rotate count must lie between 1 and 31
        lsl.w   r0, r1, #32             ;! E0004 Shift amount exceeds its maximum value
        mov.w   r0, sp, lsl #2          ;! E0004 Specifying R13(SP) as an operand is illegal in a MOV with register shift
        mov.w   sp, r1, asr #2          ;! E0004 Specifying R13(SP) as an operand is illegal in a MOV with register shift
        movs.w  sp, r1                  ;! E0004 Condition code setting disallowed in a move with R13(SP) as one of the operands
        movs.w  r1, sp                  ;! E0004 Condition code setting disallowed in a move with R13(SP) as one of the operands
        lsl.w   r0, pc, r1              ;! E0004 Specifying R15 as an operand is illegal
        asrs.w  pc, r0, r1              ;! E0004 Specifying R15 as an operand is illegal
        ror.w   r0, r1, pc              ;! E0004 Specifying R15 as an operand is illegal
