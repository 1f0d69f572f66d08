; PLD and PLI take no post-indexed address; write-back is ignored.
; RUN: %s %o -v7A8
        .text
        PLD     [R0, #4]!               ;! W0000 Write-back ignored in PLD instruction
        PLI     [R0, R1]!               ;! W0000 Write-back ignored in PLD instruction
        PLD     [R0], #4                ;! E0004 Illegal operand
        PLD     R0                      ;! E0004 Illegal operand
        PLD     [R0, #-4096]            ;! E0200 Offset out of range, must be [-4095,4095]
        PLD     other                   ;! E0001 Address must be defined in the current section ;! E0004 Illegal operand
        PLDEQ   [R0]                    ;! W0004 Invalid instruction modifier(s) ignored
        .data
other:  .word   0
