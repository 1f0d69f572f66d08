; Loads, stores and preloads of labels in the same section: pc-relative, no relocation.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v5e
back
        MOV     R0, R0                          ;= e1a00000
        MOV     R0, R0                          ;= e1a00000
        LDR     R1, back                        ;= e51f1010
        STR     R2, back                        ;= e50f2014
        LDRB    R3, back                        ;= e55f3018
        LDREQ   R4, fwd                         ;= 059f4038
        STRB    R5, fwd                         ;= e5cf5034
        LDRH    R6, back                        ;= e15f62b4
        LDRSB   R7, fwd                         ;= e1df72dc
        LDRSH   R8, back                        ;= e15f82fc
        STRH    R9, fwd                         ;= e1cf92b4
        LDR     PC, fwd                         ;= e59ff020
        LDR     R0, #16                         ;= e59f0010  ; note: a # offset is pc-relative
        LDR     R1, #-8                         ;= e51f1008  ; note: a # offset is pc-relative
        LDRB    R2, #4095                       ;= e5df2fff  ; note: a # offset is pc-relative
        LDRD    R0, R1, back                    ;= e14f04d4
        PLD     back                            ;= f55ff048
        PLD     fwd                             ;= f5dff008
        LDC     p1, c2, back                    ;= ed1f2114
        STCL    p3, c4, fwd                     ;= edcf4300
        MOV     R0, R0                          ;= e1a00000
fwd
        MOV     R0, R0                          ;= e1a00000
        LDR     R10, fwd                        ;= e51fa00c
        LDRNE   R11, back                       ;= 151fb064
