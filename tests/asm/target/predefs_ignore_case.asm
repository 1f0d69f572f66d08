; With symbols read without regard to case there are no lower-case twins to
; enter, and every spelling finds the one symbol.
; RUN: %s %o -c -v6
        .data
        .byte   .zq_arm, .ZQ_Arm_32bis, __zq_arm_v6__, .KRV616_T2IS
; SECTION: .data: 01 01 01 00
