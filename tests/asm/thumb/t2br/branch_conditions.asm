; A call has no condition field, and a branch with AL or NV is no
; conditional word: each is encoded unconditional, with a warning.
; RUN: %s %o -v7A8 -mt
        .text
        BLEQ    8               ;! W0004 Invalid instruction modifier(s) ignored
        BAL.W   8               ;! W0004 Invalid instruction modifier(s) ignored
        BNV.W   8               ;! W0004 Invalid instruction modifier(s) ignored
        BNE.W   8
; SECTION: .text: 00 f0 04 f8 00 f0 04 b8 00 f0 04 b8 40 f0 04 80
