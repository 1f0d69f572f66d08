; Thumb-2 PLD and PLI. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v8M33
        .thumb
        PLD [R0]                                ;= f890 f000
        PLD [R1, #4095]                         ;= f891 ffff
        PLD [R2, #-255]                         ;= f812 fcff
        PLD [R3, #-1]                           ;= f813 fc01
        PLD [R4, #0]                            ;= f894 f000
        PLD [R5, R6]                            ;= f815 f006
        PLD [R7, R8, LSL #3]                    ;= f817 f038
        PLD [PC, #-100]                         ;= f81f f064
        PLD [PC, #100]                          ;= f89f f064
        PLD [SP, #-128]                         ;= f81d fc80
        PLI [R0]                                ;= f990 f000
        PLI [R1, #4095]                         ;= f991 ffff
        PLI [R2, #-255]                         ;= f912 fcff
        PLI [R3, #-1]                           ;= f913 fc01
        PLI [R4, #0]                            ;= f994 f000
        PLI [R5, R6]                            ;= f915 f006
        PLI [R7, R8, LSL #3]                    ;= f917 f038
        PLI [PC, #-100]                         ;= f91f f064
        PLI [PC, #100]                          ;= f99f f064
        PLI [SP, #-128]                         ;= f91d fc80
