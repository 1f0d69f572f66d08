; LDMIA and STMIA with their write-back rules, PUSH and POP with their lists,
; in plain Thumb on v4.
; RUN: %s %o -v4
        .thumb
        ldmia   r0, {r0, r1}
        ldmia   r0!, {r1, r2}
        stmia   r0!, {r0, r1}
        ldmia   r0!, {r0, r1}           ;! W0000 In thumb mode, this instruction can only write back to Rn if register list does not contain Rn
        ldmia   r0, {r1, r2}            ;! W0000 In Thumb mode, this instruction must write back to Rn if register list does not contain Rn
        stmia   r0, {r1, r2}            ;! W0000 STMIA must always write back to Rn in Thumb mode
        stm     r0, {r1}                ;! W0000 STM must always write back to Rn in Thumb mode
        ldm     r8!, {r1}               ;! E0004 Base register Rb cannot be a hi register
        ldm     r0!, {r1, r8}           ;! E0004 Register list must only contain lo registers
        ldm     r0^, {r0}               ;! W0000 Invalid operand modifiers ignored
        ldm     #1, {r1}                ;! E0004 Base operand Rb must be a register
        stm     r0!, r1                 ;! E0004 Register list required
        push    {r0-r7, lr}
        pop     {r0-r7, pc}
        push    {pc}                    ;! E0004 Register list of PUSH cannot contain PC
        pop     {lr}                    ;! E0004 Register list of POP cannot contain LR
        push    {r8}                    ;! E0004 Register list must only contain lo registers or LR
        pop     {r0, r12}               ;! E0004 Register list must only contain lo registers or PC
        push    r0                      ;! E0004 Register list required
