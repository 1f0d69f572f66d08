; Without embedded constants every pc-relative load and preload is refused,
; a label as well as a PC base; a store of a label says so once more.
; RUN: %s %o -v7M3 --embedded_constants=off
        .text
        .thumb
here    LDR.W   R0, here                ;! E0002 PC-relative access violates disabling of embedded constants
        LDRB.W  R0, [PC, #4]            ;! E0002 PC-relative access violates disabling of embedded constants
        LDR     R0, [PC, #-4]           ;! E0002 PC-relative access violates disabling of embedded constants
        LDRD    R0, R1, here            ;! E0002 PC-relative access violates disabling of embedded constants
        LDRD    R0, R1, [PC, #8]        ;! E0002 PC-relative access violates disabling of embedded constants
        PLD     here                    ;! E0002 PC-relative access violates disabling of embedded constants
        STR.W   R0, here                ;! E0002 PC-relative access violates disabling of embedded constants ;! E0004 Illegal addressing mode for store instruction
        LDR.W   R0, [R1, #4]
