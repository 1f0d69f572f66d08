; PKHBT and PKHTB.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7A8
        PKHBT   R1, R0, R3, LSL #1              ;= e6801093
        PKHTB   R0, R13, R6, ASR #1             ;= e68d00d6
        PKHBT   R13, R12, R1, LSL #8            ;= e68cd411
        PKHTB   R4, R12, R5, ASR #8             ;= e68c4455
        PKHBT   R8, R11, R10, LSL #16           ;= e68b881a
        PKHTB   R8, R14, R0, ASR #16            ;= e68e8850
        PKHBT   R12, R9, R3, LSL #31            ;= e689cf93
        PKHTB   R8, R14, R13, ASR #31           ;= e68e8fdd
        PKHBT   R9, R7, R12                     ;= e687901c
        PKHBT   R9, R7, R12, LSL #0             ;= e687901c  ; note: a shift by 0 is no shift
        PKHTB   R6, R13, R2                     ;= e682601d  ; note: without a shift the sources swap into PKHBT
        PKHBTEQ R0, R1, R2, LSL #4              ;= 06810212
        PKHTBNE R3, R4, R5, ASR #12             ;= 16843655
        PKHBT   R14, R14, R0                    ;= e68ee010
