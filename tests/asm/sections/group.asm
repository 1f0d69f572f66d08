; A COMDAT group: its member sections are named between .group and
; .endgroup, and its signature is the symbol of the group's name.
        .sect   ".text.f"
        .byte   1
        .sect   ".data.f"
        .byte   2
        .global grp
grp:    .byte   3
        .group  "grp", 1

        .gmember ".text.f"
        .gmember ".data.f"
        .endgroup
        .byte   4
; SECTION: .text.f: 01
; SECTION: .data.f: 02 03 04
; SECTION: grp: 01 00 00 00 04 00 00 00 03 00 00 00
