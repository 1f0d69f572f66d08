; The 16-bit trial of a 32-bit row reports nothing: a statement that only
; the 32-bit encoding can take, or that neither can, shows the messages of
; its 32-bit encoding alone.
; RUN: %s %o -v7M3
        .thumb
        movs    r0, #0x101              ;! E0004 Invalid Immediate operand
        ands    r0, r0, #0x101          ;! E0004 Illegal constant, does not conform to modify_constant() format
        ands    r0, r1, r0
        adds    r0, r1, #200
        ldr     r0, [r1, #2]
        strh    r0, [r1, #7]
        ldr     r0, [r1, #128]
        pop     {r8}
