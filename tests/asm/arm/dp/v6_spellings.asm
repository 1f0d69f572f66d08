; The v6 spellings of the extends and of the parallel exchanges, and CPY: the
; same words as their unified names.
; RUN: %s %o -v6
        .text
        sadd8to16   r0, r1, r2
        sadd8to32   r0, r1, r2, ror #8
        sadd16to32  r0, r1, r2
        uadd8to16   r0, r1, r2
        uadd8to32   r0, r1, r2, ror #16
        uadd16to32  r0, r1, r2, ror #24
        sunpk8to16  r3, r4
        sunpk8to32  r3, r4, ror #8
        sunpk16to32 r3, r4
        uunpk8to16  r3, r4
        uunpk8to32  r3, r4
        uunpk16to32 r3, r4, ror #24
        saddsubx    r0, r1, r2
        uqsubaddx   r0, r1, r2
        cpy         r5, r6
; SECTION: .text: 72 00 81 e6 72 04 a1 e6 72 00 b1 e6 72 00 c1 e6 72 08 e1 e6 72 0c f1 e6 74 30 8f e6 74 34 af e6 74 30 bf e6 74 30 cf e6 74 30 ef e6 74 3c ff e6 32 0f 11 e6 52 0f 61 e6 06 50 a0 e1
