; .elfsym sets the size of a symbol in the object, before or after its
; definition.
        .data
        .elfsym before, SYM_SIZE(4)
before: .word   1
after:  .byte   2
        .elfsym after, SYM_SIZE(1), SYM_PRESERVE(1)
; SYMBOL: before 00000000 4 OBJECT LOCAL HIDDEN .data
; SYMBOL: after 00000004 1 OBJECT LOCAL HIDDEN .data
