; MOVW and MOVT of an address: the low half is a REL relocation with the
; addend's low half in the field; the high half carries its displacement, so
; it is a RELA relocation whose addend is the whole offset.
; RUN: %s %o -v7A8
        .global ext
        .text
        movw    r0, ext
        movt    r0, ext
        movw    r1, ext+0x12345
        movt    r1, ext+0x12345
        movw    r2, dat
; RELOC: .text 00000000 R_ARM_MOVW_ABS_NC ext
; RELOC: .text 00000008 R_ARM_MOVW_ABS_NC ext
; RELOC: .text 00000010 R_ARM_MOVW_ABS_NC dat
; RELOC: .text 00000004 R_ARM_MOVT_ABS ext 0
; RELOC: .text 0000000c R_ARM_MOVT_ABS ext 74565
; SECTION: .text: 00 00 00 e3 00 00 40 e3 45 13 02 e3 01 10 40 e3 00 20 00 e3
        .data
        .word   0
dat:    .word   0
