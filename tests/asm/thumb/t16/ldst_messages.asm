; Addresses that the 16-bit loads and stores refuse or warn about, in plain
; Thumb on v4.
; RUN: %s %o -v4
        .thumb
back:   ldr     r0, [r8, #4]            ;! E0004 Base register Rb cannot be a hi register
        ldr     r0, [r1, r8]            ;! E0004 Offset register Ro cannot be a hi register
        ldr     r8, [r1, r2]            ;! E0004 Destination register Rd cannot be a hi register
        ldr     r0, [r1, r2, lsl #2]    ;! W0000 Shift amount ignored
        ldr     r0, [r1, -r2]           ;! E0004 Illegal operand
        ldr     r0, [r1, #3]            ;! W0002 Offset not word aligned
        ldr     r0, [r1, #128]          ;! E0200 Offset out of range, must be 7 bit immediate
        ldr     r0, [r1, #-4]           ;! E0200 Offset out of range, must be 7 bit immediate
        ldr     r0, [r1, #4]!           ;! W0000 Invalid operand modifier(s) ignored
        ldr     r0, [r1], #4            ;! E0004 Illegal operand
        ldr     r8, [sp, #4]            ;! E0004 Destination register Rd cannot be a hi register
        str     r0, [sp, #1024]         ;! E0200 Offset out of range, must be 10 bit immediate
        ldr     r0, [pc, #1020]
        ldr     r0, [pc, #2]            ;! W0002 Offset not word aligned
        str     r0, [pc, #4]            ;! E0004 Base register Rb cannot be a hi register
        str     r0, label               ;! E0004 Illegal operand
        ldr     r0, far                 ;! E0200 Offset out of range, must be [0,1023]
        ldr     r0, label + 2           ;! E0200 Destination must be on a 4 byte boundary
        ldr     r0, other               ;! E0001 Address must be defined in the current section
        ldrb    r0, [r1, #32]           ;! E0200 Offset out of range, must be 5 bit immediate
        ldrb    r0, [sp, #4]            ;! E0004 Base register Rb cannot be a hi register
        strb    r0, [r1, r2, lsl #1]    ;! W0000 Shift amount ignored
        ldrh    r0, [r1, #3]            ;! W0002 Offset not halfword aligned
        strh    r0, [r1, #64]           ;! E0200 Offset out of range, must be 5 bit immediate
        ldrh    r0, [r9]                ;! E0004 Base register Rb cannot be a hi register
        ldrsb   r0, [r1, #0]            ;! E0004 Illegal operand
        ldrsh   r0, [r1]                ;! E0004 Illegal operand
        ldrsh   r0, [r1, r10]           ;! E0004 Offset register Ro cannot be a hi register
        adr     r8, label               ;! E0004 Destination register Rd must be a lo register
        adr     r0, back                ;! E0200 Offset out of range, must be [0,1023]
        adr     r0, r1                  ;! E0004 Illegal operand
        nop
        .align  4
label:  .word   0
        .space  1024
far:    .word   0
        .data
other:  .word   0
