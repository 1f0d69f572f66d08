; SWP and SWPB.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v5e
        SWP     R10, R2, [R6]                   ;= e106a092
        SWP     R4, R5, [R2]                    ;= e1024095
        SWP     R10, R7, [R1]                   ;= e101a097
        SWP     R3, R8, [R9]                    ;= e1093098
        SWP     R0, R0, [R1]                    ;= e1010090
        SWP     R14, R14, [R0]                  ;= e100e09e
        SWPB    R4, R9, [R6]                    ;= e1464099
        SWPB    R10, R3, [R1]                   ;= e141a093
        SWPB    R8, R6, [R1]                    ;= e1418096
        SWPB    R1, R0, [R4]                    ;= e1441090
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
