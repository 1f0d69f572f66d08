; Word and byte transfers in every address form: P, U, W and the register
; offset bit, the shifted-register field, and the T forms.
; RUN: %s %o -v7A8
        .text
        LDR     R0, [R1]
        LDR     R0, [R1, #4]
        LDR     R0, [R1, #-4]
        LDR     R0, [R1, #4095]
        LDR     R0, [R1, #-4095]
        LDR     R0, [R1, #4]!
        LDR     R0, [R1, #-8]!
        LDR     R0, [R1, R2]
        LDR     R0, [R1, -R2]
        LDR     R0, [R1, R2, LSL #2]
        LDR     R0, [R1, -R2, ASR #32]
        LDR     R0, [R1, R2, ROR #3]!
        LDR     R0, [R1, R2, RRX]
        LDR     R0, [R1], #4
        LDR     R0, [R1], #-4
        LDR     R0, [R1], R2
        LDR     R0, [R1], -R2, LSR #1
        STRB    R3, [R4]
        STRB    R3, [R4, #1]!
        LDRB    R3, [R4], #-255
        LDRBT   R3, [R4], #1
        LDRT    R3, [R4], R5
        STRT    R3, [R4], -R5, LSL #4
        STRBT   R3, [R4], #0
        LDREQ   R0, [R1]
        STRBNE  R0, [R1, #2]
        LDR     PC, [SP], #4
        STR     R0, [PC, #8]
; SECTION: .text: 00 00 91 e5 04 00 91 e5 04 00 11 e5 ff 0f 91 e5 ff 0f 11 e5 04 00 b1 e5 08 00 31 e5 02 00 91 e7 02 00 11 e7 02 01 91 e7 42 00 11 e7 e2 01 b1 e7 62 00 91 e7 04 00 91 e4 04 00 11 e4 02 00 91 e6 a2 00 11 e6 00 30 c4 e5 01 30 e4 e5 ff 30 54 e4 01 30 f4 e4 05 30 b4 e6 05 32 24 e6 00 30 e4 e4 00 00 91 05 02 00 c1 15 04 f0 9d e4 08 00 8f e5
