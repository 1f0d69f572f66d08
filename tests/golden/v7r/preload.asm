; PLD and PLI.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7R4
        PLD     [R0]                            ;= f5d0f000
        PLD     [R12, #0]                       ;= f5dcf000
        PLD     [R1, #4095]                     ;= f5d1ffff
        PLD     [R14, #-4095]                   ;= f55effff
        PLD     [R5, #-1]                       ;= f555f001
        PLD     [R8, R0]                        ;= f7d8f000
        PLD     [R13, -R4]                      ;= f75df004
        PLD     [R3, R8, LSL #2]                ;= f7d3f108
        PLD     [R7, -R11, ROR #3]              ;= f757f1eb
        PLD     [R1, R2, ASR #32]               ;= f7d1f042
        PLD     [R5, R11, RRX]                  ;= f7d5f06b
        PLD     [PC, #-8]                       ;= f55ff008
        PLD     [R14, #8]                       ;= f5def008
        PLD     [R0, R14]                       ;= f7d0f00e
        PLI     [R11]                           ;= f4dbf000
        PLI     [R5, #0]                        ;= f4d5f000
        PLI     [R11, #4095]                    ;= f4dbffff
        PLI     [R12, #-4095]                   ;= f45cffff
        PLI     [R0, #-1]                       ;= f450f001
        PLI     [R5, R2]                        ;= f6d5f002
        PLI     [R9, -R10]                      ;= f659f00a
        PLI     [R4, R10, LSL #2]               ;= f6d4f10a
        PLI     [R8, -R10, ROR #3]              ;= f658f1ea
        PLI     [R9, R10, ASR #32]              ;= f6d9f04a
        PLI     [R0, R6, RRX]                   ;= f6d0f066
        PLI     [PC, #-8]                       ;= f45ff008
        PLI     [R14, #8]                       ;= f4def008
        PLI     [R0, R14]                       ;= f6d0f00e
