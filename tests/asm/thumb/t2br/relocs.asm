; Every symbolic 32-bit branch is left to the linker, also one to a label of
; its own section: B.W and CRET take R_ARM_THM_JUMP24, a conditional B.W
; R_ARM_THM_JUMP19, BL and BLX R_ARM_THM_CALL, each with the addend -4 (the
; pipeline offset) in its field. BL to ARM code is a BL: the linker makes it
; a BLX. ADR and CBZ resolve in place and need no relocation.
; RUN: %s %o -v7A8 -mt --abi=eabi
        .global ext
        .text
tfn:    B.W     ext
        BL      ext
        BEQ.W   ext
        BL      tfn
        BL      afn
        BLX     afn
        B.W     other
        BL      ext+8
        BEQ.W   tfn
        CRET    ext
        ADR.W   R0, tfn
        CBZ     R0, afn
        .align  4
        .arm
afn:    BL      tfn             ; a BLX with its halfword bit
        BLX     tfn
        BL      ext
        .sect   ".text2"
        .thumb
other:  BL      afn
; RELOC: .text 00000000 R_ARM_THM_JUMP24 ext
; RELOC: .text 00000004 R_ARM_THM_CALL ext
; RELOC: .text 00000008 R_ARM_THM_JUMP19 ext
; RELOC: .text 0000000c R_ARM_THM_CALL tfn
; RELOC: .text 00000010 R_ARM_THM_CALL afn
; RELOC: .text 00000014 R_ARM_THM_CALL afn
; RELOC: .text 00000018 R_ARM_THM_JUMP24 other
; RELOC: .text 0000001c R_ARM_THM_CALL ext
; RELOC: .text 00000020 R_ARM_THM_JUMP19 tfn
; RELOC: .text 00000024 R_ARM_THM_JUMP24 ext
; RELOC: .text 00000030 R_ARM_PC24 tfn
; RELOC: .text 00000034 R_ARM_PC24 tfn
; RELOC: .text 00000038 R_ARM_PC24 ext
; RELOC: .text2 00000000 R_ARM_THM_CALL afn
; SYMBOL: tfn 00000001 0 FUNC LOCAL
; SYMBOL: afn 00000030 0 FUNC LOCAL
; SYMBOL: other 00000001 0 FUNC LOCAL
; SYMBOL: $t 00000000 0 NOTYPE LOCAL
; SYMBOL: $a 00000030 0 NOTYPE LOCAL
