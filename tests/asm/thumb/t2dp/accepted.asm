; Forms next to the refused ones that pass: SP in a MOV without a shift or
; flags, LSL #0 as no shift, SP with a shifted register in an ADD; MULS.W
; drops its S with a warning.
; RUN: %s %o -v7M3
        .thumb
        mov.w   sp, r1
        mov.w   r0, sp, lsl #0
        add.w   r0, sp, r1, lsl #2
        muls.w  r0, r1, r2              ;! W0004 Invalid instruction modifier(s) ignored
; SECTION: .text: 4f ea 01 0d 4f ea 0d 00 0d eb 81 00 01 fb 02 f0
