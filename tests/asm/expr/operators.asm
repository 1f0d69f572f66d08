; Integer operators in data: precedence, left association, truncating
; division, arithmetic shifts, comparisons and unary operators.
        .data
        .word   1 + 2 * 3, 1 << 2 + 1, 1 | 2 ^ 3, 8 / 2 / 2, 2 * (3 + 4)
        .word   -7 / 2, -7 % 2, 7 % -2, -1 >> 1, -16 >> 2, 1 << -1
        .word   1 = 1, 1 == 2, 2 != 3, 3 < 2, 3 <= 3, -1 > 0, 0 >= 0
        .word   !0, !5, ~0, -(-3), +4, ~~5, 5 & 3, 5 | 3, 5 ^ 3
        .word   1 << 31, 1 << 128 ; a shift by 128 drops every bit silently
        .word   1 << 129        ;! W0001 Value out of range
        .word   'AB'
; 128-bit wrap and the saturated product are cut to the word
        .word   0x7fffffffffffffffffffffffffffffff + 1    ;! W0001 Constant value out of range, will be truncated to 32 bits
        .word   0x10000000000000000 * 0x10000000000000000 ;! W0001 Constant value out of range, will be truncated to 32 bits
        .word   -0x10000000000000000 * 0x10000000000000000 ;! W0001 Constant value out of range, will be truncated to 32 bits
; SECTION: .data: 07 00 00 00 08 00 00 00 01 00 00 00 02 00 00 00 0e 00 00 00 fd ff ff ff ff ff ff ff 01 00 00 00 ff ff ff ff fc ff ff ff 00 00 00 00 01 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 01 00 00 00 01 00 00 00 00 00 00 00 ff ff ff ff 03 00 00 00 04 00 00 00 05 00 00 00 01 00 00 00 07 00 00 00 06 00 00 00 00 00 00 80 00 00 00 00 00 00 00 00 41 42 00 00 00 00 00 00 ff ff ff ff 00 00 00 00
