; CLZ, bit fields, the REV family, parallel add and subtract with every
; prefix, saturation, SEL, extends, the v6 multiplies and the packs, in ARM
; state.
; RUN: %s %o -v7A8
        .text
        clz     r0, r1
        clzne   r14, r12
        bfi     r0, r1, #4, #8
        bfc     r0, #4, #8
        bfi     r2, r3, #0, #32
        sbfx    r0, r1, #4, #8
        ubfx    r0, r1, #31, #1
        rev     r0, r1
        rev16   r2, r3
        revsh   r4, r5
        rbit    r6, r7
        sadd16  r0, r1, r2
        qadd16  r0, r1, r2
        shadd16 r0, r1, r2
        uadd16  r0, r1, r2
        uqadd16 r0, r1, r2
        uhadd16 r0, r1, r2
        ssub16  r3, r4, r5
        usub8   r3, r4, r5
        sadd8   r3, r4, r5
        uqsub8  r3, r4, r5
        qasx    r6, r7, r8
        shsax   r6, r7, r8
        uasx    r6, r7, r8
        ssat    r0, #1, r1
        ssat    r0, #32, r1, asr #32
        ssat    r0, #8, r1, lsl #4
        usat    r0, #0, r1
        usat    r0, #31, r1, asr #1
        ssat16  r0, #16, r1
        usat16  r0, #0, r1
        sel     r0, r1, r2
        sxtab16 r0, r1, r2
        sxtab   r0, r1, r2, ror #8
        sxtah   r0, r1, r2, ror #16
        uxtab16 r0, r1, r2, ror #24
        uxtab   r0, r1, r2
        uxtah   r0, r1, r2
        sxtb16  r0, r1
        uxtb16  r0, r1, ror #8
        sxtb    r0, r1, ror #24
        sxth    r0, r1
        uxtb    r0, r1
        uxth    r0, r1, ror #16
        smlad   r0, r1, r2, r3
        smladx  r0, r1, r2, r3
        smlsd   r0, r1, r2, r3
        smlsdx  r0, r1, r2, r3
        smmla   r0, r1, r2, r3
        smmlar  r0, r1, r2, r3
        smmls   r0, r1, r2, r3
        smmlsr  r0, r1, r2, r3
        smuad   r4, r5, r6
        smuadx  r4, r5, r6
        smusd   r4, r5, r6
        smusdx  r4, r5, r6
        smmul   r4, r5, r6
        smmulr  r4, r5, r6
        smlald  r0, r1, r2, r3
        smlaldx r0, r1, r2, r3
        smlsld  r0, r1, r2, r3
        smlsldx r0, r1, r2, r3
        umaal   r0, r1, r2, r3
        usad8   r0, r1, r2
        usada8  r0, r1, r2, r3
        pkhbt   r0, r1, r2
        pkhbt   r0, r1, r2, lsl #31
        pkhtb   r0, r1, r2, asr #1
        pkhtb   r0, r1, r2, asr #32
        pkhtb   r0, r1, r2
        pkhbtne r3, r4, r5, lsl #16
; SECTION: .text: 11 0f 6f e1 1c ef 6f 11 11 02 cb e7 1f 02 cb e7 13 20 df e7 51 02 a7 e7 d1 0f e0 e7 31 0f bf e6 b3 2f bf e6 b5 4f ff e6 37 6f ff e6 12 0f 11 e6 12 0f 21 e6 12 0f 31 e6 12 0f 51 e6 12 0f 61 e6 12 0f 71 e6 75 3f 14 e6 f5 3f 54 e6 95 3f 14 e6 f5 3f 64 e6 38 6f 27 e6 58 6f 37 e6 38 6f 57 e6 11 00 a0 e6 51 00 bf e6 11 02 a7 e6 11 00 e0 e6 d1 00 ff e6 31 0f af e6 31 0f e0 e6 b2 0f 81 e6 72 00 81 e6 72 04 a1 e6 72 08 b1 e6 72 0c c1 e6 72 00 e1 e6 72 00 f1 e6 71 00 8f e6 71 04 cf e6 71 0c af e6 71 00 bf e6 71 00 ef e6 71 08 ff e6 11 32 00 e7 31 32 00 e7 51 32 00 e7 71 32 00 e7 11 32 50 e7 31 32 50 e7 d1 32 50 e7 f1 32 50 e7 15 f6 04 e7 35 f6 04 e7 55 f6 04 e7 75 f6 04 e7 15 f6 54 e7 35 f6 54 e7 12 03 41 e7 32 03 41 e7 52 03 41 e7 72 03 41 e7 92 03 41 e0 11 f2 80 e7 11 32 80 e7 12 00 81 e6 92 0f 81 e6 d2 00 81 e6 52 00 81 e6 11 00 82 e6 15 38 84 16
