; A data-only source becomes an object whose sections, symbols and flags are
; exactly what the source says: data of every size, strings, floats, fields,
; alignment, reserved space, common, global, weak and hidden symbols,
; constants and a COMDAT group.
        .global gword, ghalf, wk, hid, cbuf, unused_ext
        .weak   wk
        .hidden hid
        .export gword
        .common cbuf, 32, 8

        .data
gword:  .word   0x11223344, -1
ghalf:  .half   0x5566
        .byte   1, 2, 3
        .align  8
wk:     .long   7
hid:    .field  3, 4
        .field  5, 4
        .string "ab"
        .cstring "c"
        .float  1.0
        .double 1.0
        .space  3
tail:   .ubyte  255
; SECTION: .data: 44 33 22 11 ff ff ff ff 66 55 01 02 03 00 00 a0 07 00 00 00 53 61 62 63 00 00 00 a0 00 00 80 3f 00 00 00 00 00 00 f0 3f 00 00 00 ff

        .sect   ".rodata"
ro:     .word   0xCAFEBABE
        .sect   "mysect", RW
my:     .short  1, 2
; SECTION: .rodata: be ba fe ca
; SECTION: mysect: 01 00 02 00

        .bss    buf, 16, 16
arr     .usect  ".ubss", 24, 4
; SECTION: .bss: nobits 16
; SECTION: .ubss: nobits 24

K       .equ    42
L       .set    K * 2

        .sect   ".text.grouped"
cf:     .word   1
        .global grouped
grouped: .word  2
        .group  grouped, 1
        .gmember ".text.grouped"
        .endgroup
; SECTION: .text.grouped: 01 00 00 00 02 00 00 00

; SYMBOL: gword 00000000 0 OBJECT GLOBAL DEFAULT .data
; SYMBOL: ghalf 00000008 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: wk 00000010 0 OBJECT WEAK HIDDEN .data
; SYMBOL: hid 00000014 0 OBJECT GLOBAL HIDDEN .data
; SYMBOL: tail 0000002b 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: cbuf 00000008 32 COMMON GLOBAL HIDDEN COM
; SYMBOL: ro 00000000 0 OBJECT LOCAL HIDDEN .rodata
; SYMBOL: my 00000000 0 OBJECT LOCAL HIDDEN mysect
; SYMBOL: buf 00000000 16 OBJECT LOCAL HIDDEN .bss
; SYMBOL: arr 00000000 0 OBJECT LOCAL HIDDEN .ubss
; SYMBOL: K 0000002a 0 NOTYPE LOCAL HIDDEN ABS
; SYMBOL: L 00000054 0 NOTYPE LOCAL HIDDEN ABS
; SYMBOL: cf 00000000 0 OBJECT LOCAL HIDDEN .text.grouped
; SYMBOL: .data 00000000 0 SECTION LOCAL HIDDEN .data
