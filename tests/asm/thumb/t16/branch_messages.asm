; Branch operands and offsets that the 16-bit branches refuse, in plain Thumb
; on v5E (BLX exists there).
; RUN: %s %o -v5e
        .thumb
        .global ext
        b       r0                      ;! E0004 Operand must be a label
        bl      r1                      ;! E0004 Operand must be a label
        bx      here                    ;! E0004 Operand must be a register
        bq      r0                      ;! E0004 Illegal operand
        b       [r0]                    ;! E0004 Illegal operand
        b       3                       ;! E0200 Destination must be on a 2 byte boundary
        b       2048                    ;! E0200 Offset out of range, must be [-2048,2047]
        beq     256                     ;! E0200 Offset out of range, must be [-256,255]
        bne     -258                    ;! E0200 Offset out of range, must be [-256,255]
        bal     here                    ;! W0004 Invalid instruction modifier(s) ignored
        b       ext                     ;! E0001 Address must be defined in the current section
        beq     other                   ;! E0001 Address must be defined in the current section
        bl      0x400000                ;! E0200 Offset out of range, must be [-4194304,4194303]
        bleq    here                    ;! W0004 Invalid instruction modifier(s) ignored
        blx     r0!                     ;! W0000 Operand modifiers ignored
        br      ext                     ; 4 bytes: a relocated branch with link pair
        cret    other                   ;! E0001 Address must be defined in the current section
here:   nop
        .data
other:  .word   0
