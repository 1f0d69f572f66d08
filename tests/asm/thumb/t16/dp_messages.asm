; Operands that the 16-bit ADD, SUB, ALU, shift, CMP and MOV forms refuse, in
; plain Thumb on v4. Each keeps its halfword, so the lines behind are placed
; as if nothing had gone wrong.
; RUN: %s %o -v4
        .thumb
        adds    r8, #1                  ;! E0004 Register Rd cannot be a hi register ;! W0004 Invalid instruction modifier(s) ignored
        adds    r0, #256                ;! E0200 Offset out of range, must be 8 bit immediate
        adds    r0, #-256               ;! E0200 Offset out of range, must be 8 bit immediate
        adds    r0, 4                   ;! E0004 Illegal operand
        add     sp, #3                  ;! E0200 Immediate value must be word aligned
        add     sp, #-512               ;! E0200 Offset out of range, must be |offset|<512
        add     sp, 8                   ;! E0004 Illegal operand
        add     r0, r1                  ;! E0002 Instruction must set status ;! E0004 One of register Rd or Rs must be a hi register
        adds    r0, r1, #-1             ;! E0200 Offset out of range, must be 3 bit immediate
        adds    r0, r1, #8              ;! E0200 Offset out of range, must be 3 bit immediate
        adds    r8, r1, r2              ;! E0004 Destination register Rd cannot be a hi register ;! W0004 Invalid instruction modifier(s) ignored
        adds    r0, r9, r2              ;! E0004 Register Rs cannot be a hi register ;! W0004 Invalid instruction modifier(s) ignored
        adds    r0, r1, r10             ;! E0004 Register Rn cannot be a hi register ;! W0004 Invalid instruction modifier(s) ignored
        add     r0, pc, #3              ;! W0002 Offset not word aligned
        add     r0, sp, #1024           ;! E0200 Offset out of range, must be 10 bit immediate
        add     r8, sp, #4              ;! E0004 Destination register Rd cannot be a hi register
        adds    r0, r1!, #1             ;! W0000 Operand modifiers ignored
        adds    r0, r1, #1!             ;! W0000 Operand modifier(s) ignored
        subs    r8, #1                  ;! E0004 Register Rd cannot be a hi register ;! W0004 Invalid instruction modifier(s) ignored
        subs    r0, #-256               ;! E0200 Offset out of range, must be 8 bit immediate
        subs    r0, r1, #8              ;! E0200 Offset out of range, must be 3 bit immediate
        subs    r0, r1                  ;! E0004 Illegal operand
        lsrs    r0, r1, #0              ;! E0004 LSR Shift count must lie between 1 and 32
        asrs    r0, r1, #0              ;! E0004 ASR Shift count must lie between 1 and 32
        lsls    r0, r1, #32             ;! E0200 Offset out of range, must be 5 bit immediate
        asrs    r0, r1, #33             ;! E0200 Offset out of range, must be 5 bit immediate
        lsls    r0, r1, r2              ;! E0004 Illegal operand
        rsbs    r0, r1, #1              ;! E0004 Third operand in 16-bit RSB must be 0.
        ands    r8, r1                  ;! E0004 Destination register Rd must be a lo register ;! W0004 Invalid instruction modifier(s) ignored
        eors    r0, r9                  ;! E0004 Register Rs must be a lo register ;! W0004 Invalid instruction modifier(s) ignored
        ands    r0, #1                  ;! E0004 Illegal operand
        muls    r1, r1                  ;! W0000 Destination register operand Rd should not be the same as operand Rs
        cmp     r8, #1                  ;! E0004 Register Rd cannot be a hi register
        cmp     r0, #-1                 ;! E0200 Offset out of range, must be 8 bit immediate
        movs    r8, #1                  ;! E0004 Register Rd cannot be a hi register ;! W0004 Invalid instruction modifier(s) ignored
        movs    r0, #256                ;! E0200 Offset out of range, must be 8 bit immediate
        movs    r8, r0                  ;! W0004 Invalid instruction modifier(s) ignored
        mov     r8, r0, lsl #1          ;! E0004 Destination register Rd cannot be a hi register
        cmp     r0, r1, lsl #1          ;! E0004 Illegal operand
