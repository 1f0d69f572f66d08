; BLX to an offset (ARM code) and BXJ.
; Written by scripts/golden/t2br.py from llvm-mc, cross-checked with arm-none-eabi-as.
; Targets are plain numbers: the offset itself.
; RUN: %s %o -v7A8 -mt
        .thumb
        BLX     0                       ;= f000 e800
        BLX     4                       ;= f000 e802
        BLX     -4                      ;= f7ff effe
        BLX     8                       ;= f000 e804
        BLX     -8                      ;= f7ff effc
        BLX     256                     ;= f000 e880
        BLX     -4096                   ;= f7ff e800
        BLX     74564                   ;= f012 e9a2
        BLX     -74568                  ;= f7ed ee5c
        BLX     16777212                ;= f3ff c7fe
        BLX     -16777216               ;= f400 c000
        BXJ     R0                      ;= f3c0 8f00
        BXJ     R1                      ;= f3c1 8f00
        BXJ     R2                      ;= f3c2 8f00
        BXJ     R3                      ;= f3c3 8f00
        BXJ     R4                      ;= f3c4 8f00
        BXJ     R5                      ;= f3c5 8f00
        BXJ     R6                      ;= f3c6 8f00
        BXJ     R7                      ;= f3c7 8f00
        BXJ     R8                      ;= f3c8 8f00
        BXJ     R9                      ;= f3c9 8f00
        BXJ     R10                     ;= f3ca 8f00
        BXJ     R11                     ;= f3cb 8f00
        BXJ     R12                     ;= f3cc 8f00
        BXJ     R14                     ;= f3ce 8f00
