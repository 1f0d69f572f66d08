; Plain Thumb in old syntax on v6-M: two low registers are allowed in the
; high-register ADD, the flag A of CPS is not, and NOP is MOV R8, R8.
; RUN: %s %o -v6M0
        .state16
        add     r0, r1
        add     r0, r1, r2
        mov     r0, r1
        nop
        cpsid   i
        cpsie   a                       ;! E0004 Flag 'A' is not allowed in Cortex-M.
        blx     label                   ;! E0002 Illegal Cortex-M instruction/directive
label:  bx      lr
