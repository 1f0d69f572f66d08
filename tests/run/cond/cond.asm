; Conditional execution: every condition after each kind of flag setting.
; Each function sets bit i of R0 when the i-th condition of
; EQ NE CS CC MI PL VS VC HI LS GE LT GT LE holds; bit 14 is always set.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global cond_cmp
        .global cond_cmn
        .global cond_tst
        .global cond_teq
        .global cond_adds
        .global cond_subs_imm
        .global cond_rsbs_shift
        .global cond_ands_rot
        .global cond_ands_plain
        .global cond_flags

; flags of CMP a, b
cond_cmp:
        CMP     R0, R1
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORRAL   R0, R0, #1 << 14
        BX      LR

; flags of CMN a, b, with the other spellings of carry set and clear
cond_cmn:
        CMN     R0, R1
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRHS   R0, R0, #1 << 2
        ORRLO   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; TST takes the carry from the shifter: CMP R0, R0 first sets C and
; clears V so that the rest of the flags is known
cond_tst:
        CMP     R0, R0
        TST     R0, R1, LSL #1
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; TEQ with the carry shifted out at the bottom
cond_teq:
        CMP     R0, R0
        TEQ     R0, R1, LSR #1
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRHS   R0, R0, #1 << 2
        ORRLO   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; flags of ADDS
cond_adds:
        ADDS    R2, R0, R1
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; flags of SUBS with a rotated immediate
cond_subs_imm:
        SUBS    R2, R0, #0x80000000
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; flags of RSBS with a register-shifted operand
cond_rsbs_shift:
        RSBS    R2, R0, R1, ASR R1
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRHS   R0, R0, #1 << 2
        ORRLO   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; a rotated immediate of a logical operation gives C its top bit
cond_ands_rot:
        CMP     R0, R0
        ANDS    R2, R0, #0x3FC
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; an unrotated one leaves C alone
cond_ands_plain:
        CMP     R0, R0
        ANDS    R2, R0, #0xFF
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR

; the flags as given in the top four bits of a
cond_flags:
        MSR     CPSR_f, R0
        MOV     R0, #0
        ORREQ   R0, R0, #1 << 0
        ORRNE   R0, R0, #1 << 1
        ORRCS   R0, R0, #1 << 2
        ORRCC   R0, R0, #1 << 3
        ORRMI   R0, R0, #1 << 4
        ORRPL   R0, R0, #1 << 5
        ORRVS   R0, R0, #1 << 6
        ORRVC   R0, R0, #1 << 7
        ORRHI   R0, R0, #1 << 8
        ORRLS   R0, R0, #1 << 9
        ORRGE   R0, R0, #1 << 10
        ORRLT   R0, R0, #1 << 11
        ORRGT   R0, R0, #1 << 12
        ORRLE   R0, R0, #1 << 13
        ORR     R0, R0, #1 << 14
        BX      LR
