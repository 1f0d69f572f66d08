; ADR with an offset and with labels of the section.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v4
        ADR     R7, #8                          ;= e28f7008
        ADR     R2, #-8                         ;= e24f2008
        ADR     R2, #4                          ;= e28f2004
        ADR     R6, #1024                       ;= e28f6b01
        ADR     R4, #-1024                      ;= e24f4b01
        ADR     R3, #1020                       ;= e28f3fff
        ADR     R12, #-1020                     ;= e24fcfff
        ADR     R0, #65536                      ;= e28f0801
        ADR     R12, #4080                      ;= e28fceff
        ADR     R14, #-4080                     ;= e24feeff
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
