; Below v7 a MOV immediate with no rotated form stays an error.
; RUN: %s %o -v6
        .text
        mov     r0, #0x1234             ;! E0004 Immediate not representable as a rotated 8 bit immediate
        mov     r0, #-1                 ;! E0004 Immediate not representable as a rotated 8 bit immediate
