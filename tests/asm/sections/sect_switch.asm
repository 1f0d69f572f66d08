; .text, .data and .sect: a label on a line before the switch stays in the
; old section, a label on the directive's line goes to the new one. A
; section re-entered goes on at its end; ".data" named by .sect is .data.
        .data
        .byte   1
before
in_s1   .sect   "s1"
        .byte   2
in_d    .data
        .byte   3
        .sect   "s1"
        .byte   4
        .sect   ".data"
again   .byte   5
in_t    .text
        .sect   ".text"
        .byte   6
; SECTION: .data: 01 03 05
; SECTION: s1: 02 04
; SECTION: .text: 06
; SYMBOL: before 00000001 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: in_s1 00000000 0 OBJECT LOCAL HIDDEN s1
; SYMBOL: in_d 00000001 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: again 00000002 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: in_t 00000000 0 FUNC LOCAL HIDDEN .text
