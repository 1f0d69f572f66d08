; Faults of .common: a label on it, a symbol defined before, and alignments
; that aren't powers of two or exceed 32K (the directive goes on).
lab     .common com1, 4           ;! E0300 Label not allowed on this directive.
        .common com1, 4           ;! E0300 Symbol has already been defined.
def:    .word   1
        .common def, 4          ;! E0300 Symbol has already been defined.
        .common com2, 4, 3        ;! E1400 Alignment must be a power of two; found 3
        .common com3, 4, 65536    ;! E1400 Maximum alignment allowed is to 32K boundary; found 65536
