; ADR.W by offset: ADDW or SUBW from PC.
; Written by scripts/golden/t2br.py from llvm-mc, cross-checked with arm-none-eabi-as.
; Targets are plain numbers: the offset itself.
; RUN: %s %o -v8M33 -mt
        .thumb
        ADR.W   R0, 0                   ;= f20f 0000
        ADR.W   R1, 1                   ;= f20f 0101
        ADR.W   R2, -1                  ;= f2af 0201
        ADR.W   R3, 8                   ;= f20f 0308
        ADR.W   R4, -8                  ;= f2af 0408
        ADR.W   R5, 255                 ;= f20f 05ff
        ADR.W   R6, -255                ;= f2af 06ff
        ADR.W   R7, 256                 ;= f20f 1700
        ADR.W   R8, -256                ;= f2af 1800
        ADR.W   R9, 2047                ;= f20f 79ff
        ADR.W   R10, 2048               ;= f60f 0a00
        ADR.W   R11, -2048              ;= f6af 0b00
        ADR.W   R12, 2748               ;= f60f 2cbc
        ADR.W   R0, -291                ;= f2af 1023
        ADR.W   R1, 4095                ;= f60f 71ff
        ADR.W   R2, -4095               ;= f6af 72ff
        ADR.W   R8, 100                 ;= f20f 0864
        ADR.W   R12, 100                ;= f20f 0c64
        ADR.W   LR, 100                 ;= f20f 0e64
; Labels of the section: the offset is from the word of the instruction, plus 4.
back
        ADR.W   R0, back                ;= f2af 0004
        ADR.W   R1, fwd                 ;= f20f 010e
        .half   0xbf00                  ;= bf00
        ADR.W   R2, back                ;= f2af 020c
        ADR.W   R3, fwd                 ;= f20f 0306
        ADR.W   R9, back                ;= f2af 0914
fwd
        ADR.W   R4, fwd                 ;= f2af 0402
        ADR.W   R5, back                ;= f2af 051c
