; Data processing: rotated immediates, shifts by constants and by registers,
; carries through ADC/SBC/RSC, MOV and MVN forms. Straight-line code only.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global dp_imm_chain
        .global dp_mvn
        .global dp_mvn_imm
        .global dp_lsl_imm
        .global dp_lsr_imm
        .global dp_asr_imm
        .global dp_ror_imm
        .global dp_lsr32
        .global dp_asr32
        .global dp_rrx
        .global dp_lsl_reg
        .global dp_lsr_reg
        .global dp_asr_reg
        .global dp_ror_reg
        .global dp_rsb_shift
        .global dp_bic_shift
        .global dp_mov_shifts
        .global dp_add64
        .global dp_sub64
        .global dp_neg64
        .global dp_rsc64

; ((((a + 0xFF000000) ^ 0xF000000F) & ~0x00AB0000) | 0x104), then 0x3FC - x - 1, ^ 0xC0000001
dp_imm_chain:
        ADD     R0, R0, #0xFF000000
        EOR     R0, R0, #0xF000000F
        BIC     R0, R0, #0x00AB0000
        ORR     R0, R0, #0x104
        RSB     R0, R0, #0x3FC
        SUB     R0, R0, #1
        EOR     R0, R0, #(0x3 << 30) | 1
        BX      LR

dp_mvn:
        MVN     R0, R0
        BX      LR

; ~0xFF0 plus the argument
dp_mvn_imm:
        MVN     R1, #0xFF0
        ADD     R0, R0, R1
        BX      LR

; a + (b << 3)
dp_lsl_imm:
        ADD     R0, R0, R1, LSL #3
        BX      LR

; a - (b >> 7)
dp_lsr_imm:
        SUB     R0, R0, R1, LSR #7
        BX      LR

; a ^ (signed b >> 5)
dp_asr_imm:
        EOR     R0, R0, R1, ASR #5
        BX      LR

; a | (b rotated right by 11)
dp_ror_imm:
        ORR     R0, R0, R1, ROR #11
        BX      LR

; a + (b >> 32), that is a
dp_lsr32:
        ADD     R0, R0, R1, LSR #32
        BX      LR

; a + (signed b >> 32), that is a - 1 for a negative b
dp_asr32:
        ADD     R0, R0, R1, ASR #32
        BX      LR

; carry from bit 0 of c shifted into the top of b >> 1
dp_rrx:
        MOVS    R2, R2, LSR #1
        MOV     R0, R1, RRX
        BX      LR

; shifts by the low byte of a register
dp_lsl_reg:
        MOV     R0, R0, LSL R1
        BX      LR

dp_lsr_reg:
        MOV     R0, R0, LSR R1
        BX      LR

dp_asr_reg:
        MOV     R0, R0, ASR R1
        BX      LR

dp_ror_reg:
        MOV     R0, R0, ROR R1
        BX      LR

; (b << 4) - a, then with a register-shifted operand: x - (c lsl (a & 7))
dp_rsb_shift:
        RSB     R0, R0, R1, LSL #4
        AND     R3, R0, #7
        SUB     R0, R0, R2, LSL R3
        BX      LR

; a & ~(b asr 3), then | (c ror 28), then teq-free xor with b lsr c
dp_bic_shift:
        BIC     R0, R0, R1, ASR #3
        ORR     R0, R0, R2, ROR #28
        EOR     R0, R0, R1, LSR R2
        BX      LR

; a combination of MOV with every constant shift; writes five words to *c
dp_mov_shifts:
        MOV     R3, R0, LSL #1
        STR     R3, [R2]
        MOV     R3, R0, LSR #31
        STR     R3, [R2, #4]
        MOV     R3, R1, ASR #31
        STR     R3, [R2, #8]
        MOV     R3, R1, ROR #1
        STR     R3, [R2, #12]
        MVN     R3, R1, LSL #16
        STR     R3, [R2, #16]
        MOV     R0, R2
        BX      LR

; 64-bit add, subtract and negate through the carry
dp_add64:
        ADDS    R0, R0, R2
        ADC     R1, R1, R3
        BX      LR

dp_sub64:
        SUBS    R0, R0, R2
        SBC     R1, R1, R3
        BX      LR

dp_neg64:
        RSBS    R0, R0, #0
        RSC     R1, R1, #0
        BX      LR

; b:a subtracted from d:c with the reverse forms
dp_rsc64:
        RSBS    R0, R0, R2
        RSC     R1, R1, R3
        BX      LR
