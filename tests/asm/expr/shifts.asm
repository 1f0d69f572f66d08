; Shift counts are whole 128-bit values: a count beyond 32 bits is never
; cut to its low bits, and a negative one shifts the other way.
        .data
        .word   1 << -2147483648                ; far right: nothing left
        .word   1 << 4294967297                 ;! W0001 Value out of range
        .word   1 << 4294967296                 ;! W0001 Value out of range
        .word   -8 >> 0x100000002               ; all sign
        .word   256 >> -2147483649              ;! W0001 Value out of range
        .word   16 >> -2, 16 << -2, -16 << -2
        .word   (1 << 2) << 3, 1 << 0xffffffff  ;! W0001 Value out of range
        .word   -1 >> 0x7fffffffffffffffffffffffffffffff, 5 << -0x80000000000000000000000000000000
        .word   -0x80000000000000000000000000000000 / -1, -0x80000000000000000000000000000000 % -1 ;! W0001 Constant value out of range, will be truncated to 32 bits
; SECTION: .data: 00 00 00 00 00 00 00 00 00 00 00 00 ff ff ff ff 00 00 00 00 40 00 00 00 04 00 00 00 fc ff ff ff 20 00 00 00 00 00 00 00 ff ff ff ff 00 00 00 00 00 00 00 00 00 00 00 00
