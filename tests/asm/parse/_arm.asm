; The parser's messages in ARM state, each at its line. Run by
; tests/e2e/parse_messages_test.cpp, which lets the encoder add its own.
; RUN: %s %o -v7A8
        .text
        frobnicate r0           ;! E0002 Illegal mnemonic specified
        addqq   r0, r1, r2      ;! W0004 Invalid instruction modifier(s) ignored
        add     r0, , r1        ;! E0005 Operand missing
        mov     r0, #undefined_thing ;! E0001 Undefined symbol
        mov     r0, #cpsr       ;! E0004 Expression must evaluate to an absolute constant
        mov     r0, r1, lsl pc  ;! E0004 R15 (PC) cannot specify register shift amount
        mov     r0, r1, lsl s0  ;! E0004 Illegal operands for a shifted register
        lsl     r0, #1, r2      ;! E0003 Invalid operand
        ldr     r0, [s1]        ;! E0003 Invalid base register
        ldr     r0, [r1         ;! W0000 Missing right bracket, one assumed
        ldr     r0, [r1, #4     ;! W0000 Missing right bracket, one assumed
        ldr     r0, [r1, pc]    ;! E0004 Register offset (Rm) cannot be R15 (PC)
        ldr     r0, [r1, r2, lsl r3] ;! E0004 Shift amount cannot be specified with a register
        ldr     r0, [r1, 4]     ;! E0003 Invalid shift register
        ldc     p1, c2, [r1], {5 ;! W0000 Missing right brace, one assumed
        ldm     r0, {}          ;! W0000 Register list is empty
        ldm     r0, {r3-r0}     ;! E0003 Invalid register range
        ldm     r0, {r0, s1}    ;! E0003 Invalid register
        ldm     r0, {r0 r1}     ;! E0003 Invalid register list
        msr     cpsr_all, r0    ;! W0000 Deprecated use of PSR; use "cf" instead of "all"
        msr     spsr_flg, r0    ;! W0000 Deprecated use of PSR; use "f" instead of "flg"
        msr     cpsr_fq, r0     ;! E0004 Illegal PSR field specifier: 'q'
        b       1.5             ;! E0001 Illegal symbol
        b       nowhere         ;! E0001 Undefined symbol
        mov     r0 r1           ;! E0003 Unexpected trailing operand(s)
        vmov    r0, d1[x]       ;! E0003 Invalid register indexing. Must be one of Dd[x], Dd[], Qd[]
        vld1    {d0}, [r1@48]   ;! E0002 Illegal Alignment
        setend  middle          ;! E0003 Invalid operand. Must be BE or LE.
        cpsid   a_b             ;! E0003 Operand must be a CPS flag concatenation.
        ldm     r0^, {r1}
        add     r0, r1, r2
