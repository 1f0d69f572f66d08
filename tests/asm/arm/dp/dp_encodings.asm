; Data processing in ARM state: rotated immediates with the ADD/SUB and
; CMP/CMN swaps, shifted registers, register-shifted registers, and a MOV of
; a value with no rotated form that becomes MOVW.
; RUN: %s %o -v7A8
        .text
        and     r0, r1, #0xff
        eors    r2, r3, #0x3fc
        sub     r4, r5, #0xf000000f
        rsb     r6, r7, #0
        add     r0, r1, #-1
        add     r0, r1, #-256
        sub     r2, r3, #-4
        adc     r8, r9, r10
        sbcs    r11, r12, lr, lsl #1
        rsc     r0, r1, r2, lsr #32
        orr     r0, r1, r2, asr #7
        bic     r0, r1, r2, ror #31
        eor     r0, r1, r2, rrx
        add     r0, r1, r2, lsl r3
        sub     r0, r1, r2, lsr r3
        rsb     r0, r1, r2, asr r3
        and     r0, r1, r2, ror r3
        tst     r0, #1
        teq     r1, r2
        cmp     r0, #-1
        cmn     r2, #-256
        cmp     r3, r4, lsl #2
        mov     r0, #0x1234
        mov     r1, #0xff00
        mov     r2, #0xffff
        mvn     r3, #0
        movs    r4, r5, lsl #3
        mov     pc, lr
        moveq   r0, #0x10000
        addne   r0, r0, #1
        mvnne   r3, r4, lsr r5
; SECTION: .text: ff 00 01 e2 ff 2f 33 e2 ff 42 45 e2 00 60 67 e2 01 00 41 e2 01 0c 41 e2 04 20 83 e2 0a 80 a9 e0 8e b0 dc e0 22 00 e1 e0 c2 03 81 e1 e2 0f c1 e1 62 00 21 e0 12 03 81 e0 32 03 41 e0 52 03 61 e0 72 03 01 e0 01 00 10 e3 02 00 31 e1 01 00 70 e3 01 0c 52 e3 04 01 53 e1 34 02 01 e3 ff 1c a0 e3 ff 2f 0f e3 00 30 e0 e3 85 41 b0 e1 0e f0 a0 e1 01 08 a0 03 01 00 80 12 34 35 e0 11
