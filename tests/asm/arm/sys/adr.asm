; ADR is ADD or SUB of PC and a rotated immediate: labels of this section
; (from pc + 8) and plain offsets.
; RUN: %s %o -v7A8
        .text
start:  adr     r0, start               ; E24F0008
        adr     r1, ahead               ; E28F101C
        adr     r2, #0x100              ; E28F2C01
        adr     r3, #-4                 ; E24F3004
        adr     r4, #0                  ; E28F4000
        adreq   r5, ahead               ; 028F500C
        adr     r7, #0x3fc00            ; E28F7BFF
        nop                             ; E1A00000
        nop                             ; E1A00000
        nop                             ; E1A00000
ahead:  adr     r6, ahead               ; E24F6008
; SECTION: .text: 08 00 4f e2 1c 10 8f e2 01 2c 8f e2 04 30 4f e2 00 40 8f e2 0c 50 8f 02 ff 7b 8f e2 00 00 a0 e1 00 00 a0 e1 00 00 a0 e1 08 60 4f e2
