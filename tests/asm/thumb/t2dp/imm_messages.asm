; Thumb-2 data processing with an immediate: the modified-constant check, the
; twelve-bit forms, MOV's sixteen-bit fallback and the exception return.
; RUN: %s %o -v7A8
        .thumb
lab:
        adds    r0, r1, #0x101          ;! E0004 Illegal constant, does not conform to modify_constant() format
        and     r0, r1, #0x1FF          ;! E0004 Illegal constant, does not conform to modify_constant() format
        cmp.w   r0, #0x12345678         ;! E0004 Illegal constant, does not conform to modify_constant() format
        add     r0, r1, #0x1001         ;! E0004 Immediate cannot be greater than 12-bits
        sub     r0, r1, #-2             ;! E0004 Immediate cannot be greater than 12-bits
        addw    r0, r1, #0x1000         ;! E0004 Immediate cannot be greater than 12-bits
        subw    r0, r1, #-1             ;! E0004 Immediate cannot be greater than 12-bits
        addw    r0, r1, lab             ;! E0004 Expression must evaluate to an absolute constant
        addw    r0, r1, r2              ;! E0004 The third operand must be immediate or symbol
        addw    pc, r1, #1              ;! E0004 Specifying R15 as an operand is illegal
        orr.w   pc, r1, #1              ;! E0004 Specifying R15 as an operand is illegal
        orr.w   r0, pc, #1              ;! E0004 Specifying R15 as an operand is illegal
        cmp.w   pc, #1                  ;! E0004 Specifying R15 as an operand is illegal
        mov.w   pc, #1                  ;! E0004 Specifying R15 as an operand is illegal
        movs    r0, #0x1234             ;! E0004 Invalid Immediate operand
        mov     r0, #0x12345            ;! E0004 Invalid Immediate operand
        mvn     r0, #0x1234             ;! E0004 Invalid Immediate operand
        subs    pc, lr, #256            ;! E0004 Immediate cannot be greater than 8-bits
        movw    r0, #0x10000            ;! E0004 Immediate cannot be greater than 16-bits
        movt    pc, #1                  ;! E0004 Specifying R15 as an operand is illegal
        movw    r0, r1                  ;! E0004 The second operand must be an immediate value or symbol
; These pass: PC as the source of ADDW and SUBW, the exception return.
        addw    r0, pc, #1
        subw    r0, pc, #1
        subs    pc, lr, #4
        mov.w   pc, lr
