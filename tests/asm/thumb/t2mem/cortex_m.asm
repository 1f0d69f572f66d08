; What M-profile cores refuse in Thumb-2: the 32-bit CPS forms and the A
; flag, the exception returns and SMI, the doubleword exclusives, the
; A-profile status registers, and the v8-M security instructions before v8-M.
; RUN: %s %o -v7M3
        .text
        .thumb
        CPSIE.W i                       ;! E0004 This CPS form is illegal in the Cortex-M.
        CPSID.W a                       ;! E0004 This CPS form is illegal in the Cortex-M. ;! E0004 'A' flag invalid for Cortex M.
        CPSIE   i, #16                  ;! E0004 This CPS form is illegal in the Cortex-M.
        CPS     #16                     ;! E0002 Illegal Cortex-M instruction/directive
        MRS     R0, CPSR                ;! E0004 Status register unsupported by this architecture.
        MSR     SPSR_fc, R0             ;! E0004 Status register unsupported by this architecture.
        MSR     PRIMASK, #1             ;! E0004 MSR immediate is only available in ARM mode
        MSR     APSR_nzg, R0            ;! E0004 Illegal APSR field bit mask
        MRS     PC, PRIMASK             ;! W0000 R15 should not be used as a destination operand
        MSR     APSR_nzcvq, PC          ;! W0000 R15 should not be used as an operand
        RFEIA   R0                      ;! E0002 Illegal Cortex-M instruction/directive
        SRSDB   SP!, #19                ;! E0002 Illegal Cortex-M instruction/directive
        SMI     #1                      ;! E0002 Illegal Cortex-M instruction/directive
        LDREXD  R0, R1, [R2]            ;! E0002 Illegal Cortex-M instruction/directive
        STREXD  R0, R2, R3, [R4]        ;! E0002 Illegal Cortex-M instruction/directive
        SG                              ;! E0002 Instruction only available in V8M33
        TT      R0, R1                  ;! E0002 Instruction only available in V8M33
        TTAT    R0, R1                  ;! W0004 Invalid instruction modifier(s) ignored ;! E0002 Instruction only available in V8M33
        UDF.W   #65536                  ;! E0200 Offset out of range, must be 16 bit immediate
