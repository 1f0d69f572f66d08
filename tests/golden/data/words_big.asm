; The same lines big-endian: the expected values do not change with the byte order.
; RUN: %s %o --endian=big
        .word   0xe2411001              ;= e2411001
        .word   0                       ;= 00000000
        .word   0xffffffff              ;= ffffffff
label   .word   next - label            ;= 00000004  ; note: labels of the file stay usable
next    .short  0x1840                  ;= 1840
        .short  0xbf00                  ;= bf00
        .short  0xf8d1, 0x0004          ;= f8d1 0004
        .short  0xf000, 0xb800          ;= f000 b800
