; ADR with an offset and with labels of the section.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v5e
        ADR     R9, #8                          ;= e28f9008
        ADR     R4, #-8                         ;= e24f4008
        ADR     R14, #4                         ;= e28fe004
        ADR     R12, #1024                      ;= e28fcb01
        ADR     R6, #-1024                      ;= e24f6b01
        ADR     R10, #1020                      ;= e28fafff
        ADR     R9, #-1020                      ;= e24f9fff
        ADR     R3, #65536                      ;= e28f3801
        ADR     R4, #4080                       ;= e28f4eff
        ADR     R12, #-4080                     ;= e24fceff
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
