; Thumb-2 doubleword loads and stores. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v7R4
        .thumb
        LDRD R0, R1, [R2]                       ;= e9d2 0100
        LDRD R0, R1, [R2, #8]                   ;= e9d2 0102
        LDRD R0, R1, [R2, #-8]                  ;= e952 0102
        LDRD R0, R1, [R2, #1020]                ;= e9d2 01ff
        LDRD R0, R1, [R2, #-1020]               ;= e952 01ff
        LDRD R0, R1, [R2, #16]!                 ;= e9f2 0104
        LDRD R0, R1, [R2, #-4]!                 ;= e972 0101
        LDRD R0, R1, [R2], #4                   ;= e8f2 0101
        LDRD R0, R1, [R2], #-1020               ;= e872 01ff
        LDRD R0, R1, [SP, #0]                   ;= e9dd 0100
        LDRD R4, R9, [R10, #4]                  ;= e9da 4901
        STRD R0, R1, [R2]                       ;= e9c2 0100
        STRD R0, R1, [R2, #8]                   ;= e9c2 0102
        STRD R0, R1, [R2, #-8]                  ;= e942 0102
        STRD R0, R1, [R2, #1020]                ;= e9c2 01ff
        STRD R0, R1, [R2, #-1020]               ;= e942 01ff
        STRD R0, R1, [R2, #16]!                 ;= e9e2 0104
        STRD R0, R1, [R2, #-4]!                 ;= e962 0101
        STRD R0, R1, [R2], #4                   ;= e8e2 0101
        STRD R0, R1, [R2], #-1020               ;= e862 01ff
        STRD R0, R1, [SP, #0]                   ;= e9cd 0100
        STRD R4, R9, [R10, #4]                  ;= e9ca 4901
        LDRD R0, R1, [PC, #-16]                 ;= e95f 0104
