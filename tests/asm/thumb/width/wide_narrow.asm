; .W keeps a row at 32 bits, .N asks for the 16-bit slot; PUSH and POP of
; one register with .W are single transfers.
; RUN: %s %o -v7A8
; SECTION: .text: 00 eb 01 00 08 44 08 44 4d f8 04 0d 5d f8 04 0b 01 b4 01 bc
        .thumb
        add.w   r0, r0, r1
        add     r0, r0, r1
        add.n   r0, r1
        push.w  {r0}
        pop.w   {r0}
        push    {r0}
        pop     {r0}
