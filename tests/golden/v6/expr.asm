; Operands that are expressions and symbols, also defined further down.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
VAL     .set    0x10
SH      .equ    3
NEG     .set    -8
        ADD     R0, R1, #(1 << 8) + 4           ;= e2810f41
        ADD     R0, R1, #VAL * 2                ;= e2810020
        MOV     R2, R3, LSL #SH                 ;= e1a02183
        LDR     R4, [R5, #VAL - 4]              ;= e595400c
        LDR     R4, [R5, #NEG]                  ;= e5154008
        STRH    R6, [R7, #NEG * 2]!             ;= e16761b0
        ADD     R0, R1, #LATER                  ;= e281000c  ; note: defined further down
        SUB     R0, R1, #'A'                    ;= e2410041
        ORR     R0, R1, #0x0F0 | 0xF00          ;= e3810eff
        MOV     R0, #-1 & 0xFF                  ;= e3a000ff
        ADD     R0, R1, #10 % 3                 ;= e2810001
        CMP     R0, #-VAL                       ;= e3700010  ; note: becomes CMN
        ADD     R0, R1, #R3                     ;= e2810003  ; note: #R3 is 3
        LDR     R0, [R1, R2, LSL #0]            ;= e7910002  ; note: a shift by 0 is no shift
        LDR     R0, [R1, -R2, LSR #0]           ;= e7110002  ; note: a shift by 0 is no shift
        SWI     #VAL + 1                        ;= ef000011
        B       VAL                             ;= ea000004
        BNE     LATER * 4                       ;= 1a00000c
        MRC     p15, #SH - 3, R0, c1, c0, #SH   ;= ee110f70
        MOV     R0, #VAL << 24                  ;= e3a00201
        MVN     R1, #LATER                      ;= e3e0100c
LATER   .set    12
