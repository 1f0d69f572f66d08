; SVC, BKPT, NOP, hints, extends, byte reversal, CPS and SETEND in 16 bits.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v4
        .thumb
        SVC     #0                              ;= df00
        SVC     #1                              ;= df01
        SVC     #127                            ;= df7f
        SVC     #128                            ;= df80
        SVC     #255                            ;= dfff
        SVC     #0x12                           ;= df12
        NOP                                     ;= 46c0  ; note: MOV R8, R8
