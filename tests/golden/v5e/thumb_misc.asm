; SVC, BKPT, NOP, hints, extends, byte reversal, CPS and SETEND in 16 bits.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v5e
        .thumb
        SVC     #0                              ;= df00
        BKPT    #0                              ;= be00
        SVC     #1                              ;= df01
        BKPT    #1                              ;= be01
        SVC     #127                            ;= df7f
        BKPT    #127                            ;= be7f
        SVC     #128                            ;= df80
        BKPT    #128                            ;= be80
        SVC     #255                            ;= dfff
        BKPT    #255                            ;= beff
        SVC     #0x12                           ;= df12
        NOP                                     ;= 46c0  ; note: MOV R8, R8
