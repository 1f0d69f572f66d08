; Every directive of the .global family makes its symbols global; each
; gives its own binding, visibility or type. The default visibility of a
; global symbol is hidden.
        .data
        .global g
        .weak   w
        .tls    t
        .protected p
        .hidden h
        .export e
        .def    d
        .system s
g:      .byte   1
w:      .byte   2
t:      .byte   3
p:      .byte   4
h:      .byte   5
e:      .byte   6
d:      .byte   7
s:      .byte   8
; SYMBOL: g 00000000 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: w 00000001 0 OBJECT WEAK HIDDEN .data
; SYMBOL: t 00000002 0 TLS GLOBAL HIDDEN .data
; SYMBOL: p 00000003 0 OBJECT GLOBAL PROTECTED .data
; SYMBOL: h 00000004 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: e 00000005 0 OBJECT GLOBAL DEFAULT .data
; SYMBOL: d 00000006 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: s 00000007 0 OBJECT GLOBAL HIDDEN .data

; Externals: an unused .global stays out of the object, .ref and .import
; put the symbol in all the same.
        .global unused
        .ref    r
        .import i
; SYMBOL: r 00000000 0 NOTYPE GLOBAL HIDDEN UND
; SYMBOL: i 00000000 0 NOTYPE GLOBAL DEFAULT UND
