; Inside an IT block the 16-bit data processing sets no flags: a row without
; S narrows there, one with S stays 32 bits; ADD with Rd repeated folds to the
; high-register form, a shifted MOV becomes the shift, a commuted source is
; tried as two operands. A MOV of two low registers is ADD Rd, Rs, #0.
; RUN: %s %o -v7M3
; SECTION: .text: 08 bf 08 40 08 bf 10 ea 01 00 08 bf 01 20 08 bf 08 1c 14 bf 88 18 01 f5 96 70 04 bf 88 00 08 43 18 bf 40 1e 08 bf 88 44
        .thumb
        it      eq
        andeq   r0, r0, r1
        it      eq
        andseq  r0, r0, r1
        it      eq
        moveq   r0, #1
        it      eq
        moveq   r0, r1
        ite     ne
        addne   r0, r1, r2
        addeq   r0, r1, #300
        itt     eq
        lsleq   r0, r1, #2
        orreq   r0, r1, r0
        it      ne
        subne   r0, r0, #1
        it      eq
        addeq   r8, r8, r1
