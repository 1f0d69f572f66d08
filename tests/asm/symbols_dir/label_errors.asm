; A load-time label can be defined once, and not as another kind of symbol.
        .data
lab:    .byte   1
        .label  lab             ;! E0900 Invalid load-time label
        .label  ld
        .label  ld              ;! E0900 Invalid load-time label
        .label                  ;! E0005 Operand missing
