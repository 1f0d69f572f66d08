; Predefined symbols on a Cortex-M3 in Thumb-2 state with VFPv3 and NEON,
; and the lower-case twins of the names that begin with a point.
; RUN: %s %o -v7M3 -mt --float_support=vfpv3 --neon --abi=eabi
        .data
        .word   .ZQ_ARM, .KRV616, .zq_arm, .krv616
        .word   .ZQ_ARM_16BIS, .ZQ_ARM_T2IS, .zq_arm_t2is, .ZQ_ARM_32BIS
        .word   .ZQ_ARM_LITTLE, .ZQ_ARM_BIG, .zq_arm_little_double, .ZQ_ARM_BIG_DOUBLE
        .byte   __ZQ_VFPV2_SUPPORT__, __ZQ_VFPV3_SUPPORT__, __ZQ_VFPV3D16_SUPPORT__
        .byte   __ZQ_FPV4SPD16_SUPPORT__, __ZQ_VFP_SUPPORT__, __ZQ_NEON_SUPPORT__
        .byte   __ZQ_EABI_ASSEMBLER, __ZQ_ARM7ABI_ASSEMBLER, __ZQ_ARM9ABI_ASSEMBLER
        .byte   __ZQ_ARM_V7M3__, __ZQ_KRV616_V7M3__, __ZQ_ARM_V7M__, __ZQ_ARM_CORTEX_M__
        .byte   __ZQ_ARM_V7__, __ZQ_ARM_V7M4__, __ZQ_ARM_V8M__, __ZQ_CMSE__
        .byte   __ZQ_AVOID_EMBEDDED_CONSTANTS
; SECTION: .data: 01 00 00 00 01 00 00 00 01 00 00 00 01 00 00 00 01 00 00 00 01 00 00 00 01 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 00 01 00 00 01 01 01 00 00 01 01 01 01 01 00 00 00 00
; SYMBOL: Lib$$Request$$armlib 00000000 0 FUNC GLOBAL
; SYMBOL: Lib$$Request$$cpplib 00000000 0 FUNC GLOBAL
