; A label on a data directive names the aligned element, not the padding; a
; label on a line of its own, or on a data directive without operands, waits
; for the next statement.
        .data
b       .byte   1
w       .word   2
h       .half   3
l       .byte
        .word
        .long   4
        .word   h - b, l - w
; SECTION: .data: 01 00 00 a0 02 00 00 00 03 00 00 00 04 00 00 00 08 00 00 00 08 00 00 00
