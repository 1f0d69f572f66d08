; Plain Thumb in old syntax on v6-M, where ADD of two low registers is read
; as the three-register form, NEG is RSBS Rd, Rs, #0 and NOP is MOV R8, R8;
; in the Thumb-2 state .N reaches the high-register ADD with two low
; registers and the NOP hint.
; RUN: %s %o -v6M0
        .state16
        add     r0, r1
        mov     r0, r1
        neg     r2, r3
        nop
        cpsid   i
        .thumb
        add.n   r0, r1
        nop.n
label:  bx      lr
; SECTION: .text: 40 18 08 1c 5a 42 c0 46 72 b6 08 44 00 bf 70 47
