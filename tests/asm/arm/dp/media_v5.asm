; The v6 and v7 media instructions below their architecture.
; RUN: %s %o -v5e
        .text
        rev     r0, r1                  ;! E0002 Instruction is only available in V6 and higher
        sel     r0, r1, r2              ;! E0002 Instruction is only available in V6 and higher
        smlad   r0, r1, r2, r3          ;! E0002 Instruction is only available in V6 and higher
        umaal   r0, r1, r2, r3          ;! E0002 Instruction is only available in V6 and higher
        usad8   r0, r1, r2              ;! E0002 Instruction is only available in V6 and higher
        bfc     r0, #0, #1              ;! E0002 Instruction only available in V7 and higher
        clz     r0, r1
        qadd    r0, r1, r2
