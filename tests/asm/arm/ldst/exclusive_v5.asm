; RUN: %s %o -v5e
        .text
        LDREX   R0, [R1]                ;! E0002 Instruction is only available in V6 and higher
        STREX   R0, R1, [R2]            ;! E0002 Instruction is only available in V6 and higher
