; v6 instructions of plain Thumb and their operand checks.
; RUN: %s %o -v6
        .thumb
        rev     r8, r1                  ;! E0004 Register Rd cannot be a hi register
        revsh   r0, r9                  ;! E0004 Register Rm cannot be a hi register
        sxth    r8, r1                  ;! E0004 Destination register Rd must be a low numbered register
        uxtb    r0, r9                  ;! E0004 Registerd Rm must be a low numbered register
        uxth    r0, r1, ror #8          ;! E0004 Illegal operand
        cpsie   aif
        cpsid   ix                      ;! E0004 Illegal flag specified: x
        cpsie   aifa                    ;! E0003 Unexpected trailing operand(s).
        cpsid   #1                      ;! E0004 Invalid operand type for CPS.
        svc     #256                    ;! W0002 Comment field value truncated
        bkpt    label                   ;! E0004 Comment field value must be an absolute constant
        muls    r2, r2
label:  nop
