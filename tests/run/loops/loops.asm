; Loops with backward branches to labels, forward exits, and nested loops.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global lp_sum
        .global lp_strlen
        .global lp_memcpy
        .global lp_gcd
        .global lp_popcount
        .global lp_fact
        .global lp_find
        .global lp_sort

; lp_sum(p, n): the sum of n words, 0 when n is 0
lp_sum:
        MOV     R2, #0
        CMP     R1, #0
        BEQ     sum_done
sum_next:
        LDR     R3, [R0], #4
        ADD     R2, R2, R3
        SUBS    R1, R1, #1
        BNE     sum_next
sum_done:
        MOV     R0, R2
        BX      LR

lp_strlen:
        MOV     R1, R0
strlen_next:
        LDRB    R2, [R1], #1
        CMP     R2, #0
        BNE     strlen_next
        SUB     R0, R1, R0
        SUB     R0, R0, #1
        BX      LR

; lp_memcpy(dst, src, n): byte by byte; returns dst
lp_memcpy:
        MOV     R12, R0
        B       copy_test
copy_next:
        LDRB    R3, [R1], #1
        STRB    R3, [R12], #1
copy_test:
        SUBS    R2, R2, #1
        BPL     copy_next
        BX      LR

; Euclid by subtraction, with conditional execution inside the loop
lp_gcd:
        CMP     R0, R1
        SUBGT   R0, R0, R1
        SUBLT   R1, R1, R0
        BNE     lp_gcd
        BX      LR

lp_popcount:
        MOV     R1, #0
        MOVS    R2, R0
        BEQ     pop_done
pop_next:
        SUB     R3, R2, #1
        ANDS    R2, R2, R3
        ADD     R1, R1, #1
        BNE     pop_next
pop_done:
        MOV     R0, R1
        BX      LR

; n! modulo 2 to the 32
lp_fact:
        MOV     R1, #1
fact_next:
        CMP     R0, #1
        BLS     fact_done
        MUL     R2, R1, R0
        MOV     R1, R2
        SUB     R0, R0, #1
        B       fact_next
fact_done:
        MOV     R0, R1
        BX      LR

; lp_find(p, n, v): the index of the first word equal to v, or -1
lp_find:
        MOV     R3, #0
find_next:
        CMP     R3, R1
        BHS     find_none
        LDR     R12, [R0, R3, LSL #2]
        CMP     R12, R2
        BEQ     find_done
        ADD     R3, R3, #1
        B       find_next
find_none:
        MVN     R3, #0
find_done:
        MOV     R0, R3
        BX      LR

; lp_sort(p, n): bubble sort of n signed words in place
lp_sort:
        PUSH    {R4, R5}
        SUBS    R1, R1, #1
        BLE     sort_done
sort_pass:
        MOV     R2, #0                          ; index
        MOV     R5, #0                          ; swapped
sort_inner:
        ADD     R12, R0, R2, LSL #2
        LDMIA   R12, {R3, R4}
        CMP     R3, R4
        STMGTIA R12, {R4}
        STRGT   R3, [R12, #4]
        MOVGT   R5, #1
        ADD     R2, R2, #1
        CMP     R2, R1
        BLT     sort_inner
        CMP     R5, #0
        BNE     sort_pass
sort_done:
        POP     {R4, R5}
        BX      LR
