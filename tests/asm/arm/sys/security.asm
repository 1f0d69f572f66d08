; The v8-M security instructions: SG, and TT with its A and T letters.
; RUN: %s %o -v8M33 -mt
        .text
        sg                              ; E97FE97F
        tt      r1, r2                  ; E842F100
        tta     r3, r4                  ; E844F380
        ttt     r5, r6                  ; E846F540
        ttat    r7, r8                  ; E848F7C0
; SECTION: .text: 7f e9 7f e9 42 e8 00 f1 44 e8 80 f3 46 e8 40 f5 48 e8 c0 f7
