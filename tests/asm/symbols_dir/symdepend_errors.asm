; .symdepend names a symbol or section that must exist.
        .data
        .symdepend nothing              ;! E0300 Symbol nothing not defined
        .symdepend .data, nowhere       ;! E0300 Symbol nowhere not defined
        .symdepend                      ;! E0005 Operand missing
