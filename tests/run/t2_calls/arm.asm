; The ARM side: a function that Thumb code calls, and ARM code that calls
; Thumb functions of another object. A BL carries R_ARM_PC24, which the
; linker does not route to Thumb code: the call goes through a register.
        .text
        .global ac_triple
        .global ac_call_thumb
        .global tc_twice

ac_triple:
        ADD     R0, R0, R0, LSL #1
        BX      LR

; tc_twice(x) + 100
ac_call_thumb:
        PUSH    {R4, LR}
        LDR     R12, twice_addr
        BLX     R12
        ADD     R0, R0, #100
        POP     {R4, PC}
twice_addr:
        .word   tc_twice
