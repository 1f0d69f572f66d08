; A data section that receives code (here by .vinstr) ends up executable and
; read-only, and a global label in it names a function; a .text that held
; only data ends up as data.
        .global entry, tdata
        .sect   "rwcode", RW
        .word   0
entry:  .vinstr 0xE1A00000
        .text
tdata:  .word   5
; SECTION: rwcode: 00 00 00 00 00 00 a0 e1
; SYMBOL: entry 00000004 0 FUNC GLOBAL HIDDEN rwcode
; SYMBOL: tdata 00000000 0 OBJECT GLOBAL HIDDEN .text
