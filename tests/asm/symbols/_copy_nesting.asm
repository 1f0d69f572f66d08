; Copies itself until the copy limit stops it; every level goes on reading
; where it stood after its handle was lent to deeper levels.
        .word   1
        .copy   "_copy_nesting.asm"
        .word   2
