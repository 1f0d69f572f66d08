; Thumb-2 multiplies, long multiplies, divides, DSP multiplies.
; Written by scripts/golden/t2dp/gen.py: change the generator, not this file.
; RUN: %s %o -v7M3
        .thumb
        MUL.W R0, R1, R2                        ;= fb01 f002  ; note: the references have no .W form
        MUL R8, R9, R10                         ;= fb09 f80a
        MLA R0, R1, R2, R3                      ;= fb01 3002
        MLA R8, R9, R10, R11                    ;= fb09 b80a
        MLS R1, R2, R3, R4                      ;= fb02 4113
        MLS R12, R11, R10, R9                   ;= fb0b 9c1a
        UMULL R0, R1, R2, R3                    ;= fba2 0103
        UMULL R8, R9, R10, R11                  ;= fbaa 890b
        UMLAL R0, R1, R2, R3                    ;= fbe2 0103
        UMLAL R8, R9, R10, R11                  ;= fbea 890b
        SMULL R0, R1, R2, R3                    ;= fb82 0103
        SMULL R8, R9, R10, R11                  ;= fb8a 890b
        SMLAL R0, R1, R2, R3                    ;= fbc2 0103
        SMLAL R8, R9, R10, R11                  ;= fbca 890b
        SDIV R0, R1, R2                         ;= fb91 f0f2
        UDIV R8, R9, R10                        ;= fbb9 f8fa
        SDIV R12, R14, R11                      ;= fb9e fcfb
