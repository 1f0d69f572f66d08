; A Thumb-2 word other than a barrier or a status register move on v6-M.
; RUN: %s %o -v6M0 -mt
        .text
        clrex                           ;! E0002 Unsupported Thumb-2 instruction for v6M0 ;! E0002 Instruction only available in V7 and higher
        mrs     r0, primask
