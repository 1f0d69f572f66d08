; SWP and SWPB.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7A8
        SWP     R1, R5, [R0]                    ;= e1001095
        SWP     R1, R10, [R14]                  ;= e10e109a
        SWP     R0, R6, [R2]                    ;= e1020096
        SWP     R10, R7, [R5]                   ;= e105a097
        SWP     R0, R0, [R1]                    ;= e1010090
        SWP     R14, R14, [R0]                  ;= e100e09e
        SWPB    R5, R4, [R13]                   ;= e14d5094
        SWPB    R11, R6, [R9]                   ;= e149b096
        SWPB    R5, R7, [R3]                    ;= e1435097
        SWPB    R9, R13, [R6]                   ;= e146909d
        SWPB    R0, R0, [R1]                    ;= e1410090
        SWPB    R14, R14, [R0]                  ;= e140e09e
        SWPEQ   R0, R1, [R2]                    ;= 01020091
        SWPEQB  R3, R4, [R5]                    ;= 01453094
        SWPBEQ  R6, R7, [R8]                    ;= 01486097
        SWPNE   R0, R1, [R2]                    ;= 11020091
        SWPNEB  R3, R4, [R5]                    ;= 11453094
        SWPBNE  R6, R7, [R8]                    ;= 11486097
        SWPCC   R0, R1, [R2]                    ;= 31020091
        SWPCCB  R3, R4, [R5]                    ;= 31453094
        SWPBCC  R6, R7, [R8]                    ;= 31486097
        SWPLE   R0, R1, [R2]                    ;= d1020091
        SWPLEB  R3, R4, [R5]                    ;= d1453094
        SWPBLE  R6, R7, [R8]                    ;= d1486097
        SWPAL   R0, R1, [R2]                    ;= e1020091
        SWPALB  R3, R4, [R5]                    ;= e1453094
        SWPBAL  R6, R7, [R8]                    ;= e1486097
