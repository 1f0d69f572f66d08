; Messages of the exclusives in the Thumb-2 slot, and the Cortex-R4 erratum
; of a Thumb LDC or STC based on the PC.
; RUN: %s %o -v7R4 -mt
        .text
        LDREX   R0, [R1, R2]            ;! E0004 [Rn] must be a register indirect
        LDREX   R0, [R1, #6]            ;! E0200 Immediate value must be word aligned
        LDREX   R0, [R1, #1024]         ;! E0200 Immediate value cannot be greater than 1020
        STREX   R0, R1, [R2, #-4]       ;! E0200 Immediate value cannot be greater than 1020
        LDREXB  R0, [R1, #4]            ;! E0004 [Rn] must be a register indirect
        STREX   R0, PC, [R2]            ;! E0004 Cannot use PC for Rt register operand in a STREX instruction
        STREXD  R0, R2, R2, [R1]        ;! W5369 Cortex-R4 Errata 577077: Thumb STREXD treated as NOP if same register used for both source operands
        LDC     P1, C2, [PC, #8]        ;! W5369 Cortex-R4 Errata 437965: Thumb STC/LDC instruction using base register (Rn) of R15/PC must be placed at word-aligned address; processor will not force alignment
here:   STC     P1, C2, here            ;! W5369 Cortex-R4 Errata 437965: Thumb STC/LDC instruction using base register (Rn) of R15/PC must be placed at word-aligned address; processor will not force alignment
        LDC     P1, C2, [R3, #8]
