; Integer data of each size, with the alignment that each size asks for and
; the fill of the gaps in ARM state.
        .data
        .byte   1, -1, 255
        .word   0x12345678
        .byte   2
        .half   0x1234, -2
        .ubyte  3
        .uhalf  4
        .short  5
        .ushort 6
        .char   7
        .uchar  8
        .int    -1
        .uint   9
        .uword  10
        .long   0x01020304
        .ulong  11
; SECTION: .data: 01 ff ff 00 78 56 34 12 02 00 34 12 fe ff 03 00 04 00 05 00 06 00 07 08 ff ff ff ff 09 00 00 00 0a 00 00 00 04 03 02 01 0b 00 00 00
