; Halfword, signed and doubleword transfers: the offset in two nibbles with
; bit 22 for an immediate, Rm alone for a register. Old and unified suffix
; orders both decode.
; RUN: %s %o -v5e
        .text
        LDRH    R0, [R1]
        LDRH    R0, [R1, #255]
        LDRH    R0, [R1, #-0x12]
        LDRH    R0, [R1, #0x34]!
        STRH    R0, [R1], #-255
        LDRH    R0, [R1, R2]
        LDRH    R0, [R1, -R2]!
        STRH    R0, [R1], R2
        LDRSH   R5, [R6, #2]
        LDRSB   R5, [R6, #-3]
        LDRSB   R5, [R6], -R7
        LDRSH   R5, [R6, R7]!
        LDRD    R4, R5, [R6]
        LDRD    R4, [R6, #8]
        LDRD    R4, R5, [R6, #-8]!
        STRD    R4, R5, [R6], #16
        STRD    R2, R3, [R6, R7]
        LDRD    R2, R3, [R6], -R7
        LDRSHEQ R0, [R1]
        LDREQSH R0, [R1]
        STRHGT  R0, [R1]
; SECTION: .text: b0 00 d1 e1 bf 0f d1 e1 b2 01 51 e1 b4 03 f1 e1 bf 0f 41 e0 b2 00 91 e1 b2 00 31 e1 b2 00 81 e0 f2 50 d6 e1 d3 50 56 e1 d7 50 16 e0 f7 50 b6 e1 d0 40 c6 e1 d8 40 c6 e1 d8 40 66 e1 f0 41 c6 e0 f7 20 86 e1 d7 20 06 e0 f0 00 d1 01 f0 00 d1 01 b0 00 c1 c1
