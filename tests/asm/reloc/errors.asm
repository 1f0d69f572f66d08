; What an ELF relocation can't express is refused.
        .global ext
        .data
dst:    .word   ext * 2        ;! E0200 Unable to resolve this relocatable expression; relocation support for arbitrary expressions is not available in the QMX800 EABI
        .word   lab1 - dst      ;! E0200 Unable to resolve this relocatable expression; relocation support for arbitrary expressions is not available in the QMX800 EABI
        .byte   ext             ;! E0004 Invalid data size for relocation
        .sect   ".other"
lab1:   .word   0
lab2:   .word   0
cx      .set    ext * 2         ;! E0003 .set/equ value cannot be a complex relocation expression
; An instruction's message stands at its own line, though the parser has
; already read the next one.
        .text
        b       ext * 2         ;! E0200 Unable to resolve this relocatable expression; relocation support for arbitrary expressions is not available in the QMX800 EABI
        nop
