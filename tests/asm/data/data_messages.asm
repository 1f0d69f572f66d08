; Bad elements of data directives: each is reported and left out.
        .data
        .word   1,,2            ;! E0005 Operand missing
        .half   ,2              ;! E0005 Operand missing
        .byte   1.5             ;! E0201 Illegal floating-point expression
        .cstring 1, "a"         ;! E0004 Invalid string
        .cstring "b\"           ;! E0000 Invalid .cstring format
        .byte   ext             ;! E0004 Invalid data size for relocation
; EOF! E0300
