; IT blocks of every length and mask, a branch as the last instruction of a
; block, and loops closed by CBZ, CBNZ and conditional branches, all in
; Thumb-2.
; BUILD: -v7A8
; BUILD: -v7M3
        .text
        .thumb
        .global it_max_s
        .global it_min_u
        .global it_abs
        .global it_clamp
        .global it_sign
        .global it_sel
        .global it_carry
        .global it_overflow
        .global it_branch
        .global it_sum
        .global it_count_zero
        .global it_count_above

; the signed greater of a and b
it_max_s:
        CMP     R0, R1
        IT      LT
        MOVLT   R0, R1
        BX      LR

; the unsigned smaller of a and b
it_min_u:
        CMP     R0, R1
        IT      HI
        MOVHI   R0, R1
        BX      LR

it_abs:
        CMP     R0, #0
        IT      LT
        RSBLT   R0, R0, #0
        BX      LR

; a clamped to [b, c], signed
it_clamp:
        CMP     R0, R1
        IT      LT
        MOVLT   R0, R1
        CMP     R0, R2
        IT      GT
        MOVGT   R0, R2
        BX      LR

; 1, 0 or -1 as a is above, equal to or below b, signed
it_sign:
        CMP     R0, R1
        ITE     GT
        MOVGT   R0, #1
        MOVLE   R0, #0
        IT      LT
        MVNLT   R0, #0
        BX      LR

; a == b ? (a + c) << 1 : (a - c) >> 1
it_sel:
        CMP     R0, R1
        ITTEE   EQ
        ADDEQ   R0, R0, R2
        LSLEQ   R0, R0, #1
        SUBNE   R0, R0, R2
        LSRNE   R0, R0, #1
        BX      LR

; a + b carries ? c + 1 : (a + b) ^ c
it_carry:
        ADDS    R3, R0, R1
        ITETE   CS
        MOVCS   R0, R2
        MOVCC   R0, R3
        ADDCS   R0, R0, #1
        EORCC   R0, R0, R2
        BX      LR

; 1 if a + b overflows as signed numbers, 2 if it is negative, else 3
it_overflow:
        ADDS    R2, R0, R1
        ITTT    VC
        MOVVC   R0, #3
        CMPVC   R2, #0
        MOVVC   R1, #2
        IT      VS
        MOVVS   R0, #1
        BVS.W   overflow_done
        IT      MI
        MOVMI   R0, R1
overflow_done:
        BX      LR

; a < b (signed) ? 10 : 20, by a branch that ends its block
it_branch:
        CMP     R0, R1
        IT      LT
        BLT.W   branch_lower
        MOV     R0, #20
        BX      LR
branch_lower:
        MOV     R0, #10
        BX      LR

; the sum of the n words at p
it_sum:
        MOVS    R2, #0
        CBZ     R1, sum_done
sum_loop:
        LDR     R3, [R0], #4
        ADD     R2, R2, R3
        SUBS    R1, R1, #1
        BNE     sum_loop
sum_done:
        MOV     R0, R2
        BX      LR

; the number of zero bytes in the n bytes at p
it_count_zero:
        MOVS    R2, #0
count_loop:
        CBZ     R1, count_done
        LDRB    R3, [R0], #1
        SUB     R1, R1, #1
        CBNZ    R3, count_next
        ADD     R2, R2, #1
count_next:
        B.W     count_loop
count_done:
        MOV     R0, R2
        BX      LR

; how many of the n words at p are above b (signed), counted in an IT block
it_count_above:
        MOVS    R3, #0
above_loop:
        CBZ     R1, above_done
        LDR     R12, [R0], #4
        SUBS    R1, R1, #1
        CMP     R12, R2
        IT      GT
        ADDGT   R3, R3, #1
        B       above_loop
above_done:
        MOV     R0, R3
        BX      LR
