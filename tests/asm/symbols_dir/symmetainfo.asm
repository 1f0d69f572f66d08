; Meta information of symbols goes to the symbol meta section.
        .data
        .global m
m:      .byte   1
        .symmetainfo m, "SMK_RETAIN", "1"
        .sym_meta_info m, "SMK_LOCATION", "256"
; OBJECT: yes
