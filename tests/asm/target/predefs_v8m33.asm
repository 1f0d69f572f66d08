; V8M33 with the security extension; -mt on a v6 part stays plain Thumb.
; RUN: %s %o -v8M33 --cmse
        .data
        .byte   __ZQ_ARM_V8M33__, __ZQ_KRV616_V8M__, __ZQ_CMSE__, __ZQ_ARM_V7__
        .byte   __ZQ_ARM_CORTEX_M__, .ZQ_ARM_32BIS
; SECTION: .data: 01 01 01 00 01 01
