; .equ and .set name the value of an expression; a symbol set from labels
; is relative to their section, one used before its line has its value in
; pass 2.
        .data
        .byte   early
a:      .byte   1, 2, 3
b:
early   .set    2
K       .equ    10h
D       .set    b - a
L       .set    b
F       .set    1.5
; SECTION: .data: 02 01 02 03
; SYMBOL: early 00000002 0 NOTYPE LOCAL HIDDEN ABS
; SYMBOL: K 00000010 0 NOTYPE LOCAL HIDDEN ABS
; SYMBOL: D 00000003 0 NOTYPE LOCAL HIDDEN ABS
; SYMBOL: L 00000004 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: F 3fc00000 0 NOTYPE LOCAL HIDDEN ABS
