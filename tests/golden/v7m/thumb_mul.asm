; Thumb-2 multiplies, multiply-accumulates and divides.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7M3
        .thumb
        MUL     R10, R5, R7                     ;= fb05 fa07
        MUL.W   R10, R5, R7                     ;= fb05 fa07
        MUL     R10, R8, R6                     ;= fb08 fa06
        MUL.W   R10, R8, R6                     ;= fb08 fa06
        MUL     R8, R5, R9                      ;= fb05 f809
        MUL.W   R8, R5, R9                      ;= fb05 f809
        MUL     R4, R0, R10                     ;= fb00 f40a
        MUL.W   R4, R0, R10                     ;= fb00 f40a
        MUL     R8, R9                          ;= fb08 f809  ; note: Rd repeats
        MLA     R14, R1, R10, R12               ;= fb01 ce0a
        MLA     R8, R1, R5, R0                  ;= fb01 0805
        MLA     R6, R11, R10, R4                ;= fb0b 460a
        MLA     R0, R14, R12, R1                ;= fb0e 100c
        MLS     R2, R7, R11, R6                 ;= fb07 621b
        MLS     R8, R10, R1, R9                 ;= fb0a 9811
        MLS     R4, R8, R3, R11                 ;= fb08 b413
        MLS     R0, R14, R12, R1                ;= fb0e 101c
        UMULL   R6, R11, R5, R3                 ;= fba5 6b03
        UMULL   R6, R14, R1, R7                 ;= fba1 6e07
        UMULL   R1, R14, R9, R8                 ;= fba9 1e08
        UMULL   R0, R14, R12, R1                ;= fbac 0e01
        UMLAL   R8, R2, R5, R4                  ;= fbe5 8204
        UMLAL   R7, R4, R5, R1                  ;= fbe5 7401
        UMLAL   R7, R5, R4, R1                  ;= fbe4 7501
        UMLAL   R0, R14, R12, R1                ;= fbec 0e01
        SMULL   R8, R6, R3, R2                  ;= fb83 8602
        SMULL   R14, R1, R10, R3                ;= fb8a e103
        SMULL   R3, R8, R0, R2                  ;= fb80 3802
        SMULL   R0, R14, R12, R1                ;= fb8c 0e01
        SMLAL   R3, R4, R6, R10                 ;= fbc6 340a
        SMLAL   R2, R9, R10, R5                 ;= fbca 2905
        SMLAL   R6, R2, R7, R10                 ;= fbc7 620a
        SMLAL   R0, R14, R12, R1                ;= fbcc 0e01
        SDIV    R3, R6, R9                      ;= fb96 f3f9
        SDIV    R0, R9, R7                      ;= fb99 f0f7
        SDIV    R11, R2, R5                     ;= fb92 fbf5
        SDIV    R6, R2, R9                      ;= fb92 f6f9
        SDIV    R0, R14, R12                    ;= fb9e f0fc
        UDIV    R0, R11, R5                     ;= fbbb f0f5
        UDIV    R1, R0, R12                     ;= fbb0 f1fc
        UDIV    R9, R14, R3                     ;= fbbe f9f3
        UDIV    R8, R14, R0                     ;= fbbe f8f0
        UDIV    R0, R14, R12                    ;= fbbe f0fc
