; LDM and STM: stack frames that save what the procedure call standard says
; a callee keeps, arguments past the fourth on the stack, locals, and the
; four block modes with and without writeback under both sets of names.
; BUILD: -v4
; BUILD: -v5e
; BUILD: -v6
; BUILD: -v7A8
; BUILD: -v7R4
        .text
        .global stk_sum8
        .global stk_clobber
        .global stk_locals
        .global stk_copy8
        .global stk_ldm_modes
        .global stk_stm_modes
        .global stk_call_kept

; a + 2b + 3c + 4d + 5e + 6f + 7g + 8h; e to h come on the stack
stk_sum8:
        PUSH    {R4-R7, LR}
        ADD     R12, SP, #20
        LDMIA   R12, {R4-R7}
        ADD     R0, R0, R1, LSL #1
        ADD     R2, R2, R2, LSL #1
        ADD     R0, R0, R2
        ADD     R0, R0, R3, LSL #2
        ADD     R4, R4, R4, LSL #2
        ADD     R0, R0, R4
        MOV     R12, #6
        MLA     R0, R5, R12, R0
        RSB     R6, R6, R6, LSL #3
        ADD     R0, R0, R6
        ADD     R0, R0, R7, LSL #3
        POP     {R4-R7, PC}

; uses every register a callee must keep, and gives them back
stk_clobber:
        STMFD   SP!, {R4-R11, LR}
        ADD     R4, R0, #1
        ADD     R5, R4, R4, LSL #1
        EOR     R6, R5, R0, ROR #7
        SUB     R7, R6, R4
        MVN     R8, R7
        ADD     R9, R8, R5, LSR #3
        ORR     R10, R9, #0x8000
        RSB     R11, R10, R6
        ADD     R0, R4, R5
        ADD     R0, R0, R6
        EOR     R0, R0, R7
        ADD     R0, R0, R8
        SUB     R0, R0, R9
        EOR     R0, R0, R10
        ADD     R0, R0, R11
        MOV     LR, #0
        LDMFD   SP!, {R4-R11, PC}

; a, b, c, d kept as locals; returns b - c + (d ror 8) ^ a, with a single
; register pushed and popped around it
stk_locals:
        PUSH    {R4}
        SUB     SP, SP, #16
        STMIA   SP, {R0-R3}
        MOV     R0, #0
        MOV     R1, #0
        LDMIB   SP, {R0, R1}
        LDR     R2, [SP, #12]
        LDR     R4, [SP]
        SUB     R0, R0, R1
        ADD     R0, R0, R2, ROR #8
        EOR     R0, R0, R4
        ADD     SP, SP, #16
        POP     {R4}
        BX      LR

; copies eight words and returns the end of the destination
stk_copy8:
        STMFD   SP!, {R4-R9}
        LDMIA   R1!, {R2-R9}
        STMIA   R0!, {R2-R9}
        LDMFD   SP!, {R4-R9}
        BX      LR

; stk_ldm_modes(p, out): every mode from a base at p + 4, the loaded pairs
; stored to out in turn; returns the last written-back base minus p
stk_ldm_modes:
        ADD     R2, R0, #16
        LDMIB   R2, {R3, R12}                   ; p[5], p[6]
        STMIA   R1!, {R3, R12}
        LDMDA   R2, {R3, R12}                   ; p[3], p[4]
        STMIA   R1!, {R3, R12}
        LDMDB   R2, {R3, R12}                   ; p[2], p[3]
        STMIA   R1!, {R3, R12}
        LDMIA   R2, {R3, R12}                   ; p[4], p[5]
        STMIA   R1!, {R3, R12}
        LDMED   R2!, {R3}                       ; p[5], base p + 5
        LDMFA   R2!, {R12}                      ; p[5], base p + 4
        STMEA   R1!, {R3, R12}
        LDMEA   R2!, {R3, R12}                  ; p[2], p[3], base p + 2
        STMIA   R1!, {R3, R12}
        LDMFD   R2!, {R3, R12}                  ; p[2], p[3], base p + 4
        STMIA   R1, {R3, R12}
        SUB     R0, R2, R0
        BX      LR

; stk_stm_modes(p, v): v, v + 1, v + 2 stored in every mode; returns the
; last written-back base minus p
stk_stm_modes:
        ADD     R2, R1, #1
        ADD     R3, R1, #2
        STMIA   R0, {R1, R2}                    ; p[0], p[1] = v, v + 1
        ADD     R12, R0, #12
        STMIB   R12, {R1, R3}                   ; p[4], p[5] = v, v + 2
        ADD     R12, R0, #28
        STMDA   R12, {R2, R3}                   ; p[6], p[7] = v + 1, v + 2
        ADD     R12, R0, #44
        STMDB   R12!, {R1-R3}                   ; p[8..10] = v .. v + 2, base p + 8
        ADD     R12, R0, #48
        STMEA   R12!, {R3}                      ; p[12] = v + 2, base p + 13
        STMFA   R12!, {R2}                      ; p[14] = v + 1, base p + 14
        STMED   R12!, {R1, R3}                  ; p[13], p[14] = v, v + 2, base p + 12
        STMFD   R12!, {R2}                      ; p[11] = v + 1, base p + 11
        SUB     R0, R12, R0
        BX      LR

; stk_call_kept(fn, a, out): calls fn(a) through a register with R4-R11 set
; to known values, stores the result to out[0], and returns a bit for each of
; R4-R11 that fn did not give back (bit 8 for SP)
stk_call_kept:
        STMFD   SP!, {R4-R11, LR}
        MOV     R12, R0
        MOV     R0, R1
        MOV     R4, #0x44
        MVN     R5, #0x55
        MOV     R6, #0x66000000
        MOV     R7, #0x770
        MVN     R8, #0x88000
        MOV     R9, #0x99
        MOV     R10, #0xAA00
        MOV     R11, #0xBB0000
        MOV     R3, SP
        STMFD   SP!, {R2, R3}
        MOV     LR, PC
        BX      R12
        LDMFD   SP!, {R2, R3}
        SUB     R3, SP, R3
        STR     R0, [R2]
        MOV     R0, #0
        TEQ     R4, #0x44
        ORRNE   R0, R0, #1 << 0
        CMN     R5, #0x56
        ORRNE   R0, R0, #1 << 1
        TEQ     R6, #0x66000000
        ORRNE   R0, R0, #1 << 2
        TEQ     R7, #0x770
        ORRNE   R0, R0, #1 << 3
        MVN     R12, #0x88000
        TEQ     R8, R12
        ORRNE   R0, R0, #1 << 4
        TEQ     R9, #0x99
        ORRNE   R0, R0, #1 << 5
        TEQ     R10, #0xAA00
        ORRNE   R0, R0, #1 << 6
        TEQ     R11, #0xBB0000
        ORRNE   R0, R0, #1 << 7
        TEQ     R3, #0
        ORRNE   R0, R0, #1 << 8
        LDMFD   SP!, {R4-R11, PC}
