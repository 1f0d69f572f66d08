; The parser's messages in the Thumb states. Run by
; tests/e2e/parse_messages_test.cpp, which lets the encoder add its own.
; RUN: %s %o -v7A8
        .thumb
        addeq   r0, r0, #1      ;! E0002 Condition codes not allowed outside of IT blocks in Thumb.
        beq     0
        swi     1               ;! W0005 Non-UAL opcode used in UAL mode
        bl.n    0               ;! E0800 Instruction does not have narrow encoding
        neg     r0, r1          ;! E0002 Instruction must set status
        rrx     r0              ;! E0003 Insufficient number of operands
        rrx     r0, #1          ;! E0003 Invalid operand
        msr     cpsr_all, r0    ;! E0004 Deprecated use of PSR; use "cf" instead of "all"
        .state16
        movseq  r0, #1          ;! W0004 Invalid instruction modifier(s) ignored
        swi     1
        .thumb
        itx     eq              ;! E0003 Invalid modifier in If-Then (IT) instruction
