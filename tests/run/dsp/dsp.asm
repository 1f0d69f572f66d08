; The DSP additions: halfword multiplies, saturating arithmetic and the Q
; flag, CLZ, doubleword loads and stores.
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global dsp_smulbb
        .global dsp_smulbt
        .global dsp_smultb
        .global dsp_smultt
        .global dsp_smulwb
        .global dsp_smulwt
        .global dsp_smlabb
        .global dsp_smlatt
        .global dsp_smlawb
        .global dsp_smlalbt
        .global dsp_qadd
        .global dsp_qsub
        .global dsp_qdadd
        .global dsp_qdsub
        .global dsp_q_after_qadd
        .global dsp_clz
        .global dsp_ldrd_strd

dsp_smulbb:
        SMULBB  R0, R0, R1
        BX      LR

dsp_smulbt:
        SMULBT  R0, R0, R1
        BX      LR

dsp_smultb:
        SMULTB  R0, R0, R1
        BX      LR

dsp_smultt:
        SMULTT  R0, R0, R1
        BX      LR

dsp_smulwb:
        SMULWB  R0, R0, R1
        BX      LR

dsp_smulwt:
        SMULWT  R0, R0, R1
        BX      LR

; the accumulator is c
dsp_smlabb:
        SMLABB  R0, R0, R1, R2
        BX      LR

dsp_smlatt:
        SMLATT  R0, R0, R1, R2
        BX      LR

dsp_smlawb:
        SMLAWB  R0, R0, R1, R2
        BX      LR

; bottom of a times top of b added to the 64-bit d:c
dsp_smlalbt:
        SMLALBT R2, R3, R0, R1
        MOV     R0, R2
        MOV     R1, R3
        BX      LR

dsp_qadd:
        QADD    R0, R0, R1
        BX      LR

dsp_qsub:
        QSUB    R0, R0, R1
        BX      LR

; a + saturated 2b
dsp_qdadd:
        QDADD   R0, R0, R1
        BX      LR

dsp_qdsub:
        QDSUB   R0, R0, R1
        BX      LR

; the Q flag after a saturating add, cleared first
dsp_q_after_qadd:
        MSR     CPSR_f, #0
        QADD    R2, R0, R1
        MRS     R0, CPSR
        AND     R0, R0, #0x08000000
        BX      LR

dsp_clz:
        CLZ     R0, R0
        BX      LR

; dsp_ldrd_strd(p, out): doublewords in the offset, pre- and post-indexed
; forms, by immediate and register; returns the final base minus p
dsp_ldrd_strd:
        PUSH    {R4, R5}
        PLD     [R0]
        LDRD    R2, R3, [R0]                    ; p[0], p[1]
        STRD    R2, R3, [R1], #8
        LDRD    R2, R3, [R0, #16]               ; p[4], p[5]
        STRD    R2, R3, [R1, #8]!
        MOV     R12, #24
        LDRD    R4, R5, [R0, R12]               ; p[6], p[7]
        STRD    R4, R5, [R1, #8]!
        ADD     R12, R0, #32                    ; q = p + 8
        LDRD    R2, R3, [R12, #-8]              ; p[6], p[7]
        ADD     R1, R1, #8
        STRD    R2, R3, [R1]
        MOV     R4, #8
        LDRD    R2, R3, [R12, -R4]!             ; p[6], p[7], q = p + 6
        STRD    R2, R3, [R1, R4]!
        LDRD    R2, R3, [R12], #16              ; p[6], p[7], q = p + 10
        STRD    R2, R3, [R1, #8]!
        LDRD    R2, R3, [R12], -R4              ; p[10], p[11], q = p + 8
        STRD    R2, R3, [R1, #8]
        SUB     R0, R12, R0
        POP     {R4, R5}
        BX      LR
