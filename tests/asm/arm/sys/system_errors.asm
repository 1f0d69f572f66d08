; Operands that CPS, RFE and SRS refuse.
; RUN: %s %o -v7A8
        .text
        cpsie   aix                     ;! E0004 Illegal flag specified: x
        cpsid   aifa                    ;! E0003 Unexpected trailing operand(s).
        cpsie   #1                      ;! E0004 Invalid operand type for CPS.
        cps     #32                     ;! E0004 Illegal operand
        cpsie   i, #-1                  ;! E0004 Illegal operand
        rfeia   #0                      ;! E0004 Operand Rn must be a register
        srsia   r0, #0x13               ;! E0004 The destination must be the SP
        srsia   sp, #0x20               ;! E0004 Illegal operand
        .thumb
        srsib   sp, #0x13               ;! E0004 Illegal addressing mode
        srsda   sp, #0x13               ;! E0004 Illegal addressing mode
