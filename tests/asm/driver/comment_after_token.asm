; A comment that touches the token in front of it still ends the statement:
; behind an operator, a parenthesis, a pair of operator characters or an
; unquoted file name, the next line is a statement of its own.
        .data
        .word   (1);one
        .word   2 >>1;two
        .half   3 <<1;three
        .byte   4, 1 + 2 >= 3;four
        .copy   _comment_after_token.asm;copied
        .word   5
; SECTION: .data: 01 00 00 00 01 00 00 00 06 00 04 01 07 00 00 00 05 00 00 00
