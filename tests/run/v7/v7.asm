; Bit fields, bit reversal, 16-bit immediates and MLS.
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global v7_ubfx
        .global v7_ubfx_top
        .global v7_sbfx
        .global v7_sbfx_one
        .global v7_bfi
        .global v7_bfi_full
        .global v7_bfc
        .global v7_rbit
        .global v7_movw_movt
        .global v7_movw_add
        .global v7_mls

; bits 5..16 of a
v7_ubfx:
        UBFX    R0, R0, #5, #12
        BX      LR

v7_ubfx_top:
        UBFX    R0, R0, #31, #1
        BX      LR

; bits 3..9 of a, sign-extended
v7_sbfx:
        SBFX    R0, R0, #3, #7
        BX      LR

v7_sbfx_one:
        SBFX    R0, R0, #0, #1
        BX      LR

; the low 9 bits of b into bits 20..28 of a
v7_bfi:
        BFI     R0, R1, #20, #9
        BX      LR

v7_bfi_full:
        BFI     R0, R1, #0, #32
        BX      LR

; a with bits 4..27 cleared
v7_bfc:
        BFC     R0, #4, #24
        BX      LR

v7_rbit:
        RBIT    R0, R0
        BX      LR

; 0xBEEF1234 built from two halves, exclusive-or a
v7_movw_movt:
        MOVW    R1, #0x1234
        MOVT    R1, #0xBEEF
        EOR     R0, R0, R1
        BX      LR

; a + 0xFFFF by MOVW, which clears the top half
v7_movw_add:
        MVN     R1, #0
        MOVW    R1, #0xFFFF
        ADD     R0, R0, R1
        BX      LR

; c - a * b
v7_mls:
        MLS     R0, R0, R1, R2
        BX      LR

