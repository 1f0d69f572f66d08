; BL and BLX of a label are two halfwords with one R_ARM_THM_CALL on the
; first, the addend in the fields; B of a label in the section needs none.
; RUN: %s %o -v5e
        .thumb
        .global ext
start:  bl      ext
        blx     ext
        bl      start
        b       start
        blx     r3
        bx      lr
; SECTION: .text: ff f7 fe ff ff f7 fe ef ff f7 fe ff f8 e7 98 47 70 47
; RELOC: .text 00000000 R_ARM_THM_CALL ext
; RELOC: .text 00000004 R_ARM_THM_CALL ext
; RELOC: .text 00000008 R_ARM_THM_CALL start
