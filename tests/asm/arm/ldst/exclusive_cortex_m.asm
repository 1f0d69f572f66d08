; The pairs are refused on a Cortex-M part, also in ARM state.
; RUN: %s %o -v7M3
        .text
        LDREXD  R0, R1, [R2]            ;! E0002 Illegal Cortex-M instruction/directive
        STREXD  R0, R2, R3, [R4]        ;! E0002 Illegal Cortex-M instruction/directive
