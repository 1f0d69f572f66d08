; PLD and PLI.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7A8
        PLD     [R7]                            ;= f5d7f000
        PLD     [R7, #0]                        ;= f5d7f000
        PLD     [R4, #4095]                     ;= f5d4ffff
        PLD     [R11, #-4095]                   ;= f55bffff
        PLD     [R11, #-1]                      ;= f55bf001
        PLD     [R9, R1]                        ;= f7d9f001
        PLD     [R0, -R8]                       ;= f750f008
        PLD     [R9, R7, LSL #2]                ;= f7d9f107
        PLD     [R10, -R6, ROR #3]              ;= f75af1e6
        PLD     [R13, R3, ASR #32]              ;= f7ddf043
        PLD     [R2, R6, RRX]                   ;= f7d2f066
        PLD     [PC, #-8]                       ;= f55ff008
        PLD     [R14, #8]                       ;= f5def008
        PLD     [R0, R14]                       ;= f7d0f00e
        PLI     [R11]                           ;= f4dbf000
        PLI     [R1, #0]                        ;= f4d1f000
        PLI     [R1, #4095]                     ;= f4d1ffff
        PLI     [R0, #-4095]                    ;= f450ffff
        PLI     [R10, #-1]                      ;= f45af001
        PLI     [R4, R13]                       ;= f6d4f00d
        PLI     [R14, -R2]                      ;= f65ef002
        PLI     [R3, R8, LSL #2]                ;= f6d3f108
        PLI     [R7, -R3, ROR #3]               ;= f657f1e3
        PLI     [R14, R8, ASR #32]              ;= f6def048
        PLI     [R2, R4, RRX]                   ;= f6d2f064
        PLI     [PC, #-8]                       ;= f45ff008
        PLI     [R14, #8]                       ;= f4def008
        PLI     [R0, R14]                       ;= f6d0f00e
