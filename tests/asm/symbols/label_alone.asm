; A label alone on its line, or several of them, name the address of the
; next statement after it aligned the section; a label at the end of the
; file names the final location.
        .text
        .byte   1
first:

second
        .word   2
last:
; SYMBOL: first 00000004 0 FUNC LOCAL HIDDEN .text
; SYMBOL: second 00000004 0 FUNC LOCAL HIDDEN .text
; SYMBOL: last 00000008 0 FUNC LOCAL HIDDEN .text
