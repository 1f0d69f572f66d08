; Calls across states from 16-bit Thumb code: Thumb to ARM code of this
; file and of another object, Thumb to C and C to Thumb, with returns by
; BX LR and by POP {PC}.
; BUILD: -v5e
; BUILD: -v6
        .text
        .thumb
        .global tt_helper
        .global tt_twice
        .global tt_call_arm
        .global tt_call_arm_here
        .global tt_call_c
        .global tt_fib
        .global at_triple                       ; ARM code of arm.asm
        .global c_scale                         ; C

; 3x + 1
tt_helper:
        LSLS    R1, R0, #1
        ADDS    R0, R0, R1
        ADDS    R0, R0, #1
        BX      LR

tt_twice:
        PUSH    {R4, LR}
        BL      tt_helper
        BL      tt_helper
        POP     {R4, PC}

tt_fib:
        CMP     R0, #2
        BHS     fib_more
        BX      LR
fib_more:
        PUSH    {R4, R5, R6, LR}
        MOVS    R4, R0
        SUBS    R0, R0, #1
        BL      tt_fib
        MOVS    R5, R0
        SUBS    R0, R4, #2
        BL      tt_fib
        ADDS    R0, R0, R5
        POP     {R4, R5, R6, PC}

; at_triple(x) + 1
tt_call_arm:
        PUSH    {R4, LR}
        BL      at_triple
        ADDS    R0, R0, #1
        POP     {R4, PC}

; arm_here(x) + 2
tt_call_arm_here:
        PUSH    {R4, LR}
        BL      arm_here
        ADDS    R0, R0, #2
        POP     {R4, PC}

; c_scale(x, 5) + 1
tt_call_c:
        PUSH    {R4, LR}
        MOVS    R1, #5
        BL      c_scale
        ADDS    R0, R0, #1
        POP     {R4, PC}

        .arm
; x - 7
arm_here:
        SUB     R0, R0, #7
        BX      LR
