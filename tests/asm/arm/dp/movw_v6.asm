; MOVW and MOVT are refused below v7.
; RUN: %s %o -v6
        .text
        movw    r0, #0x1234             ;! E0002 Instruction only available in V7 and higher
        movt    r1, #0x5678             ;! E0002 Instruction only available in V7 and higher
