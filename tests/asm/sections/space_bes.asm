; .space and .bes reserve zeros; a label on .space names the first reserved
; byte, one on .bes the last one when the block ends on a word boundary, and
; otherwise the next free byte.
        .data
sz1:     .space  3
sz0:     .space  0
        .byte   0ffh
b4:     .bes    4
b1:     .bes    1
        .byte   0eeh
        .align  4
w4:     .bes    4
        .byte   1
sz9:     .space  9               ; from inside a word, over a whole one
        .byte   0ddh
b9:     .bes    9
        .byte   0cch
; SECTION: .data: 00 00 00 ff 00 00 00 00 00 ee 00 00 00 00 00 00 01 00 00 00 00 00 00 00 00 00 dd 00 00 00 00 00 00 00 00 00 cc
; SYMBOL: sz1 00000000 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: sz0 00000003 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: b4 00000007 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: b1 00000009 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: w4 0000000f 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: sz9 00000011 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: b9 00000023 0 OBJECT LOCAL HIDDEN .data
