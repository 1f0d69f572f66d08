; Data relocations are REL: the addend stays in the field. A label names its
; own symbol and the location counter its section's; the difference of two
; labels of one section is a constant, and "label - $" a pc-relative word.
        .global ext
        .data
dst:    .word   ext
        .word   ext+8
        .word   ext-4
        .half   ext
        .half   0
        .word   lab2
        .word   lab2 + 12
        .word   lab2 - lab1
        .word   lab1 - $
        .word   ext - $
        .word   $ + 8
        .sect   ".other"
lab1:   .word   0
lab2:   .word   0
; RELOC: .data 00000000 R_ARM_ABS32 ext
; RELOC: .data 00000004 R_ARM_ABS32 ext
; RELOC: .data 00000008 R_ARM_ABS32 ext
; RELOC: .data 0000000c R_ARM_ABS16 ext
; RELOC: .data 00000010 R_ARM_ABS32 lab2
; RELOC: .data 00000014 R_ARM_ABS32 lab2
; RELOC: .data 0000001c R_ARM_REL32 lab1
; RELOC: .data 00000020 R_ARM_REL32 ext
; RELOC: .data 00000024 R_ARM_ABS32 .data
; SECTION: .data: 00 00 00 00 08 00 00 00 fc ff ff ff 00 00 00 00 00 00 00 00 0c 00 00 00 04 00 00 00 00 00 00 00 00 00 00 00 2c 00 00 00
