; ARM code that Thumb code calls, and ARM code that calls Thumb code of
; another object. A BL carries R_ARM_PC24, which the linker does not route
; to Thumb code: that call goes through a register.
        .text
        .global at_triple
        .global at_call_thumb
        .global tt_twice

at_triple:
        ADD     R0, R0, R0, LSL #1
        BX      LR

; tt_twice(x) + 100
at_call_thumb:
        PUSH    {R4, LR}
        LDR     R12, twice_addr
        BLX     R12
        ADD     R0, R0, #100
        POP     {R4, PC}
twice_addr:
        .word   tt_twice
