; Without --zq:manual_relocs the directive is unknown.
        .data
        .reloc  OFR_RELLONG, 0, false, ext      ;! E0000 Illegal mnemonic specified
