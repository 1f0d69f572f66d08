; ADR with an offset and with labels of the section.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7A8
        ADR     R4, #8                          ;= e28f4008
        ADR     R5, #-8                         ;= e24f5008
        ADR     R8, #4                          ;= e28f8004
        ADR     R2, #1024                       ;= e28f2b01
        ADR     R1, #-1024                      ;= e24f1b01
        ADR     R7, #1020                       ;= e28f7fff
        ADR     R7, #-1020                      ;= e24f7fff
        ADR     R10, #65536                     ;= e28fa801
        ADR     R6, #4080                       ;= e28f6eff
        ADR     R9, #-4080                      ;= e24f9eff
back
        ADD     R0, R0, R0                      ;= e0800000
        ADR     R1, back                        ;= e24f100c
        ADR     R2, back                        ;= e24f2010
        ADREQ   R3, fwd                         ;= 028f3008
        ADR     R14, fwd                        ;= e28fe004
        ADRNE   PC, fwd                         ;= 128ff000
        ADR     R4, fwd                         ;= e24f4004
fwd
        ADR     R5, fwd                         ;= e24f5008
        ADR     R6, back                        ;= e24f6028
