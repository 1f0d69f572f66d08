; Section attributes of .sect: unknown ones and ones that conflict are
; refused. A .sect of the .bss section can't make it initialised.
        .sect   "a", RW, RO     ;! E0000 Attribute RO cannot be combined with attribute RW
        .sect   "b", alloc, noalloc ;! E0000 Attribute NOALLOC cannot be combined with attribute ALLOC
        .sect   "c", EXEC       ;! E0000 Illegal section attribute EXEC is specified
        .sect   "d", RW, RW, RO ;! E0003 Unexpected trailing operand(s)
        .sect                   ;! E0005 Operand missing
        .sect   5               ;! E0004 Illegal operand
        .bss    x, 4
        .sect   ".bss"          ;! E0300 Cannot redefine this section name
        .text   junk            ;! W0000 No operands expected. Operands ignored
