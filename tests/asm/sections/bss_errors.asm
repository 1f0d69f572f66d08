; A .bss symbol defined twice, a .usect without a label or with one that is
; already defined, and operands that are missing or wrong.
        .bss    twice, 4
        .bss    twice, 4        ;! E0300 Symbol twice has already been defined
        .usect  ".u", 4         ;! E0300 Symbol expected in label field
twice   .usect  ".u", 4         ;! E0300 Symbol twice has already been defined
        .bss    neg, -2         ;! E0004 Size of .BSS out of range: -2
        .bss                    ;! E0005 Operand missing
        .bss    3, 4            ;! E0300 Symbol expected
        .bss    nosize          ;! E0005 Operand missing
bad     .usect  ".u", -1        ;! E0004 Size of .USECT out of range: -1
