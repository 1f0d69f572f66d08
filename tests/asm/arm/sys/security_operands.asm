; TT takes two core registers.
; RUN: %s %o -v8M33 -mt
        .text
        tt      #1, r2                  ;! E0004 Destination operand Rd must be a register
        tt      r1, #2                  ;! E0004 Operand Rn must be a register
