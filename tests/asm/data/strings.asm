; Strings in integer directives: each character is one element of the
; directive's size. .string adds nothing; .cstring decodes escapes and ends in 0.
        .data
        .byte   "ab"
        .string "cd", 0x65
        .half   "f"
        .word   "g"
        .long   "h"
        .cstring "a\n", "\101\\\t"
        .cstring "x\000y"
; SECTION: .data: 61 62 63 64 65 00 66 00 67 00 00 00 68 00 00 00 61 0a 00 41 5c 09 00 78 00
