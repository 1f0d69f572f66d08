; Messages of data processing in ARM state on v7, with those of a MOV that
; becomes MOVW.
; RUN: %s %o -v7A8
        .text
label:  add     r0, r1, #0x102          ;! E0004 Immediate not representable as a rotated 8 bit immediate
        and     r0, r1, #-2             ;! E0004 Immediate not representable as a rotated 8 bit immediate
        mvn     r0, #0x1234             ;! E0004 Immediate not representable as a rotated 8 bit immediate
        cmp     r0, #0x1234             ;! E0004 Immediate not representable as a rotated 8 bit immediate
        mov     r0, #-1                 ;! E0004 Immediate cannot be greater than 16-bits
        mov     r0, #0x12345            ;! E0004 Immediate cannot be greater than 16-bits
        movs    r0, #0x1234             ;! W0004 Invalid instruction modifier(s) ignored
        mov     pc, #0x1234             ;! E0004 Specifying R15 as an operand is illegal
        add     r0, r1, r2, ror #32     ;! E0004 Rotate count must lie between 1 and 31
        add     r0, r1, r2, lsl #32     ;! E0004 Shift amount exceeds its maximum value
        add     r0, r1, label           ;! E0004 Illegal operand
        add     r0!, r1, r2             ;! W0000 Operand modifiers ignored
        add     r0, r1, r2!             ;! W0000 Operand modifier(s) ignored
        add     #1, r1, r2              ;! E0004 Destination operand Rd must be a register
        cmp     #1, r2                  ;! E0004 Operand Rn must be a register
