; Loads, stores and preloads of labels in the same section: pc-relative, no relocation.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v4
back
        MOV     R0, R0                          ;= e1a00000
        MOV     R0, R0                          ;= e1a00000
        LDR     R1, back                        ;= e51f1010
        STR     R2, back                        ;= e50f2014
        LDRB    R3, back                        ;= e55f3018
        LDREQ   R4, fwd                         ;= 059f4024
        STRB    R5, fwd                         ;= e5cf5020
        LDRH    R6, back                        ;= e15f62b4
        LDRSB   R7, fwd                         ;= e1df71d8
        LDRSH   R8, back                        ;= e15f82fc
        STRH    R9, fwd                         ;= e1cf91b0
        LDR     PC, fwd                         ;= e59ff00c
        LDR     R0, #16                         ;= e59f0010  ; note: a # offset is pc-relative
        LDR     R1, #-8                         ;= e51f1008  ; note: a # offset is pc-relative
        LDRB    R2, #4095                       ;= e5df2fff  ; note: a # offset is pc-relative
        MOV     R0, R0                          ;= e1a00000
fwd
        MOV     R0, R0                          ;= e1a00000
        LDR     R10, fwd                        ;= e51fa00c
        LDRNE   R11, back                       ;= 151fb050
