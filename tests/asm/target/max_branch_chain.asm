; A negative maximum branch chain length is warned about on the standard
; error stream and taken as zero; the run still succeeds.
; RUN: %s %o --max_branch_chain=-3
        .data
        .byte   1
; SECTION: .data: 01
