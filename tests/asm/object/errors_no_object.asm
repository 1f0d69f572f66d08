; A source with errors writes no object at all.
; NOFILE: errors_no_object.obj
        .data
good:   .word   1
        .word   1,,2            ;! E0005 Operand missing
        .byte   good            ;! E0004 Invalid data size for relocation
