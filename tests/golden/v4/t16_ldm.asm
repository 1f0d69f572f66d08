; LDMIA, STMIA with their write-back rules, PUSH and POP.
; Written by scripts/golden/t16/gen_t16.py: change the generator, not this file.
; RUN: %s %o -v4
        .thumb
        LDMIA   R0, {R0, R1}                    ;= c803
        LDMIA   R0!, {R1, R2}                   ;= c806
        LDM     R7!, {R0-R6}                    ;= cf7f
        LDMFD   R1!, {R0}                       ;= c901
        STMIA   R0!, {R0, R1}                   ;= c003
        STMEA   R2!, {R0-R7}                    ;= c2ff
        STM     R3!, {R4}                       ;= c310
        PUSH    {R0}                            ;= b401
        PUSH    {R0-R7, LR}                     ;= b5ff
        PUSH    {LR}                            ;= b500
        POP     {R0, PC}                        ;= bd01
        POP     {R1-R3}                         ;= bc0e
        POP     {PC}                            ;= bd00
