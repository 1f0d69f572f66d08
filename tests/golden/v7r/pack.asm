; PKHBT and PKHTB.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7R4
        PKHBT   R1, R6, R12, LSL #1             ;= e686109c
        PKHTB   R12, R4, R14, ASR #1            ;= e684c0de
        PKHBT   R3, R6, R8, LSL #8              ;= e6863418
        PKHTB   R6, R4, R14, ASR #8             ;= e684645e
        PKHBT   R5, R9, R2, LSL #16             ;= e6895812
        PKHTB   R10, R12, R5, ASR #16           ;= e68ca855
        PKHBT   R3, R1, R5, LSL #31             ;= e6813f95
        PKHTB   R2, R3, R13, ASR #31            ;= e6832fdd
        PKHBT   R11, R0, R7                     ;= e680b017
        PKHBT   R11, R0, R7, LSL #0             ;= e680b017  ; note: a shift by 0 is no shift
        PKHTB   R12, R8, R11                    ;= e68bc018  ; note: without a shift the sources swap into PKHBT
        PKHBTEQ R0, R1, R2, LSL #4              ;= 06810212
        PKHTBNE R3, R4, R5, ASR #12             ;= 16843655
        PKHBT   R14, R14, R0                    ;= e68ee010
