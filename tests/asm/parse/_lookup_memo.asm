; The opcode lookup remembers the words it has split: each use of a word
; still gets its messages, and a word means what the current state makes of
; it. Run by tests/e2e/parse_messages_test.cpp.
; RUN: %s %o -v7A8
        .thumb
        swi     1               ;! W0005 Non-UAL opcode used in UAL mode
        swi     1               ;! W0005 Non-UAL opcode used in UAL mode
        addeq   r0, r0, #1      ;! E0002 Condition codes not allowed outside of IT blocks in Thumb.
        addeq   r0, r0, #1      ;! E0002 Condition codes not allowed outside of IT blocks in Thumb.
        .arm
        addeq   r0, r0, #1
        .thumb
        addeq   r0, r0, #1      ;! E0002 Condition codes not allowed outside of IT blocks in Thumb.
