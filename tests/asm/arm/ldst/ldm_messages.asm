; Messages of LDM and STM on v7: the base, the list, write-back with '^',
; and the base in the list.
; RUN: %s %o -v7A8
        .text
        LDM     #1, {R1}                ;! E0004 Base operand Rn must be a register
        LDM     PC, {R1}                ;! E0004 Base register (Rn) cannot be R15 (PC)
        LDM     R0^, {R1}               ;! W0000 Invalid operand modifiers ignored
        LDM     R0, R1                  ;! E0004 Register list required
        STM     R0!, {R1}^              ;! E0004 Cannot specify both base write-back and S bit for this instruction
        LDM     R0!, {R1}^              ;! E0004 Cannot specify both base write-back and S bit for this instruction
        LDM     R0!, {R1, PC}^
        LDM     R0!, {R0, R1}           ;! E0004 For ARM mode v7 or higher, the register list must not contain the base register Rn if writeback is specified
        LDM     R0, {R0, R1}
        STM     R1!, {R0, R1}           ;! W0000 If Rn is not the lowest register in the list, the value stored in Rn is unkown
        STM     R0!, {R0, R1}
        SWP     #1, R1, [R2]            ;! E0004 Destination operand Rd must be a register
        SWP     R0, #1, [R2]            ;! E0004 Second operand, Rm, must be a register
        SWP     R0, R1, [R2, #4]        ;! E0004 Third operand, [Rn], must be an register indirect
        SWP     R0, R1, R2              ;! E0004 Third operand, [Rn], must be an register indirect
        SWP     PC, R1, [R2]            ;! E0004 R15 is an invalid operand
        SWPB    R0, R1, [PC]            ;! E0004 R15 is an invalid operand
