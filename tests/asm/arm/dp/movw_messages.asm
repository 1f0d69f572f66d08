; Messages of MOVW and MOVT in ARM state.
; RUN: %s %o -v7A8
        .text
        movw    r0, #0x10000            ;! E0004 Immediate cannot be greater than 16-bits
        movt    r0, #-1                 ;! E0004 Immediate cannot be greater than 16-bits
        movw    pc, #1                  ;! E0004 Specifying R15 as an operand is illegal
        movw    r0, r1                  ;! E0004 The second operand must be an immediate value or symbol
        movt    #0, #1                  ;! E0004 Destination operand Rd must be a register
