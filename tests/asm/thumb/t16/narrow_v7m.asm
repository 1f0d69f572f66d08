; The 16-bit forms reached with .N in the Thumb-2 state of v7-M, where NOP is
; the hint, and their checks.
; RUN: %s %o -v7M3
        .thumb
        adds.n  r0, r1, r2
        movs.n  r0, #1
        add.n   r0, r8
        ldr.n   r0, [r1, #4]
        ldr.n   r1, label
        push.n  {r0, lr}
        nop.n
        beq.n   label
        b.n     label
        bx.n    lr
label:  nop.n
; SECTION: .text: 88 18 01 20 40 44 48 68 02 49 01 b5 00 bf 01 d0 00 e0 70 47 00 bf
