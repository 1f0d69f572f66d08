; .align counts bytes: no operand means 4, a count that isn't a power of 2
; is rounded up, and from 64K on the directive is ignored. The gap is filled
; with the ARM pattern 0x01A00000 a word at a time, and a label on the line
; names the aligned address.
        .data
        .byte   1
        .align  3               ;! W0001 Power of 2 required, 4 assumed
        .byte   2
        .align
        .byte   3
        .align  0               ;! W0001 Power of 2 required, 1 assumed
        .byte   4
lbl:    .align  16
        .byte   5
        .align  65536           ;! W0001 Maximum alignment is to 32K boundary - alignment ignored
after:  .byte   6
        .align  -8              ;! W0001 Power of 2 required, 1 assumed
; SECTION: .data: 01 00 00 a0 02 00 00 a0 03 04 00 00 a0 01 00 00 05 06
; SYMBOL: lbl 00000010 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: after 00000011 0 OBJECT LOCAL HIDDEN .data

; 32K is the largest alignment that is carried out.
        .sect   "big"
        .byte   1
        .align  32768
big_end .byte   2
; SYMBOL: big_end 00008000 0 OBJECT LOCAL HIDDEN big
