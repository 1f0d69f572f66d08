; Messages of TBB, TBH, PLD and PLI in Thumb-2.
; RUN: %s %o -v7A8
        .text
        .thumb
        TBB     [R0]                    ;! E0004 Invalid addressing mode
        TBB     [R0, #4]                ;! E0004 Invalid addressing mode
        TBB     [R0, R1]!               ;! E0004 Invalid addressing mode
        TBB     [R0, -R1]               ;! E0004 Invalid addressing mode
        TBB     [R0, PC]                ;! E0004 Register offset (Rm) cannot be R15 (PC)
        TBH     [R0, R1]                ;! E0004 Illegal shift amount
        TBH     [R0, R1, LSL #2]        ;! E0004 Illegal shift amount
        TBH     [R0, R1, LSR #1]        ;! E0004 Illegal shift amount
        TBB     [R0, R1, LSL #1]        ;! E0004 Illegal shift amount
        PLD     [R0, #-256]             ;! E0200 Offset out of range, must be [-255,4095]
        PLI     [R0, #4096]             ;! E0200 Offset out of range, must be [-255,4095]
        PLD     [R0, R1, ASR #1]        ;! E0004 Illegal shift type
        PLD     [R0, R1, LSL #4]        ;! E0004 Illegal shift value: Must be between 0 and 3
        PLD     [R0, -R1]               ;! E0004 Invalid addressing mode
        PLD     [R0], #4                ;! E0004 Illegal operand
        PLI     R0                      ;! E0004 Illegal operand
        PLD     other                   ;! E0001 Address must be defined in the current section ;! E0004 Illegal operand
        .data
other   .word   0
