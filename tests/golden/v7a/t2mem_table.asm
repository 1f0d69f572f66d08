; Thumb-2 table branches. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v7A8
        .thumb
        TBB [R0, R1]                            ;= e8d0 f001
        TBB [PC, R2]                            ;= e8df f002
        TBH [R3, R4, LSL #1]                    ;= e8d3 f014
        TBH [PC, R12, LSL #1]                   ;= e8df f01c
        TBB [R12, R14]                          ;= e8dc f00e
