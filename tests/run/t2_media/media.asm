; Bit fields, bit reversal, saturation and the Q flag, byte reversal,
; extension and the multiplies, in Thumb-2.
; BUILD: -v7A8
; BUILD: -v7M4
        .text
        .thumb
        .global tm_ubfx
        .global tm_sbfx
        .global tm_bfi
        .global tm_bfc
        .global tm_rbit
        .global tm_clz
        .global tm_ssat
        .global tm_usat
        .global tm_ssat_shift
        .global tm_qadd_flag
        .global tm_rev
        .global tm_rev16
        .global tm_revsh
        .global tm_sxtb_add
        .global tm_uxth_ror
        .global tm_mls
        .global tm_mla
        .global tm_umull_hi

; bits 5..16 of a
tm_ubfx:
        UBFX    R0, R0, #5, #12
        BX      LR

; bits 3..9 of a, sign-extended
tm_sbfx:
        SBFX    R0, R0, #3, #7
        BX      LR

; the low 9 bits of b into bits 20..28 of a
tm_bfi:
        BFI     R0, R1, #20, #9
        BX      LR

; bits 4..27 of a cleared
tm_bfc:
        BFC     R0, #4, #24
        BX      LR

tm_rbit:
        RBIT    R0, R0
        BX      LR

tm_clz:
        CLZ     R0, R0
        BX      LR

; a saturated to 12 signed bits
tm_ssat:
        SSAT    R0, #12, R0
        BX      LR

; a saturated to 8 unsigned bits
tm_usat:
        USAT    R0, #8, R0
        BX      LR

; (a asr 4) saturated to 16 signed bits
tm_ssat_shift:
        SSAT    R0, #16, R0, ASR #4
        BX      LR

; 1 if the saturating sum of a and b saturated (the Q flag), else 0
tm_qadd_flag:
        MOV     R2, #0
        MSR     APSR_nzcvq, R2
        QADD    R0, R0, R1
        MRS     R2, APSR
        UBFX    R0, R2, #27, #1
        BX      LR

tm_rev:
        REV     R0, R0
        BX      LR

tm_rev16:
        REV16   R0, R0
        BX      LR

tm_revsh:
        REVSH   R0, R0
        BX      LR

; a + the low byte of b, sign-extended
tm_sxtb_add:
        SXTAB   R0, R0, R1
        BX      LR

; bits 8..23 of a, zero-extended
tm_uxth_ror:
        UXTH    R0, R0, ROR #8
        BX      LR

; c - a * b
tm_mls:
        MLS     R0, R0, R1, R2
        BX      LR

; a * b + c
tm_mla:
        MLA     R0, R0, R1, R2
        BX      LR

; the high word of a * b, unsigned
tm_umull_hi:
        UMULL   R2, R0, R0, R1
        BX      LR
