; Thirty-one nested copies, more than the system handles the assembler
; keeps open: each file reads on after the deeper ones, and the next copy
; reaches the limit of 32 files.
        .data
        .copy   "_copy_nesting.asm" ;! @_copy_nesting.asm:4 E1300 Copy limit has been reached
        .word   3
