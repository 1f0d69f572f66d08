; ADR with an offset and with labels of the section.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7R4
        ADR     R1, #8                          ;= e28f1008
        ADR     R14, #-8                        ;= e24fe008
        ADR     R3, #4                          ;= e28f3004
        ADR     R3, #1024                       ;= e28f3b01
        ADR     R0, #-1024                      ;= e24f0b01
        ADR     R10, #1020                      ;= e28fafff
        ADR     R14, #-1020                     ;= e24fefff
        ADR     R5, #65536                      ;= e28f5801
        ADR     R11, #4080                      ;= e28fbeff
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
