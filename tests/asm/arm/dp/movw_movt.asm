; MOVW and MOVT in ARM state, with a condition and at the ends of their range.
; RUN: %s %o -v7A8
        .text
        movw    r0, #0
        movw    r1, #0xffff
        movt    r2, #0xabcd
        movwgt  r3, #0x1234
        movtne  lr, #1
; SECTION: .text: 00 00 00 e3 ff 1f 0f e3 cd 2b 4a e3 34 32 01 c3 01 e0 40 13
