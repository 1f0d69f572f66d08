; A mnemonic that the tables know is parsed and reaches the encoder, which
; refuses it at its line for now; an unknown word stays no mnemonic.
; RUN: %s %o -v7A8
        .text
        add     r0, r1, r2      ;! E0002 Instruction parsing is not supported yet
        .thumb
        it      eq              ;! E0002 Instruction parsing is not supported yet
        addsne  r0, r0, #1      ;! E0002 Instruction parsing is not supported yet
        vadd    s0, s1, s2      ;! E0002 Instruction parsing is not supported yet
        frobnicate r0           ;! E0002 Illegal mnemonic specified
        .state32
        it      eq              ;! E0002 Illegal mnemonic specified
