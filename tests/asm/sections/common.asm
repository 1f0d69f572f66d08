; .common makes common symbols: the value is the alignment, 1 by default.
        .global gc
        .common gc, 16, 8
        .common lc, 3
        .text
        .word   1
; SYMBOL: gc 00000008 16 COMMON GLOBAL HIDDEN COM
; SYMBOL: lc 00000001 3 COMMON LOCAL HIDDEN COM
