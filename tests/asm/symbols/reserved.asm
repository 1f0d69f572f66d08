; An escaped name beside a register is a user symbol of that name.
        .text
base:
||r0||: .word   1
        .word   ||r0|| - base
; SYMBOL: r0 00000000 0 FUNC LOCAL HIDDEN .text
