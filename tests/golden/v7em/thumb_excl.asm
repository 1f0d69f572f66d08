; Exclusive loads and stores, table branches, preloads.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7M4
        .thumb
        LDREX   R14, [R3, #0]                   ;= e853 ef00
        STREX   R0, R14, [R9, #0]               ;= e849 e000
        LDREX   R14, [R5, #4]                   ;= e855 ef01
        STREX   R2, R9, [R12, #4]               ;= e84c 9201
        LDREX   R3, [R8, #1020]                 ;= e858 3fff
        STREX   R12, R8, [R14, #1020]           ;= e84e 8cff
        LDREX   R0, [R1]                        ;= e851 0f00
        STREX   R0, R1, [R2]                    ;= e842 1000
        LDREXB  R0, [R8]                        ;= e8d8 0f4f
        LDREXH  R8, [R0]                        ;= e8d0 8f5f
        STREXB  R6, R14, [R11]                  ;= e8cb ef46
        STREXH  R2, R8, [R14]                   ;= e8ce 8f52
        TBB     [R0, R1]                        ;= e8d0 f001
        TBH     [R0, R1, LSL #1]                ;= e8d0 f011
        TBB     [R9, R14]                       ;= e8d9 f00e
        TBH     [R9, R14, LSL #1]               ;= e8d9 f01e
        TBB     [PC, R3]                        ;= e8df f003
        TBH     [PC, R3, LSL #1]                ;= e8df f013
        TBB     [R12, R0]                       ;= e8dc f000
        TBH     [R12, R0, LSL #1]               ;= e8dc f010
        PLD     [R0]                            ;= f890 f000
        PLD     [R1, #4]                        ;= f891 f004
        PLD     [R2, #4095]                     ;= f892 ffff
        PLD     [R3, #-1]                       ;= f813 fc01
        PLD     [R4, #-255]                     ;= f814 fcff
        PLD     [R5, R6]                        ;= f815 f006
        PLD     [R7, R8, LSL #3]                ;= f817 f038
        PLD     [PC, #100]                      ;= f89f f064
        PLD     [PC, #-100]                     ;= f81f f064
        PLI     [R0]                            ;= f990 f000
        PLI     [R1, #4]                        ;= f991 f004
        PLI     [R2, #4095]                     ;= f992 ffff
        PLI     [R3, #-1]                       ;= f913 fc01
        PLI     [R4, #-255]                     ;= f914 fcff
        PLI     [R5, R6]                        ;= f915 f006
        PLI     [R7, R8, LSL #3]                ;= f917 f038
        PLI     [PC, #100]                      ;= f99f f064
        PLI     [PC, #-100]                     ;= f91f f064
