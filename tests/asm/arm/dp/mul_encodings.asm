; Multiplies, long multiplies, halfword multiplies and saturating arithmetic
; in ARM state.
; RUN: %s %o -v7A8
        .text
        mul     r0, r1, r2
        muls    r3, r4, r5
        mla     r0, r1, r2, r3
        mlas    r4, r5, r6, r7
        mls     r8, r9, r10, r11
        mulne   r12, lr, r0
        umull   r0, r1, r2, r3
        umlals  r4, r5, r6, r7
        smull   r8, r9, r10, r11
        smlal   r12, lr, r0, r1
        smlabb  r0, r1, r2, r3
        smlatb  r0, r1, r2, r3
        smlabt  r0, r1, r2, r3
        smlatt  r0, r1, r2, r3
        smlawb  r4, r5, r6, r7
        smlawt  r4, r5, r6, r7
        smlalbb r0, r1, r2, r3
        smlaltb r0, r1, r2, r3
        smlalbt r0, r1, r2, r3
        smlaltt r0, r1, r2, r3
        smulbb  r0, r1, r2
        smultb  r0, r1, r2
        smulbt  r0, r1, r2
        smultt  r0, r1, r2
        smulwb  r3, r4, r5
        smulwt  r3, r4, r5
        qadd    r0, r1, r2
        qsub    r3, r4, r5
        qdadd   r6, r7, r8
        qdsub   r9, r10, r11
        smlabbeq r0, r1, r2, r3
        qaddgt  r0, r1, r2
; SECTION: .text: 91 02 00 e0 94 05 13 e0 91 32 20 e0 95 76 34 e0 99 ba 68 e0 9e 00 0c 10 92 03 81 e0 96 47 b5 e0 9a 8b c9 e0 90 c1 ee e0 81 32 00 e1 a1 32 00 e1 c1 32 00 e1 e1 32 00 e1 85 76 24 e1 c5 76 24 e1 82 03 41 e1 a2 03 41 e1 c2 03 41 e1 e2 03 41 e1 81 02 60 e1 a1 02 60 e1 c1 02 60 e1 e1 02 60 e1 a4 05 23 e1 e4 05 23 e1 51 00 02 e1 54 30 25 e1 57 60 48 e1 5a 90 6b e1 81 32 00 01 51 00 02 c1
