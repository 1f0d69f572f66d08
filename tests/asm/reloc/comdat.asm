; Labels of a COMDAT section are never plain section offsets: a difference
; of two of them is still solved, and a word that names one relocates by the
; label's own symbol, as everywhere on this target.
        .sect   ".text.grp"
        .global g1
g1:     .word   g2 - g1
g2:     .word   g2 - g1 + 3
        .word   g2
        .group  g1, 1
        .gmember ".text.grp"
        .endgroup
; SECTION: .text.grp: 04 00 00 00 07 00 00 00 00 00 00 00
; RELOC: .text.grp 00000008 R_ARM_ABS32 g2
