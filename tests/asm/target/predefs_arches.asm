; The architecture symbols of a v7R5 part: it is also a v7R4 and a v7; the
; Thumb state is Thumb-2 there. Symbols of a missing option are 0.
; RUN: %s %o -mt -v7R5 --float_support=fpv4spd16 --cmse --embedded_constants=off
        .data
        .byte   __ZQ_ARM_V7R5__, __ZQ_KRV616_V7R5__, __ZQ_ARM_V7R4__, __ZQ_KRV616_V7R4__
        .byte   __ZQ_ARM_V7__, __ZQ_ARM_V7A8__, __ZQ_ARM_V8M33__, __ZQ_CMSE__
        .byte   .ZQ_ARM_T2IS, .ZQ_ARM_16BIS, __ZQ_FPV4SPD16_SUPPORT__, __ZQ_VFP_SUPPORT__
        .byte   __ZQ_AVOID_EMBEDDED_CONSTANTS, __ZQ_ARM_V6M0__
; SECTION: .data: 01 01 01 01 01 00 00 00 01 01 01 01 01 00
