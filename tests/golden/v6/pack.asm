; PKHBT and PKHTB.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        PKHBT   R3, R12, R6, LSL #1             ;= e68c3096
        PKHTB   R7, R3, R13, ASR #1             ;= e68370dd
        PKHBT   R11, R2, R4, LSL #8             ;= e682b414
        PKHTB   R0, R3, R10, ASR #8             ;= e683045a
        PKHBT   R6, R12, R14, LSL #16           ;= e68c681e
        PKHTB   R12, R6, R8, ASR #16            ;= e686c858
        PKHBT   R7, R10, R4, LSL #31            ;= e68a7f94
        PKHTB   R8, R1, R2, ASR #31             ;= e6818fd2
        PKHBT   R2, R6, R9                      ;= e6862019
        PKHBT   R2, R6, R9, LSL #0              ;= e6862019  ; note: a shift by 0 is no shift
        PKHTB   R9, R8, R1                      ;= e6819018  ; note: without a shift the sources swap into PKHBT
        PKHBTEQ R0, R1, R2, LSL #4              ;= 06810212
        PKHTBNE R3, R4, R5, ASR #12             ;= 16843655
        PKHBT   R14, R14, R0                    ;= e68ee010
