; Hand-written relocations: with --zq:manual_relocs they are the only ones,
; at the given offset from the (aligned) current address; a bad operand is
; a warning and the line is left out.
; RUN: %s %o --zq:manual_relocs
        .global ext
        .data
        .byte   1
here:   .reloc  OFR_RELLONG, 0, false, ext
        .word   ext
        .reloc  OFR_ARM_MOVT_ABS, 4, true, -8, ext
        .reloc  OFR_PCRLONG, 0, false, here
        .reloc  BOGUS, 0, false, ext            ;! W0000 Invalid relocation type; skipping
        .reloc  OFR_RELLONG, x, false, ext      ;! W0000 expecting integer value for offset value;skipping
        .reloc  OFR_RELLONG, 0, maybe, ext      ;! W0000 expecting "true" or "false" for second agrument; skipping
        .reloc  OFR_RELLONG, 0, true, x, ext    ;! W0000 expecting integer value for addend value;skipping
        .reloc  OFR_RELLONG, 0, false, 3        ;! W0000 expecting symbol name; skipping
        .reloc  OFR_RELLONG, 0, false, nosuch   ;! W0000 symbol "nosuch" not found; skipping
; RELOC: .data 00000004 R_ARM_ABS32 ext
; RELOC: .data 00000008 R_ARM_REL32 here
; RELOC: .data 0000000c R_ARM_MOVT_ABS ext -8
; SYMBOL: here 00000004 0 OBJECT LOCAL
; SECTION: .data: 01 00 00 a0 00 00 00 00
