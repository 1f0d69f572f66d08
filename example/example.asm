; A small data-only module: a lookup table, a message and some workspace.

        .global table, message, count
        .data
table:  .word   1, 2, 4, 8, 16, 32, 64, 128
        .half   0x1234, -1
        .byte   'A', 'B', 0
        .align  4
message:
        .string "Hello from zqasm", 10
        .cstring "with escapes\t\n"
        .float  1.5
        .double -2.25

        .bss    count, 4, 4
scratch .usect  ".scratch", 64, 8
SIZE    .equ    $ - table
