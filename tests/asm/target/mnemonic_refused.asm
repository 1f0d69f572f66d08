; A mnemonic that the tables know is parsed and encoded; classes whose
; encoders come with a later step (Thumb, NEON) are refused at their line,
; never written silently; an unknown word stays no mnemonic.
; RUN: %s %o -v7A8
        .text
        add     r0, r1, r2
        .thumb
        it      eq
        addsne  r0, r0, #1      ;! W0004 Incorrect condition code inside of IT block
        vadd.f32 s0, s1, s2     ;! E0002 Encoding of FADDS is not supported yet
        frobnicate r0           ;! E0002 Illegal mnemonic specified
        .state32
        it      eq              ;! E0002 Illegal mnemonic specified
