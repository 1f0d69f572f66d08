; Loads and stores: register and immediate offsets, SP and PC bases.
; Written by scripts/golden/t16/gen_t16.py: change the generator, not this file.
; RUN: %s %o -v4
        .thumb
        LDR     R0, [R1, R2]                    ;= 5888
        STR     R7, [R6, R5]                    ;= 5177
        LDRB    R0, [R1, R2]                    ;= 5c88
        STRB    R3, [R4, R5]                    ;= 5563
        LDRH    R0, [R1, R2]                    ;= 5a88
        STRH    R3, [R4, R5]                    ;= 5363
        LDRSB   R0, [R1, R2]                    ;= 5688
        LDRSH   R3, [R4, R5]                    ;= 5f63
        LDR     R0, [R1]                        ;= 6808
        LDR     R0, [R1, #4]                    ;= 6848
        STR     R2, [R3, #124]                  ;= 67da
        LDRB    R0, [R1]                        ;= 7808
        LDRB    R0, [R1, #31]                   ;= 7fc8
        STRB    R4, [R5, #1]                    ;= 706c
        LDRH    R0, [R1]                        ;= 8808
        LDRH    R0, [R1, #62]                   ;= 8fc8
        STRH    R6, [R7, #2]                    ;= 807e
        LDR     R0, [SP]                        ;= 9800
        LDR     R1, [SP, #1020]                 ;= 99ff
        STR     R7, [SP, #4]                    ;= 9701
        LDR     R2, [PC, #1020]                 ;= 4aff
        LDR     R3, [PC]                        ;= 4b00
