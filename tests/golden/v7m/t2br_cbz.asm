; CBZ and CBNZ over their whole range.
; Written by scripts/golden/t2br.py from llvm-mc, cross-checked with arm-none-eabi-as.
; Targets are plain numbers: the offset itself.
; RUN: %s %o -v7M3 -mt
        .thumb
        CBZ     R0, 0                   ;= b100
        CBNZ    R0, 0                   ;= b900
        CBZ     R1, 2                   ;= b109
        CBNZ    R1, 2                   ;= b909
        CBZ     R3, 6                   ;= b11b
        CBNZ    R3, 6                   ;= b91b
        CBZ     R6, 12                  ;= b136
        CBNZ    R6, 12                  ;= b936
        CBZ     R1, 18                  ;= b149
        CBNZ    R1, 18                  ;= b949
        CBZ     R4, 24                  ;= b164
        CBNZ    R4, 24                  ;= b964
        CBZ     R7, 30                  ;= b17f
        CBNZ    R7, 30                  ;= b97f
        CBZ     R2, 36                  ;= b192
        CBNZ    R2, 36                  ;= b992
        CBZ     R5, 42                  ;= b1ad
        CBNZ    R5, 42                  ;= b9ad
        CBZ     R0, 48                  ;= b1c0
        CBNZ    R0, 48                  ;= b9c0
        CBZ     R3, 54                  ;= b1db
        CBNZ    R3, 54                  ;= b9db
        CBZ     R6, 60                  ;= b1f6
        CBNZ    R6, 60                  ;= b9f6
        CBZ     R0, 64                  ;= b300
        CBNZ    R0, 64                  ;= bb00
        CBZ     R1, 66                  ;= b309
        CBNZ    R1, 66                  ;= bb09
        CBZ     R4, 72                  ;= b324
        CBNZ    R4, 72                  ;= bb24
        CBZ     R7, 78                  ;= b33f
        CBNZ    R7, 78                  ;= bb3f
        CBZ     R2, 84                  ;= b352
        CBNZ    R2, 84                  ;= bb52
        CBZ     R5, 90                  ;= b36d
        CBNZ    R5, 90                  ;= bb6d
        CBZ     R0, 96                  ;= b380
        CBNZ    R0, 96                  ;= bb80
        CBZ     R3, 102                 ;= b39b
        CBNZ    R3, 102                 ;= bb9b
        CBZ     R6, 108                 ;= b3b6
        CBNZ    R6, 108                 ;= bbb6
        CBZ     R1, 114                 ;= b3c9
        CBNZ    R1, 114                 ;= bbc9
        CBZ     R4, 120                 ;= b3e4
        CBNZ    R4, 120                 ;= bbe4
        CBZ     R7, 126                 ;= b3ff
        CBNZ    R7, 126                 ;= bbff
