; ARM v4 in ARM state, big-endian code, no float support: the double-word
; order symbols flip, and no library request symbols are made without the EABI.
; RUN: %s %o -v4 --endian=big
        .data
        .byte   .ZQ_ARM_16BIS, .zq_arm_32bis, .ZQ_ARM_LITTLE, .zq_arm_big
        .byte   .ZQ_ARM_LITTLE_DOUBLE, .ZQ_ARM_BIG_DOUBLE, __ZQ_VFP_SUPPORT__, __ZQ_EABI_ASSEMBLER
        .byte   __ZQ_ARM_V4__, __ZQ_KRV616_V4__, __ZQ_ARM_V5E__, __ZQ_ARM_V7__
        .byte   __ZQ_ARM_CORTEX_M__, __ZQ_NEON_SUPPORT__
; SECTION: .data: 00 01 00 01 00 01 00 00 01 01 00 00 00 00
