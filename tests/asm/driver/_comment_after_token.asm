        .word   7
