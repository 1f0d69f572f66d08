; .symver: "@@" names the default version of a definition, "@" a version
; that a reference asks for; "@@@" picks by whether the symbol is defined.
        .data
        .global foo, bar
        .symver foo, foo@@V1
        .symver bar, bar@@@V2
        .symver loc, loc@V3
foo:    .byte   1
bar:    .byte   2
loc:    .byte   3
; SYMBOL: foo@@V1 00000000 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: bar@@V2 00000001 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: loc@V3 00000002 0 OBJECT LOCAL HIDDEN .data

; A version asked for by a reference is an undefined global of its own.
        .global ext
        .symver ext, ext@V1
; SYMBOL: ext@V1 00000000 0 NOTYPE GLOBAL HIDDEN UND
