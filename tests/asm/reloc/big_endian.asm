; In big-endian code the addends sit in the field in that byte order.
; RUN: --endian=big %s %o
        .global ext
        .text
        bl      ext
        .data
        .word   ext+0x01020304
; RELOC: .text 00000000 R_ARM_PC24 ext
; RELOC: .data 00000000 R_ARM_ABS32 ext
; SECTION: .text: eb ff ff fe
; SECTION: .data: 01 02 03 04
