; Operands that the 16-bit forms reached with .N refuse on v7-M.
; RUN: %s %o -v7M3
        .thumb
        adds.n  r0, r1, #8              ;! E0200 Offset out of range, must be 3 bit immediate
        ldr.n   r0, [r1, #128]          ;! E0200 Offset out of range, must be 7 bit immediate
        ldr.n   r0, [r9]                ;! E0004 Base register Rb cannot be a hi register
        cpsie.n a                       ;! E0004 Flag 'A' is not allowed in Cortex-M.
        push.n  {r8}                    ;! E0004 Register list must only contain lo registers or LR
