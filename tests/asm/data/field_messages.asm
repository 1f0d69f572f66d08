; Messages of .field and .bits.
        .data
        .field  5, 2            ;! W0001 Value truncated to 0x01
        .field  1, 65           ;! W0001 Field width truncated to 64
        .field                  ;! E0005 Missing field value operand
        .bits   1, 2, 3         ;! E0003 Unexpected trailing operand(s)
        .bits   1, width        ;! E0004 Absolute, well-defined integer value expected
width   .set    4
