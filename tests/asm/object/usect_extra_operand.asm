; An operand behind the alignment of .bss or .usect is refused.
        .bss    b, 4, 4, 1      ;! E0003 Unexpected trailing operand(s)
u       .usect  ".u", 4, 4, 1   ;! E0003 Unexpected trailing operand(s)
