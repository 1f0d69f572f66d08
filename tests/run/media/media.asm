; The media instructions: byte reversal, saturation, extension, packing,
; parallel arithmetic and the GE flags, dual and most-significant multiplies,
; UMAAL and the exclusive loads and stores. Each takes a, b, c in R0-R2.
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global med_rev
        .global med_rev16
        .global med_revsh
        .global med_ssat
        .global med_ssat_lsl
        .global med_usat
        .global med_usat_asr
        .global med_ssat16
        .global med_usat16
        .global med_sxtb
        .global med_sxth_ror
        .global med_uxtb_ror
        .global med_uxth
        .global med_sxtab
        .global med_uxtah_ror
        .global med_uxtb16
        .global med_pkhbt
        .global med_pkhtb
        .global med_uadd8
        .global med_sadd16
        .global med_usub16
        .global med_qadd8
        .global med_qsub16
        .global med_uhadd8
        .global med_shsub16
        .global med_usad8
        .global med_usada8
        .global med_smuad
        .global med_smusdx
        .global med_smlad
        .global med_smmul
        .global med_smmulr
        .global med_smmla
        .global med_sel_after_usub8
        .global med_ge_after_sadd16
        .global med_umaal
        .global med_ldrex_strex

med_rev:
        REV     R0, R0
        BX      LR

med_rev16:
        REV16   R0, R0
        BX      LR

med_revsh:
        REVSH   R0, R0
        BX      LR

med_ssat:
        SSAT    R0, #9, R0
        BX      LR

med_ssat_lsl:
        SSAT    R0, #16, R0, LSL #4
        BX      LR

med_usat:
        USAT    R0, #8, R0
        BX      LR

med_usat_asr:
        USAT    R0, #31, R0, ASR #3
        BX      LR

med_ssat16:
        SSAT16  R0, #5, R0
        BX      LR

med_usat16:
        USAT16  R0, #7, R0
        BX      LR

med_sxtb:
        SXTB    R0, R0
        BX      LR

med_sxth_ror:
        SXTH    R0, R0, ROR #8
        BX      LR

med_uxtb_ror:
        UXTB    R0, R0, ROR #24
        BX      LR

med_uxth:
        UXTH    R0, R0
        BX      LR

med_sxtab:
        SXTAB   R0, R0, R1
        BX      LR

med_uxtah_ror:
        UXTAH   R0, R0, R1, ROR #16
        BX      LR

med_uxtb16:
        UXTB16  R0, R0
        BX      LR

med_pkhbt:
        PKHBT   R0, R0, R1, LSL #8
        BX      LR

med_pkhtb:
        PKHTB   R0, R0, R1, ASR #12
        BX      LR

med_uadd8:
        UADD8   R0, R0, R1
        BX      LR

med_sadd16:
        SADD16  R0, R0, R1
        BX      LR

med_usub16:
        USUB16  R0, R0, R1
        BX      LR

med_qadd8:
        QADD8   R0, R0, R1
        BX      LR

med_qsub16:
        QSUB16  R0, R0, R1
        BX      LR

med_uhadd8:
        UHADD8  R0, R0, R1
        BX      LR

med_shsub16:
        SHSUB16 R0, R0, R1
        BX      LR

med_usad8:
        USAD8   R0, R0, R1
        BX      LR

med_usada8:
        USADA8  R0, R0, R1, R2
        BX      LR

med_smuad:
        SMUAD   R0, R0, R1
        BX      LR

med_smusdx:
        SMUSDX  R0, R0, R1
        BX      LR

med_smlad:
        SMLAD   R0, R0, R1, R2
        BX      LR

med_smmul:
        SMMUL   R0, R0, R1
        BX      LR

med_smmulr:
        SMMULR  R0, R0, R1
        BX      LR

med_smmla:
        SMMLA   R0, R0, R1, R2
        BX      LR

; bytes of a where a >= b unsigned, else of b
med_sel_after_usub8:
        USUB8   R2, R0, R1
        SEL     R0, R0, R1
        BX      LR

; the GE flags of a signed halfword add, in bits 16-19
med_ge_after_sadd16:
        SADD16  R2, R0, R1
        MRS     R0, CPSR
        AND     R0, R0, #0x000F0000
        BX      LR

; a * b + c + d as 64 bits
med_umaal:
        UMAAL   R2, R3, R0, R1
        MOV     R0, R2
        MOV     R1, R3
        BX      LR

; med_ldrex_strex(p, v): *p + v stored back exclusively; returns the old
; value plus 0x100 times the status of the store
med_ldrex_strex:
        LDREX   R2, [R0]
        ADD     R3, R2, R1
        STREX   R12, R3, [R0]
        ADD     R0, R2, R12, LSL #8
        BX      LR
