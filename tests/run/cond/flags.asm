; The flags read back by MRS after arithmetic, written by MSR, and
; conditional returns, moves, loads and stores.
        .text
        .global flags_adds
        .global flags_subs_sbcs
        .global flags_msr_imm
        .global flags_roundtrip
        .global cond_clamp
        .global cond_abs
        .global cond_sign
        .global cond_pick
        .global cond_store

; NZCV of a + b in the top four bits
flags_adds:
        ADDS    R2, R0, R1
        MRS     R0, CPSR
        AND     R0, R0, #0xF0000000
        BX      LR

; NZCV of the high word of the 64-bit b:a - a:b
flags_subs_sbcs:
        SUBS    R2, R0, R1
        SBCS    R3, R1, R0
        MRS     R0, CPSR
        AND     R0, R0, #0xF0000000
        BX      LR

; the flags as an immediate, read back and added to the argument
flags_msr_imm:
        MSR     CPSR_f, #0xA0000000
        MRS     R1, CPSR
        AND     R1, R1, #0xF0000000
        ADD     R0, R0, R1
        BX      LR

; the top four bits of a written to the flags and read back
flags_roundtrip:
        MSR     CPSR_f, R0
        MOV     R0, #0
        MRS     R0, CPSR
        AND     R0, R0, #0xF0000000
        BX      LR

; a clamped to [lo, hi], signed, leaving early when below
cond_clamp:
        CMP     R0, R1
        MOVLT   R0, R1
        BXLT    LR
        CMP     R0, R2
        MOVGT   R0, R2
        BX      LR

cond_abs:
        CMP     R0, #0
        RSBLT   R0, R0, #0
        BX      LR

; -1, 0 or 1
cond_sign:
        CMP     R0, #0
        MOVGT   R0, #1
        MVNLT   R0, #0
        BX      LR

; p[1] when bit 0 of sel is set, else p[0]; p[2] when sel is above 100
cond_pick:
        CMP     R1, #100
        LDRHI   R0, [R0, #8]
        BXHI    LR
        TST     R1, #1
        LDRNE   R0, [R0, #4]
        LDREQ   R0, [R0]
        BX      LR

; v stored to p[0] when negative, to p[1] when zero, to p[2] otherwise;
; the byte of v also to the byte at p + 12 when it is odd
cond_store:
        CMP     R1, #0
        STRMI   R1, [R0]
        STREQ   R1, [R0, #4]
        STRGT   R1, [R0, #8]
        TST     R1, #1
        STRNEB  R1, [R0, #12]
        BX      LR
