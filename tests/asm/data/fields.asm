; .field keeps a field within a 32-bit word, .bits does not; a byte-aligning
; directive closes a partial byte.
        .data
        .field  1, 20
        .field  1, 20
        .bits   1, 20
        .bits   1, 20
        .byte   0xee
        .field  0x12345678
        .bits   1, 3
        .byte   0xaa
; SECTION: .data: 01 00 00 00 01 00 10 00 00 01 00 00 ee 00 00 00 78 56 34 12 01 aa
