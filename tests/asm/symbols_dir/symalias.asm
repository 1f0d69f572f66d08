; .symalias makes both names global and records the pair for the linker.
        .data
target: .byte   1
        .symalias alias, target
alias:  .byte   2
        .symalias same, same    ;! W0000 same cannot alias to itself
; SYMBOL: target 00000000 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: alias 00000001 0 OBJECT GLOBAL HIDDEN .data
