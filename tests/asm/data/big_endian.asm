; Big-endian data: values keep their order, bit fields fill from the top.
; RUN: %s %o --endian=big
        .data
        .byte   1
        .half   0x1234
        .word   0x12345678
        .long   0xa1b2c3d4
        .field  5, 3
        .field  1, 1
        .bits   0xfff, 12
        .byte   "xy"
        .stream 200
; SECTION: .data: 01 00 12 34 12 34 56 78 a1 b2 c3 d4 bf ff 78 79 c8 01
