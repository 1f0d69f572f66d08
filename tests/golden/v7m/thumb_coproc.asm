; Thumb-2 coprocessor instructions.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7M3
; XFAIL: the Thumb-2 encoders are not on main yet
        .thumb
        MRC     p15, #0, R0, c1, c0, #0         ;= ee11 0f10
        MCR     p14, #7, R14, c15, c7, #7       ;= eeef eef7
        MRRC    p15, #1, R2, R3, c4             ;= ec53 2f14
        MCRR    p7, #15, R8, R9, c0             ;= ec49 87f0
        CDP     p5, #2, c1, c2, c3, #4          ;= ee22 1583
        CDP     p7, #15, c15, c15, c15, #7      ;= eeff f7ef
        LDC     p6, c1, [R2]                    ;= ed92 1600
        LDC     p6, c1, [R2, #8]                ;= ed92 1602
        LDC     p6, c1, [R2, #-1020]!           ;= ed32 16ff
        LDC     p6, c1, [R2], #4                ;= ecb2 1601
        LDC     p6, c1, [R2], {5}               ;= ec92 1605
        LDCL    p6, c1, [R2]                    ;= edd2 1600
        LDCL    p6, c1, [R2, #8]                ;= edd2 1602
        LDCL    p6, c1, [R2, #-1020]!           ;= ed72 16ff
        LDCL    p6, c1, [R2], #4                ;= ecf2 1601
        LDCL    p6, c1, [R2], {5}               ;= ecd2 1605
        STC     p6, c1, [R2]                    ;= ed82 1600
        STC     p6, c1, [R2, #8]                ;= ed82 1602
        STC     p6, c1, [R2, #-1020]!           ;= ed22 16ff
        STC     p6, c1, [R2], #4                ;= eca2 1601
        STC     p6, c1, [R2], {5}               ;= ec82 1605
        STCL    p6, c1, [R2]                    ;= edc2 1600
        STCL    p6, c1, [R2, #8]                ;= edc2 1602
        STCL    p6, c1, [R2, #-1020]!           ;= ed62 16ff
        STCL    p6, c1, [R2], #4                ;= ece2 1601
        STCL    p6, c1, [R2], {5}               ;= ecc2 1605
        MRC2    p15, #0, R0, c1, c0, #0         ;= fe11 0f10
        MCR2    p14, #7, R14, c15, c7, #7       ;= feef eef7
        MRRC2   p15, #1, R2, R3, c4             ;= fc53 2f14
        MCRR2   p7, #15, R8, R9, c0             ;= fc49 87f0
        CDP2    p5, #2, c1, c2, c3, #4          ;= fe22 1583
        CDP2    p7, #15, c15, c15, c15, #7      ;= feff f7ef
        LDC2    p6, c1, [R2]                    ;= fd92 1600
        LDC2    p6, c1, [R2, #8]                ;= fd92 1602
        LDC2    p6, c1, [R2, #-1020]!           ;= fd32 16ff
        LDC2    p6, c1, [R2], #4                ;= fcb2 1601
        LDC2    p6, c1, [R2], {5}               ;= fc92 1605
        LDC2L   p6, c1, [R2]                    ;= fdd2 1600
        LDC2L   p6, c1, [R2, #8]                ;= fdd2 1602
        LDC2L   p6, c1, [R2, #-1020]!           ;= fd72 16ff
        LDC2L   p6, c1, [R2], #4                ;= fcf2 1601
        LDC2L   p6, c1, [R2], {5}               ;= fcd2 1605
        STC2    p6, c1, [R2]                    ;= fd82 1600
        STC2    p6, c1, [R2, #8]                ;= fd82 1602
        STC2    p6, c1, [R2, #-1020]!           ;= fd22 16ff
        STC2    p6, c1, [R2], #4                ;= fca2 1601
        STC2    p6, c1, [R2], {5}               ;= fc82 1605
        STC2L   p6, c1, [R2]                    ;= fdc2 1600
        STC2L   p6, c1, [R2, #8]                ;= fdc2 1602
        STC2L   p6, c1, [R2, #-1020]!           ;= fd62 16ff
        STC2L   p6, c1, [R2], #4                ;= fce2 1601
        STC2L   p6, c1, [R2], {5}               ;= fcc2 1605
