; PLD and PLI.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v5e
        PLD     [R10]                           ;= f5daf000
        PLD     [R2, #0]                        ;= f5d2f000
        PLD     [R1, #4095]                     ;= f5d1ffff
        PLD     [R11, #-4095]                   ;= f55bffff
        PLD     [R12, #-1]                      ;= f55cf001
        PLD     [R8, R10]                       ;= f7d8f00a
        PLD     [R12, -R4]                      ;= f75cf004
        PLD     [R2, R14, LSL #2]               ;= f7d2f10e
        PLD     [R10, -R4, ROR #3]              ;= f75af1e4
        PLD     [R3, R6, ASR #32]               ;= f7d3f046
        PLD     [R12, R8, RRX]                  ;= f7dcf068
        PLD     [PC, #-8]                       ;= f55ff008
        PLD     [R14, #8]                       ;= f5def008
        PLD     [R0, R14]                       ;= f7d0f00e
