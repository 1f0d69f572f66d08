; LDREX and STREX are v6, their byte and halfword forms and the pairs v7;
; the pairs are not Cortex-M instructions.
; RUN: %s %o -v6
        .text
        LDREX   R0, [R1]
        STREX   R0, R1, [R2]
        LDREXB  R0, [R1]                ;! E0002 Instruction only available in V7 and higher
        STREXH  R0, R1, [R2]            ;! E0002 Instruction only available in V7 and higher
        LDREXD  R0, R1, [R2]            ;! E0002 Instruction only available in V7 and higher
        STREXD  R0, R2, R3, [R4]        ;! E0002 Instruction only available in V7 and higher
