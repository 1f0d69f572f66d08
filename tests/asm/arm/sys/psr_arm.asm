; MRS and MSR in ARM state: the PSRs, their field letters, the APSR flags,
; the immediate form, and the mask a PSR without fields takes.
; RUN: %s %o -v7A8
        .text
        mrs     r0, cpsr                ; E10F0000
        mrs     r1, spsr                ; E14F1000
        mrs     r2, apsr                ; E10F2000
        mrsne   r3, CPSR                ; 110F3000
        msr     cpsr_c, r0              ; E121F000
        msr     cpsr_fsxc, r1           ; E12FF001
        msr     SPSR_cf, r2             ; E169F002
        msreq   cpsr_s, r4              ; 0124F004
        msr     cpsr_f, #0xf0000000     ; E328F20F
        msr     spsr_x, #0x100          ; E362FC01
        msr     apsr_nzcvq, r3          ; E128F003
        msr     apsr_g, r3              ; E124F003
        msr     APSR_nzcvqg, r3         ; E12CF003
        msr     apsr_nzcvq, #0x80000000 ; E328F102
        msr     cpsr, r6                ; E129F006 ;! W0000 Deprecated use of PSR; flag bits not specified, "cf" assumed
        msr     spsr, r7                ; E169F007 ;! W0000 Deprecated use of PSR; flag bits not specified, "cf" assumed
        msr     apsr, r8                ; E128F008 ;! W0000 Deprecated use of PSR; flag bits not specified, "nzcvq" assumed
        mrs     pc, cpsr                ; E10FF000 ;! W0000 R15 should not be used as a destination operand
        msr     cpsr_c, pc              ; E121F00F ;! W0000 R15 should not be used as an operand
; SECTION: .text: 00 00 0f e1 00 10 4f e1 00 20 0f e1 00 30 0f 11 00 f0 21 e1 01 f0 2f e1 02 f0 69 e1 04 f0 24 01 0f f2 28 e3 01 fc 62 e3 03 f0 28 e1 03 f0 24 e1 03 f0 2c e1 02 f1 28 e3 06 f0 29 e1 07 f0 69 e1 08 f0 28 e1 00 f0 0f e1 0f f0 21 e1
