; .bss and .usect reserve uninitialised space and leave the current section
; as it was. Without an alignment operand the next free byte is taken,
; whatever the size; several .usect of one name share that section.
        .data
dat1:     .byte   1
        .bss    b1, 1
        .bss    b2, 4
lab     .bss    b3, 8, 8
        .bss    b4, 2
u1      .usect  ".ubuf", 3
u2      .usect  ".ubuf", 4, 4
u3      .usect  ".ubuf", 1
dat2:     .byte   2
; SECTION: .data: 01 02
; SECTION: .bss: nobits 24
; SECTION: .ubuf: nobits 9
; SYMBOL: dat2 00000001 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: b1 00000000 1 OBJECT LOCAL HIDDEN .bss
; SYMBOL: b2 00000001 4 OBJECT LOCAL HIDDEN .bss
; SYMBOL: b3 00000008 8 OBJECT LOCAL HIDDEN .bss
; SYMBOL: lab 00000008 0 OBJECT LOCAL HIDDEN .bss
; SYMBOL: b4 00000010 2 OBJECT LOCAL HIDDEN .bss
; SYMBOL: u1 00000000 0 OBJECT LOCAL HIDDEN .ubuf
; SYMBOL: u2 00000004 0 OBJECT LOCAL HIDDEN .ubuf
; SYMBOL: u3 00000008 0 OBJECT LOCAL HIDDEN .ubuf

; A global .bss symbol keeps its size.
        .global gb
        .bss    gb, 6
; SYMBOL: gb 00000012 6 OBJECT GLOBAL HIDDEN .bss
