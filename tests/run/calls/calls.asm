; BL between functions, recursion, calls into C and into the C library with
; the address of an assembly function as its argument.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global cl_helper
        .global cl_twice
        .global cl_fib
        .global cl_call_c
        .global cl_compare
        .global cl_sort_words
        .global c_scale                         ; defined in C
        .global qsort                           ; of the C library

; 3x + 1
cl_helper:
        ADD     R0, R0, R0, LSL #1
        ADD     R0, R0, #1
        BX      LR

cl_twice:
        PUSH    {R4, LR}
        BL      cl_helper
        BL      cl_helper
        POP     {R4, PC}

cl_fib:
        CMP     R0, #2
        BXLO    LR
        PUSH    {R4, R5, R6, LR}
        MOV     R4, R0
        SUB     R0, R0, #1
        BL      cl_fib
        MOV     R5, R0
        SUB     R0, R4, #2
        BL      cl_fib
        ADD     R0, R0, R5
        POP     {R4, R5, R6, PC}

; c_scale(x, 5) + 1, c_scale being C's
cl_call_c:
        PUSH    {R4, LR}
        MOV     R1, #5
        BL      c_scale
        ADD     R0, R0, #1
        POP     {R4, PC}

; qsort's comparison of two signed words
cl_compare:
        LDR     R0, [R0]
        LDR     R1, [R1]
        CMP     R0, R1
        MVNLT   R0, #0
        MOVEQ   R0, #0
        MOVGT   R0, #1
        BX      LR

; cl_sort_words(p, n): qsort(p, n, 4, cl_compare). The C library of the
; tool chain is Thumb code, and a BL carries a relocation that the linker
; does not turn into a state change: the call goes through a register.
cl_sort_words:
        PUSH    {R4, LR}
        MOV     R2, #4
        LDR     R3, compare_addr
        LDR     R12, qsort_addr
        MOV     LR, PC
        BX      R12
        POP     {R4, PC}
compare_addr:
        .word   cl_compare
qsort_addr:
        .word   qsort
