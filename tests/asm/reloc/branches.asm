; Every symbolic branch is left to the linker, also one to a label of its own
; section: R_ARM_PC24 against the target's own symbol, with the addend -8
; (the pipeline offset) in the field.
        .global ext
        .text
start:  b       ext
        bl      ext
        bl      other
        beq     start
        bl      ext+8
        .sect   ".text2"
other:  bx      lr
; RELOC: .text 00000000 R_ARM_PC24 ext
; RELOC: .text 00000004 R_ARM_PC24 ext
; RELOC: .text 00000008 R_ARM_PC24 other
; RELOC: .text 0000000c R_ARM_PC24 start
; RELOC: .text 00000010 R_ARM_PC24 ext
; SECTION: .text: fe ff ff ea fe ff ff eb fe ff ff eb fe ff ff 0a 00 00 00 eb
; SYMBOL: ext 00000000 0 NOTYPE GLOBAL
; SYMBOL: other 00000000 0 FUNC LOCAL
