; The alignment operand of .bss and .usect counts bytes; it is rounded up to
; a power of 2, and from 64K on it is ignored.
        .data
        .byte   1
u1      .usect  ".u", 1
u2      .usect  ".u", 4, 3      ;! W0001 Power of 2 required, 4 assumed
u3      .usect  ".u", 1, 65536  ;! W0001 Maximum alignment is to 32K boundary - alignment ignored
u4      .usect  ".u", 1, 0      ;! W0001 Power of 2 required, 1 assumed
u5      .usect  ".u", 1, 2
u6      .usect  ".u", 1, 4294967296 ;! W0000 Specified alignment is outside accessible memory - ignored
        .bss    b1, 3
        .bss    b2, 2, 32768
; SECTION: .u: nobits 12
; SECTION: .bss: nobits 32770
; SYMBOL: u1 00000000 0 OBJECT LOCAL HIDDEN .u
; SYMBOL: u2 00000004 0 OBJECT LOCAL HIDDEN .u
; SYMBOL: u3 00000008 0 OBJECT LOCAL HIDDEN .u
; SYMBOL: u4 00000009 0 OBJECT LOCAL HIDDEN .u
; SYMBOL: u5 0000000a 0 OBJECT LOCAL HIDDEN .u
; SYMBOL: u6 0000000b 0 OBJECT LOCAL HIDDEN .u
; SYMBOL: b1 00000000 3 OBJECT LOCAL HIDDEN .bss
; SYMBOL: b2 00008000 2 OBJECT LOCAL HIDDEN .bss
