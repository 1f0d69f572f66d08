; ADR in 32 bits: a label of this section within 4 KiB either way, never a
; number with # or another section.
; RUN: %s %o -v7A8 -mt
        .text
        ADR.W   R0, #8          ;! E0004 Illegal operand
        ADR.W   R1, R2          ;! E0004 Illegal operand
        ADR.W   PC, here        ;! E0004 Specifying R15 as an operand is illegal
here:   ADR.W   R3, there       ;! E0001 Address must be defined in the current section
        ADR.W   R4, 4096        ;! E0200 Offset out of range, must be [-4096,4095]
        ADR.W   R5, far         ;! E0200 Offset out of range, must be [-4096,4095]
        ADR.W   R7, -4096       ;! E0200 Offset out of range, must be [-4095,4095]
        ADR.W   R8, -4095       ; SUBW R8, PC, #4095
        .space  4088
far:    ADR.W   R6, here        ;! E0200 Offset out of range, must be [-4096,4095]
        .sect   ".text.b"
there:  .word   0
