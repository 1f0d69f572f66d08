; Big-endian: BL and BLX of a label are two halfwords with one R_ARM_THM_CALL on the
; first, the addend in the fields; B of a label in the section needs none.
; RUN: %s %o -v5e --endian=big
        .thumb
        .global ext
start:  bl      ext
        blx     ext
        bl      start
        b       start
        blx     r3
        bx      lr
; SECTION: .text: f7 ff ff fe f7 ff ef fe f7 ff ff fe e7 f8 47 98 47 70
; RELOC: .text 00000000 R_ARM_THM_CALL ext
; RELOC: .text 00000004 R_ARM_THM_CALL ext
; RELOC: .text 00000008 R_ARM_THM_CALL start
