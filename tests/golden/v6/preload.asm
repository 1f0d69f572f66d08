; PLD and PLI.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        PLD     [R11]                           ;= f5dbf000
        PLD     [R11, #0]                       ;= f5dbf000
        PLD     [R6, #4095]                     ;= f5d6ffff
        PLD     [R9, #-4095]                    ;= f559ffff
        PLD     [R4, #-1]                       ;= f554f001
        PLD     [R8, R14]                       ;= f7d8f00e
        PLD     [R2, -R6]                       ;= f752f006
        PLD     [R3, R9, LSL #2]                ;= f7d3f109
        PLD     [R11, -R14, ROR #3]             ;= f75bf1ee
        PLD     [R7, R0, ASR #32]               ;= f7d7f040
        PLD     [R6, R13, RRX]                  ;= f7d6f06d
        PLD     [PC, #-8]                       ;= f55ff008
        PLD     [R14, #8]                       ;= f5def008
        PLD     [R0, R14]                       ;= f7d0f00e
