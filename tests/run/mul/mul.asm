; Multiplies and long multiplies, with and without accumulation and flags.
; No destination is also the first source, which the older cores forbid.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global mul_mul
        .global mul_mul_rs
        .global mul_mla
        .global mul_muls_nz
        .global mul_umull
        .global mul_smull
        .global mul_umlal
        .global mul_smlal
        .global mul_umulls_nz
        .global mul_smlals_nz

mul_mul:
        MUL     R2, R0, R1
        MOV     R0, R2
        BX      LR

; the destination is the second source
mul_mul_rs:
        MUL     R0, R1, R0
        BX      LR

; a * b + c
mul_mla:
        MLA     R3, R0, R1, R2
        MOV     R0, R3
        BX      LR

; N and Z of a * b
mul_muls_nz:
        MULS    R2, R0, R1
        MRS     R0, CPSR
        AND     R0, R0, #0xC0000000
        BX      LR

mul_umull:
        UMULL   R2, R3, R0, R1
        MOV     R0, R2
        MOV     R1, R3
        BX      LR

mul_smull:
        SMULL   R2, R3, R0, R1
        MOV     R0, R2
        MOV     R1, R3
        BX      LR

; a * b + hi:lo with the accumulator in R2, R3
mul_umlal:
        UMLAL   R2, R3, R0, R1
        MOV     R0, R2
        MOV     R1, R3
        BX      LR

mul_smlal:
        SMLAL   R2, R3, R0, R1
        MOV     R0, R2
        MOV     R1, R3
        BX      LR

; N and Z of the 64-bit product
mul_umulls_nz:
        UMULLS  R2, R3, R0, R1
        MRS     R0, CPSR
        AND     R0, R0, #0xC0000000
        BX      LR

mul_smlals_nz:
        SMLALS  R2, R3, R0, R1
        MRS     R0, CPSR
        AND     R0, R0, #0xC0000000
        BX      LR
