; Doublewords and preloads need v5E; the rest of the family is v4.
; RUN: %s %o -v4
        .text
        LDRD    R0, R1, [R2]            ;! E0002 Instruction is only available in V5 and higher
        STRD    R0, [R2]                ;! E0002 Instruction is only available in V5 and higher
        PLD     [R0]                    ;! E0002 Instruction is only available in V5 and higher
        LDRSB   R0, [R1]
        LDRBT   R0, [R1], #1
