; ADR reaches only labels of its own section, by a rotated immediate.
; RUN: %s %o -v7A8
        .text
        adr     r0, #0x101              ;! E0200 Offset out of range
        adr     r1, there               ;! E0001 Address must be defined in the current section
        adr     r2, 8                   ;! E0001 Address must be defined in the current section
        adr     #1, here                ;! E0004 Destination operand Rd must be a register
here:
        .data
there:  .word   0
