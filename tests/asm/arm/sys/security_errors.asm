; SG and TT are v8-M only; TT takes two registers.
; RUN: %s %o -v7M3 -mt
        .text
        sg                              ;! E0002 Instruction only available in V8M33
        tt      r1, r2                  ;! E0002 Instruction only available in V8M33
