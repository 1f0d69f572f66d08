; Floating data in IEEE form: .float is a single, .double and .ldouble are
; doubles, low word first in little-endian; a .double is aligned to 4 bytes.
        .data
        .float  1, -2.5
        .byte   1
        .double 1.0
        .ldouble -1
        .float  0x80000000
; SECTION: .data: 00 00 80 3f 00 00 20 c0 01 00 00 a0 00 00 00 00 00 00 f0 3f 00 00 00 00 00 00 f0 bf 00 00 00 4f
