; Messages of LDR and STR: the size letters, the doubleword registers, the
; address forms and their ranges. A W id given as an error stops the object.
; RUN: %s %o -v7A8
        .text
here:   LDRD    R0, R2, [R3]            ;! E0004 DST registers must be consecutive
        LDRD    R1, R2, [R3]            ;! E0004 Destination must be even-numbered register && not R14
        LDRD    R14, [R3]               ;! E0004 Destination must be even-numbered register && not R14
        LDR     R0, R1, [R2]            ;! E0004 Illegal operand
        LDR     R0, R1                  ;! E0004 Illegal operand
        LDR     #1, [R1]                ;! E0004 Destination operand Rd must be a register
        LDRT    R0, [R1, #4]            ;! W0004 Post write back 'T' ignored
        LDRHT   R0, [R1], #4            ;! W0004 Post write back 'T' ignored
        LDRBH   R0, [R1]                ;! W0004 Conflict in transfer size, halfword assumed
        LDR     R1, [R1, #4]!           ;! W0000 Specifying the same register with write back in source and destination leads to unpredictable results
        LDRB    R1, [R1], R2            ;! W0000 Specifying the same register with write back in source and destination leads to unpredictable results
        STR     R1, [R1, #4]!
        LDR     R0, [R1]!               ;! W0000 Operand modifiers ignored
        LDR     R0, [R1, #4096]         ;! E0200 Offset out of range, must be [-4095,4095]
        STRB    R0, [R1], #-4096        ;! E0200 Offset out of range, must be [-4095,4095]
        LDRH    R0, [R1, #256]          ;! E0200 Offset out of range, must be [-255,255]
        LDRD    R0, [R1], #-256         ;! E0200 Offset out of range, must be [-255,255]
        LDR     R0, [PC, #4]!           ;! E0004 Base register (Rn) cannot be R15 (PC) when using write-back
        STRH    R0, [PC], #2            ;! E0004 Base register (Rn) cannot be R15 (PC) when using write-back
        LDR     R0, [R1], R1            ;! E0004 Base register (Rn) and shifted register (Rm) cannot be the same
        LDRSH   R0, [R1, R2, LSL #1]    ;! W0000 Shift amount ignored
        LDR     R0, other               ;! E0001 Address must be defined in the current section ;! E0004 Illegal operand
        LDRH    R0, other               ;! E0001 Address must be defined in the current section ;! E0004 Illegal operand
        LDR     R0, #4096               ;! E0200 Offset out of range, must be [-4095,4095]
        LDRSB   R0, far                 ;! E0200 Offset out of range, must be [-255,255]
        .space  300
far:    .word   0
        .data
other:  .word   0
