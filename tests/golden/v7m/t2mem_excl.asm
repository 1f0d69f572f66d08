; Thumb-2 exclusive loads and stores, CLREX. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v7M3
        .thumb
        LDREX R0, [R1]                          ;= e851 0f00
        LDREX R2, [R3, #1020]                   ;= e853 2fff
        LDREX R4, [SP, #4]                      ;= e85d 4f01
        LDREXB R5, [R6]                         ;= e8d6 5f4f
        LDREXH R7, [R8]                         ;= e8d8 7f5f
        STREX R0, R1, [R2]                      ;= e842 1000
        STREX R3, R4, [R5, #1020]               ;= e845 43ff
        STREXB R6, R7, [R8]                     ;= e8c8 7f46
        STREXH R9, R10, [R11]                   ;= e8cb af59
        CLREX                                   ;= f3bf 8f2f
