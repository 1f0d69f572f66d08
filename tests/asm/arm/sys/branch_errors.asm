; Operands and offsets that the ARM branches refuse.
; RUN: %s %o -v7A8
        .text
        b       r0                      ;! E0004 Operand must be a label
        bl      r1                      ;! E0004 Operand must be a label
        cret    r0                      ;! E0004 Operand must be a label
        b       {r0}                    ;! E0004 Operand must be a label
        bx      8                       ;! E0004 Operand must be a register
        bxj     label                   ;! E0004 Operand must be a register
        b       6                       ;! E0200 Destination must be on a 4 byte boundary
        b       0x2000000               ;! E0200 Offset out of range, must be [-33554432,33554431]
        bl      -0x2000004              ;! E0200 Offset out of range, must be [-33554432,33554431]
        blx     1                       ;! E0200 Destination must be on a 2 byte boundary
        blx     0x1000000               ;! E0200 Offset out of range, must be [-16777216,16777215]
        blxne   8                       ;! E0800 BLX with an immediate address must be unconditional
label:
