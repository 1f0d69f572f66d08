; Below v5E there is no BLX: LX is no suffix there, so L is the coprocessor
; letter that B doesn't take, X is left over, and B takes no register.
; RUN: %s %o -v4
        .text
        blx     r1                      ;! W0004 Invalid instruction modifier(s) ignored ;! W0004 Invalid instruction modifier(s) ignored ;! E0004 Operand must be a label
        bl      8
        bx      r0
