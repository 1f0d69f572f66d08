; Messages of the coprocessor instructions: operand kinds, truncated fields
; and the address forms of LDC and STC.
; RUN: %s %o -v7A8
        .text
        CDP     R1, #2, C3, C4, C5      ;! E0004 First operand must be a valid coprocessor number
        CDP     P1, 2, C3, C4, C5       ;! E0004 Coprocessor operation code must be an absolute constant
        CDP     P1, #16, C3, C4, C5     ;! W0002 Coprocessor operation code value truncated
        CDP     P1, #2, R3, C4, C5      ;! E0004 Destination operand Cd must be a coprocessor register
        CDP     P1, #2, C3, R4, C5      ;! E0004 Fourth operand, Cn, must be a coprocessor register
        CDP     P1, #2, C3, C4, R5      ;! E0004 Fifth operand, Cm, must be a coprocessor register
        CDP     P1, #2, C3, C4, C5, R6  ;! E0004 Coprocessor information field must be an absolute constant
        CDP     P1, #2, C3, C4, C5, #8  ;! W0002 Coprocessor information field value truncated
        MRC     P1, #8, R0, C1, C2      ;! W0002 Coprocessor operation code value truncated
        MCR     P1, #0, C0, C1, C2      ;! E0004 Destination operand Rd must be a register
        MRC     P1, #0, R0, R1, C2      ;! E0004 Fourth operand, Cn, must be a coprocessor register
        MCRR    P1, #16, R0, R1, C2     ;! W0002 Coprocessor operation code value truncated
        MCRR    P1, #0, R0, C1, C2      ;! E0004 Fourth operand, Rn, must be a core register
        MRRC    P1, #0, R0, R1, R2      ;! E0004 Fifth operand, Cm, must be a coprocessor register
        MRRC    P1, #0, R0, R1, C2, #1  ;! E0003 Unexpected trailing operand(s)
        LDC     P1, R2, [R3]            ;! E0004 Second operand, Cd, must be a coprocessor register
        LDC     P1, C2, R3              ;! E0004 Illegal operand
        LDC     P1, C2, [R3, R4]        ;! E0004 Illegal operand
        STC     P1, C2, [R3, #6]        ;! W0002 Offset is not on a word boundary
        STC     P1, C2, [R3, #4096]     ;! E0200 Offset out of range, must be [-4095,4095]
        STC     P1, C2, [R3, #1024]     ;! E0200 Offset out of range, must be [-1023,1023]
        LDC     P1, C2, [PC, #4]!       ;! E0004 Base register (Rn) cannot be R15 (PC) when using write-back
        LDC     P1, C2, [R3], {256}     ;! E0200 Offset out of range, must be [0,255]
        LDC     P1, C2, #1024           ;! E0200 Offset out of range, must be [-1023,1023]
        LDC     P1, C2, #2              ;! W0002 Offset not on a word boundary
        LDC     P1, C2, other           ;! E0001 Address must be defined in the current section ;! E0004 Illegal operand
        .data
other:  .word   0
