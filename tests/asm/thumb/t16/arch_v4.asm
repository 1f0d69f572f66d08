; What plain Thumb refuses below v6, and the forms that differ with the
; architecture: MUL with Rd = Rs.
; RUN: %s %o -v4
        .thumb
        rev     r0, r1                  ;! E0002 Instruction is only available in V6 and higher
        sxtb    r0, r1                  ;! E0002 Instruction is only available in V6 and higher
        cpy     r0, r1                  ;! E0002 Instruction is only available in V6 and higher
        bkpt    #1                      ;! E0002 Instruction is only available in V5 and higher
        muls    r2, r2                  ;! W0000 Destination register operand Rd should not be the same as operand Rs
