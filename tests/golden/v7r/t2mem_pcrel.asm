; Thumb-2 loads and preloads of labels in the same section. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v7R4
        .thumb
back
        LDR.W R0, back                          ;= f85f 0004
        LDR.W R0, fwd                           ;= f8df 0050
        LDR.W R9, back                          ;= f85f 900c
        LDR.W R9, fwd                           ;= f8df 9048
        LDRB.W R1, back                         ;= f81f 1014
        LDRB.W R1, fwd                          ;= f89f 1040
        LDRH.W R2, back                         ;= f83f 201c
        LDRH.W R2, fwd                          ;= f8bf 2038
        LDRSB.W R3, back                        ;= f91f 3024
        LDRSB.W R3, fwd                         ;= f99f 3030
        LDRSH.W R4, back                        ;= f93f 402c
        LDRSH.W R4, fwd                         ;= f9bf 4028
        LDR.W PC, back                          ;= f85f f034
        LDR.W PC, fwd                           ;= f8df f020
        LDRD R0, R1, back                       ;= e95f 010f
        LDRD R2, R3, fwd                        ;= e9df 2306
        PLD back                                ;= f81f f044
        PLD fwd                                 ;= f89f f010
        PLI back                                ;= f91f f04c
        PLI fwd                                 ;= f99f f008
        NOP.W                                   ;= f3af 8000
        NOP.W                                   ;= f3af 8000
fwd
        NOP.W                                   ;= f3af 8000
