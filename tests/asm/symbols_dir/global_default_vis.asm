; --visibility changes the default visibility of global symbols.
; RUN: --visibility=default %s %o
        .data
        .global g
g:      .byte   1
; SYMBOL: g 00000000 0 OBJECT GLOBAL DEFAULT .data
