; Tables of addresses in .data and .text, data of the assembly read by C and
; data of C changed by the assembly, and a jump table of branches.
        .global c_scale                         ; defined in C
        .global c_total

        .data
        .global cl_counter
cl_counter:
        .word   0
ops:
        .word   op_add, op_sub, op_mul, c_scale

        .text
        .global cl_dispatch
        .global cl_switch
        .global cl_bump

op_add:
        ADD     R0, R0, R1
        BX      LR
op_sub:
        SUB     R0, R0, R1
        BX      LR
op_mul:
        MUL     R2, R0, R1
        MOV     R0, R2
        BX      LR

; cl_dispatch(i, a, b): ops[i](a, b), counting the calls in cl_counter
cl_dispatch:
        PUSH    {R4, LR}
        LDR     R3, addr_ops
        LDR     R12, [R3, R0, LSL #2]
        LDR     R3, addr_counter
        LDR     R4, [R3]
        ADD     R4, R4, #1
        STR     R4, [R3]
        MOV     R0, R1
        MOV     R1, R2
        MOV     LR, PC
        BX      R12
        POP     {R4, PC}

; cl_switch(i, a): 10a, a + 7, ~a, a >> 1 for i = 0..3, else 0
cl_switch:
        CMP     R0, #3
        MOVHI   R0, #0
        BXHI    LR
        ADD     PC, PC, R0, LSL #2
        MOV     R0, R0
        B       case0
        B       case1
        B       case2
        B       case3
case0:
        MOV     R0, #10
        MUL     R2, R1, R0
        MOV     R0, R2
        BX      LR
case1:
        ADD     R0, R1, #7
        BX      LR
case2:
        MVN     R0, R1
        BX      LR
case3:
        MOV     R0, R1, LSR #1
        BX      LR

; adds a to C's c_total and returns the new total
cl_bump:
        LDR     R3, addr_total
        LDR     R1, [R3]
        ADD     R0, R1, R0
        STR     R0, [R3]
        BX      LR

addr_ops:
        .word   ops
addr_counter:
        .word   cl_counter
addr_total:
        .word   c_total
