; The Cortex-R4 erratum of a STREXD with one register twice.
; RUN: %s %o -v7R4
        .text
        STREXD  R0, R2, R2, [R1]        ;! W5369 Cortex-R4 Errata 577077: Thumb STREXD treated as NOP if same register used for both source operands
        STREXD  R0, R2, R3, [R1]
; SECTION: .text: 92 0f a1 e1 93 0f a1 e1
