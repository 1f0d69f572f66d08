; MOVW and MOVT of a symbol in Thumb-2 leave their Thumb-2 relocations; the
; field keeps the addend's half (MOVT the bits from 16 up), and a MOVT whose
; addend the field cannot hold carries it in an entry with an addend.
; RUN: %s %o -v7M3
        .thumb
        .global ext
        movw    r0, ext
        movt    r0, ext+0x12345
        movw    r9, ext+0x12345
; SECTION: .text: 40 f2 00 00 c0 f2 01 00 42 f2 45 39
; RELOC: .text 00000000 R_ARM_THM_MOVW_ABS_NC ext
; RELOC: .text 00000008 R_ARM_THM_MOVW_ABS_NC ext
; RELOC: .text 00000004 R_ARM_THM_MOVT_ABS ext 74565
