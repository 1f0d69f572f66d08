; Pass 1 counts data elements without working out their values: labels
; behind elements that name later symbols, nest parentheses, compare, use
; character and floating constants or the location counter keep the
; addresses that pass 2 gives them.
K       .equ    4
        .data
a       .word   later - a, ((1 + 2) * 3) >> 1, 'A' | 'b', -(~4), 1 != 2
b       .half   (later - a) / 4, (later - a) % 3
c       .byte   'x', 1 <= 2, later - b
d       .float  1.5, 2.5e1 * 2, -(2.0 + 1), 1.0e-1F
e       .double 3.0 / 2
f       .long   (later - f), $ - a
g       .word   K2 << 2, 0x10 ^ 0x01, 0FFh
K2      .equ    1
later   .word   0
; SYMBOL: b 00000014 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: c 00000018 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: d 0000001c 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: e 0000002c 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: f 00000034 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: g 0000003c 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: later 00000048 0 OBJECT LOCAL HIDDEN .data
; SECTION: .data: 48 00 00 00 04 00 00 00 63 00 00 00 05 00 00 00 01 00 00 00 12 00 00 00 78 01 34 00 00 00 c0 3f 00 00 48 42 00 00 40 c0 cd cc cc 3d 00 00 00 00 00 00 f8 3f 14 00 00 00 34 00 00 00 04 00 00 00 11 00 00 00 ff 00 00 00 00 00 00 00
