; CBZ and CBNZ reach forward only, 0 to 126 bytes, from a low register.
; RUN: %s %o -v7M3 -mt
        .text
back:   CBZ     R8, fwd         ;! E0004 Register out of range.  Must be R0-R7
        CBNZ    R0, #4          ;! E0004 Illegal label: must be a symbol
        CBZ     R1, back        ;! E0200 Offset to label must be an even number in the range 0 to 126
        CBNZ    R2, fwd
        CBZ     R3, 3           ;! E0200 Offset to label must be an even number in the range 0 to 126
        CBZ     R4, other       ;! E0001 Address must be defined in the current section
fwd:    CBZ     R5, 128         ;! E0200 Offset to label must be an even number in the range 0 to 126
        CBNZ    R6, -2          ;! E0200 Offset to label must be an even number in the range 0 to 126
        CBNZ    R7, 126
        CZB     R6, fwd2        ;! W0005 Non-UAL opcode used in UAL mode ;! E0004 The condition must be EQ or NE ;! E0200 Offset to label must be an even number in the range 0 to 126
fwd2:   .half   0
        .sect   ".text.b"
other:  .half   0
