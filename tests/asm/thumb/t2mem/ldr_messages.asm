; Messages of the Thumb-2 single transfers: offset ranges of the long and
; short forms, register offsets, PC as the register, the T forms, LDRD.
; RUN: %s %o -v7A8
        .text
        .thumb
        LDR.W   R0, [R1, #4096]         ;! E0200 Offset out of range, must be [-255,4095]
        LDR     R0, [R1, #-256]         ;! E0200 Offset out of range, must be [-255,4095]
        LDR     R0, [R1], #256          ;! E0200 Offset out of range, must be [-255,255]
        STRB    R0, [R1, #256]!         ;! E0200 Offset out of range, must be [-255,255]
        LDR.W   R0, [R1, R2, LSR #1]    ;! E0004 Illegal shift type
        LDR.W   R0, [R1, R2, LSL #4]    ;! E0004 Illegal shift amount
        LDR.W   R0, [R1, -R2]           ;! E0004 Invalid addressing mode
        LDR.W   R0, [R1, R2]!           ;! E0004 Invalid addressing mode
        LDR.W   R0, [R1], R2            ;! E0004 Invalid addressing mode
        LDR.W   R0, [PC, R1]            ;! E0004 Specifying R15 as an operand is illegal
        LDR.W   R0, R1                  ;! E0004 Invalid addressing mode
        STR.W   PC, [R0]                ;! E0004 Specifying R15 as an operand is illegal
        LDR     PC, [R0, #4]!           ;! E0004 Specifying R15 as an operand is illegal
        LDR     R0, [R0, #4]!           ;! W0000 Specifying the same register with write back in source and destination leads to unpredictable results
        LDR     R0, [PC, #-4]!          ;! E0004 Base register (Rn) cannot be R15 (PC) when using write-back
        STR.W   R0, there               ;! E0004 Illegal addressing mode for store instruction
        STRH.W  R0, #8                  ;! E0004 Illegal addressing mode for store instruction
        LDR.W   R0, other               ;! E0001 Address must be defined in the current section ;! E0004 Illegal operand
        LDR.W   R0, far                 ;! E0200 Offset out of range, must be [-4095,4095]
        LDR.W   #4, [R0]                ;! E0004 Destination operand Rd must be a register
        LDRT    R0, [R1, #-4]           ;! E0200 Offset out of range, must be [0,255]
        LDRBT   R0, [R1, #256]          ;! E0200 Offset out of range, must be [0,255]
        STRT    R0, [R1], #4            ;! E0004 Invalid addressing mode
        LDRHT   R0, [R1, #4]!           ;! E0004 Invalid addressing mode
        LDRT    R0, [R1, R2]            ;! E0004 Invalid addressing mode
        LDRT    R0, there               ;! E0004 Invalid addressing mode
        LDRD    R0, R1, [R2, #1024]     ;! E0200 Offset out of range, must be [-1020,1020]
        LDRD    R0, R1, [R2, #2]        ;! E0200 Offset must be word aligned
        LDRD    R0, #4, [R2]            ;! E0004 Operand Rt2 must be a register
        LDRD    R0, R1, [R2, R3]        ;! E0004 Invalid addressing mode
        STRD    R0, R1, there           ;! E0004 Illegal addressing mode for store instruction
        STRD    R0, R1, [R2], #-1024    ;! E0200 Offset out of range, must be [-1020,1020]
        LDRD    R0, R1, [PC, #8]!       ;! E0004 Base register (Rn) cannot be R15 (PC) when using write-back
there
        .space  4096
far     .word   0
        .data
other   .word   0
