; .align reads its count as a signed 32-bit number; field widths are read in full,
; and a negative width is refused in both passes alike.
        .data
        .byte   1
        .align  0x100000004     ; the low 32 bits: 4
        .align  0x80000000      ;! W0001 Power of 2 required, 1 assumed
        .align  0x40000001      ;! W0001 Power of 2 required, -2147483648 assumed ;! W0001 Maximum alignment is to 32K boundary - alignment ignored
        .align  -8              ;! W0001 Power of 2 required, 1 assumed
        .field  1, -1           ;! E0004 .field width must not be negative; found -1
        .bits   1, -3           ;! E0004 .bits width must not be negative; found -3
        .field  1, 0x100000020  ;! W0001 Field width truncated to 64
        .byte   2
