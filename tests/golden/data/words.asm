; The runner on data directives, which assemble before any instruction does:
; ARM words, Thumb halfwords and Thumb-2 pairs spelled as instruction values.
        .word   0xe2411001              ;= e2411001
        .word   0                       ;= 00000000
        .word   0xffffffff              ;= ffffffff
label   .word   next - label            ;= 00000004  ; note: labels of the file stay usable
next    .short  0x1840                  ;= 1840
        .short  0xbf00                  ;= bf00
        .short  0xf8d1, 0x0004          ;= f8d1 0004
        .short  0xf000, 0xb800          ;= f000 b800
