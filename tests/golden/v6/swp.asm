; SWP and SWPB.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        SWP     R5, R9, [R3]                    ;= e1035099
        SWP     R8, R9, [R6]                    ;= e1068099
        SWP     R2, R3, [R7]                    ;= e1072093
        SWP     R10, R2, [R5]                   ;= e105a092
        SWP     R0, R0, [R1]                    ;= e1010090
        SWP     R14, R14, [R0]                  ;= e100e09e
        SWPB    R2, R8, [R3]                    ;= e1432098
        SWPB    R8, R4, [R1]                    ;= e1418094
        SWPB    R12, R9, [R0]                   ;= e140c099
        SWPB    R14, R3, [R5]                   ;= e145e093
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
