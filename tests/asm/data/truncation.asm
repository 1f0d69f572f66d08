; Elements out of range warn and are cut to the directive's size; the range
; of a size of N bits runs from -(2^(N-1)) to 2^N - 1.
        .data
        .byte   -128, 255
        .byte   256             ;! W0001 Constant value out of range, will be truncated to 8 bits
        .half   0x12345         ;! W0001 Constant value out of range, will be truncated to 16 bits
        .word   0x100000001     ;! W0001 Constant value out of range, will be truncated to 32 bits
; SECTION: .data: 80 ff 00 00 45 23 00 00 01 00 00 00
