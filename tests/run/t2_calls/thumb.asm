; Calls and returns in Thumb-2: BL between Thumb functions, recursion, a
; loop of calls, returns by BX LR and by POP {PC}, and calls across states:
; Thumb to ARM code of this file and of another object (the linker makes
; those BLs BLX), Thumb to C and C to Thumb.
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .thumb
        .global tc_fib
        .global tc_twice
        .global tc_call_arm
        .global tc_call_arm_here
        .global tc_call_c
        .global tc_sum_calls
        .global tc_helper
        .global ac_triple                       ; ARM code of arm.asm
        .global c_scale                         ; C

; 3x + 1
tc_helper:
        ADD     R0, R0, R0, LSL #1
        ADDS    R0, R0, #1
        BX      LR

; helper(helper(x))
tc_twice:
        PUSH    {R4, LR}
        BL      tc_helper
        BL      tc_helper
        POP     {R4, PC}

tc_fib:
        CMP     R0, #2
        IT      LO
        BXLO    LR
        PUSH    {R4, R5, R6, LR}
        MOV     R4, R0
        SUBS    R0, R0, #1
        BL      tc_fib
        MOV     R5, R0
        SUBS    R0, R4, #2
        BL      tc_fib
        ADD     R0, R0, R5
        POP     {R4, R5, R6, PC}

; ac_triple(x) + 1, ARM code of another object
tc_call_arm:
        PUSH    {R4, LR}
        BL      ac_triple
        ADDS    R0, R0, #1
        POP     {R4, PC}

; arm_here(x) + 2, ARM code below in this file
tc_call_arm_here:
        PUSH    {R4, LR}
        BL      arm_here
        ADDS    R0, R0, #2
        POP     {R4, PC}

; c_scale(x, 5) + 1
tc_call_c:
        PUSH    {R4, LR}
        MOVS    R1, #5
        BL      c_scale
        ADDS    R0, R0, #1
        POP     {R4, PC}

; the sum of c_scale(i, k) for i below n
tc_sum_calls:
        PUSH    {R4, R5, R6, R7, LR}
        MOV     R5, R0
        MOV     R6, R1
        MOVS    R4, #0
        MOVS    R7, #0
sum_next:
        CMP     R4, R5
        BHS     sum_done
        MOV     R0, R4
        MOV     R1, R6
        BL      c_scale
        ADD     R7, R7, R0
        ADDS    R4, R4, #1
        B       sum_next
sum_done:
        MOV     R0, R7
        POP     {R4, R5, R6, R7, PC}

        .arm
; x - 7, in ARM state, called from Thumb code of this file
arm_here:
        SUB     R0, R0, #7
        BX      LR
