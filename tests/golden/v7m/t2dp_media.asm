; Thumb-2 saturating arithmetic, parallel add and subtract, SEL, saturation, packs, bit fields.
; Written by scripts/golden/t2dp/gen.py: change the generator, not this file.
; RUN: %s %o -v7M3
        .thumb
        SSAT R0, #1, R1                         ;= f301 0000
        SSAT R8, #32, R9, LSL #31               ;= f309 78df
        SSAT R2, #16, R3, ASR #31               ;= f323 72cf
        USAT R4, #0, R5                         ;= f385 0400
        USAT R10, #31, R11, ASR #1              ;= f3ab 0a5f
        USAT R1, #7, R2, LSL #4                 ;= f382 1107
        BFI R0, R1, #0, #32                     ;= f361 001f
        BFI R8, R9, #31, #1                     ;= f369 78df
        BFC R2, #4, #8                          ;= f36f 120b
        SBFX R3, R4, #5, #27                    ;= f344 135a
        UBFX R10, R11, #0, #1                   ;= f3cb 0a00
        UBFX R12, R14, #16, #16                 ;= f3ce 4c0f
