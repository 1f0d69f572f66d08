; Messages of the ARM-family classes that Thumb-2 reaches: SRS and RFE,
; SMI, UDF, the status registers, the exclusives and the coprocessors.
; RUN: %s %o -v7A8
        .text
        .thumb
        SRSIB   SP, #19                 ;! E0004 Illegal addressing mode
        SRSDA   SP!, #19                ;! E0004 Illegal addressing mode
        SRS     R0, #19                 ;! E0004 The destination must be the SP
        SRS     SP, #32                 ;! E0004 Illegal operand
        RFEIA   #4                      ;! E0004 Operand Rn must be a register
        SMI     #0x10000                ;! W0002 Comment field value truncated
        SMI     R0                      ;! E0004 Comment field value must be an absolute constant
        UDF.W   R0                      ;! E0004 Illegal operand
        UDF.W   #-1                     ;! E0200 Offset out of range, must be 16 bit immediate
        MRS     R0, SPSR_fc             ;! E0004 Invalid Operand, cannot use processor status register flags
        MRS     R0, R1                  ;! E0004 Illegal operand.
        MSR     CPSR, R0                ;! E0004 Deprecated use of PSR; flag bits not specified
        MSR     APSR_nzcvq, #4          ;! E0004 MSR immediate is only available in ARM mode
        MSR     CPSR_f, R2, R3          ;! E0003 Unexpected trailing operand(s)
        MRS     R0, PRIMASK             ;! E0004 Status register unsupported by this architecture.
        LDREX   R0, [R1, R2]            ;! E0004 [Rn] must be a register indirect
        LDREXH  R0, [R1, #2]            ;! E0004 [Rn] must be a register indirect
        STREX   R0, R0, [R1]            ;! W0000 Using Rd == Rt or Rn will lead to unpredictable results
        STREXD  R1, R2, R3, [R1]        ;! W0000 Using Rd == Rt, Rt2,  or Rn will lead to unpredictable results
        MCR     P15, #8, R0, C1, C0, #0 ;! W0002 Coprocessor operation code value truncated
        MRC     P15, #0, C0, C1, C0, #0 ;! E0004 Destination operand Rd must be a register
        MCRR    P15, #0, R0, C1, C2     ;! E0004 Fourth operand, Rn, must be a core register
        LDC     P1, C2, [R3, #1024]     ;! E0200 Offset out of range, must be [-1023,1023]
        STC2    P1, C2, [R3, #2]        ;! W0002 Offset is not on a word boundary
        LDC     P1, R2, [R3]            ;! E0004 Second operand, Cd, must be a coprocessor register
        TT      R0, R1                  ;! E0002 Instruction only available in V8M33
        SG                              ;! E0002 Instruction only available in V8M33
        DSB     #15                     ;! E0003 Unexpected trailing operand(s)
