; Word loads and stores in every addressing mode: immediate and register
; offsets, added and subtracted, scaled by each shift, with pre-indexed
; writeback and post-indexing, and the unprivileged forms.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global ld_words
        .global st_words

; ld_words(p, out, i), i in 0..3: each load goes to out by a post-indexed
; store; returns how far the written-back base R12 ended from p, in bytes.
ld_words:
        LDR     R3, [R0]                        ; p[0]
        STR     R3, [R1], #4
        LDR     R3, [R0, #12]                   ; p[3]
        STR     R3, [R1], #4
        LDR     R3, [R0, R2, LSL #2]            ; p[i]
        STR     R3, [R1], #4
        MOV     R12, R2, LSL #2
        LDR     R3, [R0, R12]                   ; p[i]
        STR     R3, [R1], #4
        MOV     R12, R2, LSL #4
        LDR     R3, [R0, R12, LSR #2]           ; p[i]
        STR     R3, [R1], #4
        LDR     R3, [R0, R12, ASR #1]           ; p[2 * i]
        STR     R3, [R1], #4
        LDR     R3, [R0, R2, ROR #30]           ; p[i]
        STR     R3, [R1], #4
        ADD     R12, R0, #32                    ; q = p + 8
        LDR     R3, [R12, #-8]                  ; p[6]
        STR     R3, [R1], #4
        LDR     R3, [R12, -R2, LSL #2]          ; p[8 - i]
        STR     R3, [R1], #4
        LDR     R3, [R12, #4]!                  ; p[9], q = p + 9
        STR     R3, [R1], #4
        LDR     R3, [R12], #-8                  ; p[9], q = p + 7
        STR     R3, [R1], #4
        LDR     R3, [R12, R2, LSL #2]!          ; p[7 + i], q = p + 7 + i
        STR     R3, [R1], #4
        LDR     R3, [R12], R2, LSL #2           ; p[7 + i], q = p + 7 + 2i
        STR     R3, [R1], #4
        LDR     R3, [R12, -R2, LSL #3]!         ; p[7], q = p + 7
        STR     R3, [R1], #4
        LDRT    R3, [R12], #4                   ; p[7], q = p + 8
        STR     R3, [R1], #4
        MOV     R2, #8
        LDRT    R3, [R12], -R2                  ; p[8], q = p + 6
        STR     R3, [R1], #4
        LDR     R3, [R12, #-0]                  ; p[6]
        STR     R3, [R1], #4
        SUB     R0, R12, R0
        BX      LR

; st_words(p, v, i), i in 0..3: stores v, v + 1, ... in the same modes;
; returns the written-back base minus p.
st_words:
        STR     R1, [R0]                        ; p[0] = v
        ADD     R1, R1, #1
        STR     R1, [R0, #4]                    ; p[1] = v + 1
        ADD     R1, R1, #1
        STR     R1, [R0, R2, LSL #2]            ; p[i] = v + 2
        ADD     R1, R1, #1
        ADD     R12, R0, #40                    ; q = p + 10
        STR     R1, [R12, #-4]                  ; p[9] = v + 3
        ADD     R1, R1, #1
        STR     R1, [R12, -R2, LSL #2]          ; p[10 - i] = v + 4
        ADD     R1, R1, #1
        STR     R1, [R12, #4]!                  ; p[11] = v + 5, q = p + 11
        ADD     R1, R1, #1
        STR     R1, [R12], #-12                 ; p[11] = v + 6, q = p + 8
        ADD     R1, R1, #1
        STR     R1, [R12, R2, LSL #2]!          ; p[8 + i] = v + 7, q = p + 8 + i
        ADD     R1, R1, #1
        STR     R1, [R12], -R2, LSL #2          ; p[8 + i] = v + 8, q = p + 8
        ADD     R1, R1, #1
        STRT    R1, [R12], #4                   ; p[8] = v + 9, q = p + 9
        ADD     R1, R1, #1
        MOV     R3, #4
        STRT    R1, [R12], R3, LSL #1           ; p[9] = v + 10, q = p + 11
        SUB     R0, R12, R0
        BX      LR
