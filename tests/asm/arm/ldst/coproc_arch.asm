; The "2" forms and the two-register transfers need v5E.
; RUN: %s %o -v4
        .text
        CDP     P1, #2, C3, C4, C5
        MRC     P15, #0, R0, C1, C0
        LDC     P1, C2, [R3]
        CDP2    P1, #2, C3, C4, C5      ;! E0002 Instruction is only available in V5 and higher
        MRC2    P15, #0, R0, C1, C0     ;! E0002 Instruction is only available in V5 and higher
        MCRR    P1, #0, R0, R1, C2      ;! E0002 Instruction is only available in V5 and higher
        MRRC2   P1, #0, R0, R1, C2      ;! E0002 Instruction is only available in V5 and higher
        LDC2L   P1, C2, [R3]            ;! E0002 Instruction is only available in V5 and higher
        STC2    P1, C2, [R3]            ;! E0002 Instruction is only available in V5 and higher
