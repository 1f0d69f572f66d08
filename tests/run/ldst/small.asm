; Byte and halfword loads and stores, signed and unsigned, in each of their
; addressing modes; the results go to out by post-indexed stores.
        .text
        .global ld_bytes
        .global ld_halves
        .global st_small

; ld_bytes(p, out, i), i in 0..3; returns the written-back base minus p.
ld_bytes:
        LDRB    R3, [R0]                        ; p[0]
        STR     R3, [R1], #4
        LDRB    R3, [R0, #5]                    ; p[5]
        STR     R3, [R1], #4
        LDRB    R3, [R0, R2]                    ; p[i]
        STR     R3, [R1], #4
        LDRB    R3, [R0, R2, LSL #1]            ; p[2i]
        STR     R3, [R1], #4
        LDRSB   R3, [R0, #7]                    ; (signed) p[7]
        STR     R3, [R1], #4
        LDRSB   R3, [R0, R2]                    ; (signed) p[i]
        STR     R3, [R1], #4
        ADD     R12, R0, #16                    ; q = p + 16
        LDRB    R3, [R12, #-3]                  ; p[13]
        STR     R3, [R1], #4
        LDRB    R3, [R12, -R2]                  ; p[16 - i]
        STR     R3, [R1], #4
        LDRSB   R3, [R12, #-1]                  ; (signed) p[15]
        STR     R3, [R1], #4
        LDRSB   R3, [R12, -R2]                  ; (signed) p[16 - i]
        STR     R3, [R1], #4
        LDRB    R3, [R12, #1]!                  ; p[17], q = p + 17
        STR     R3, [R1], #4
        LDRB    R3, [R12], #2                   ; p[17], q = p + 19
        STR     R3, [R1], #4
        LDRSB   R3, [R12, #-1]!                 ; (signed) p[18], q = p + 18
        STR     R3, [R1], #4
        LDRSB   R3, [R12], R2                   ; (signed) p[18], q = p + 18 + i
        STR     R3, [R1], #4
        LDRSB   R3, [R12, -R2]!                 ; (signed) p[18], q = p + 18
        STR     R3, [R1], #4
        LDRB    R3, [R12, R2]!                  ; p[18 + i], q = p + 18 + i
        STR     R3, [R1], #4
        LDRBT   R3, [R12], #1                   ; p[18 + i], q = p + 19 + i
        STR     R3, [R1], #4
        LDRBT   R3, [R12], -R2                  ; p[19 + i], q = p + 19
        STR     R3, [R1], #4
        LDRSB   R3, [R12], #-3                  ; (signed) p[19], q = p + 16
        STR     R3, [R1], #4
        SUB     R0, R12, R0
        BX      LR

; ld_halves(p, out, i) over halfwords, i in 0..3; returns the base minus p
; in bytes.
ld_halves:
        LDRH    R3, [R0]                        ; p[0]
        STR     R3, [R1], #4
        LDRH    R3, [R0, #6]                    ; p[3]
        STR     R3, [R1], #4
        MOV     R2, R2, LSL #1                  ; the byte offset of p[i]
        LDRH    R3, [R0, R2]                    ; p[i]
        STR     R3, [R1], #4
        LDRSH   R3, [R0, #10]                   ; (signed) p[5]
        STR     R3, [R1], #4
        LDRSH   R3, [R0, R2]                    ; (signed) p[i]
        STR     R3, [R1], #4
        ADD     R12, R0, #16                    ; q = p + 8
        LDRH    R3, [R12, #-2]                  ; p[7]
        STR     R3, [R1], #4
        LDRSH   R3, [R12, -R2]                  ; (signed) p[8 - i]
        STR     R3, [R1], #4
        LDRH    R3, [R12, #4]!                  ; p[10], q = p + 10
        STR     R3, [R1], #4
        LDRSH   R3, [R12], #-2                  ; (signed) p[10], q = p + 9
        STR     R3, [R1], #4
        LDRH    R3, [R12, R2]!                  ; p[9 + i], q = p + 9 + i
        STR     R3, [R1], #4
        LDRSH   R3, [R12], -R2                  ; (signed) p[9 + i], q = p + 9
        STR     R3, [R1], #4
        LDRSH   R3, [R12, #2]!                  ; (signed) p[10], q = p + 10
        STR     R3, [R1], #4
        SUB     R0, R12, R0
        BX      LR

; st_small(p, v, i) over bytes, i in 0..3: v + k stored as bytes and
; halfwords; returns the base minus p.
st_small:
        STRB    R1, [R0]                        ; p[0] = v
        ADD     R1, R1, #1
        STRB    R1, [R0, #3]                    ; p[3] = v + 1
        ADD     R1, R1, #1
        STRB    R1, [R0, R2]                    ; p[i] = v + 2 (i = 0 overwrites p[0], i = 3 p[3])
        ADD     R1, R1, #1
        STRH    R1, [R0, #4]                    ; p[4..5] = v + 3
        ADD     R1, R1, #1
        MOV     R3, R2, LSL #1
        ADD     R3, R3, #8
        STRH    R1, [R0, R3]                    ; p[8 + 2i ..] = v + 4
        ADD     R1, R1, #1
        ADD     R12, R0, #32                    ; q = p + 32
        STRB    R1, [R12, #-1]                  ; p[31] = v + 5
        ADD     R1, R1, #1
        STRH    R1, [R12, #-4]                  ; p[28..29] = v + 6
        ADD     R1, R1, #1
        STRB    R1, [R12, -R2, LSL #2]!         ; p[32 - 4i] = v + 7, q = p + 32 - 4i
        ADD     R1, R1, #1
        STRH    R1, [R12, #2]!                  ; p[34 - 4i ..] = v + 8, q = p + 34 - 4i
        ADD     R1, R1, #1
        STRH    R1, [R12], #4                   ; p[34 - 4i ..] = v + 9, q = p + 38 - 4i
        ADD     R1, R1, #1
        MOV     R3, R2, LSL #2
        STRH    R1, [R12], R3                   ; p[38 - 4i ..] = v + 10, q = p + 38
        ADD     R1, R1, #1
        STRB    R1, [R12], #1                   ; p[38] = v + 11, q = p + 39
        ADD     R1, R1, #1
        STRBT   R1, [R12], #2                   ; p[39] = v + 12, q = p + 41
        ADD     R1, R1, #1
        STRH    R1, [R12, #-1]!                 ; p[40..41] = v + 13, q = p + 40
        SUB     R0, R12, R0
        BX      LR
