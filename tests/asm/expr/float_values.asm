; Floating constants and arithmetic round to nearest, ties to even, from the
; exact decimal value: single and double, denormals, the boundary of the
; single range, and integers that a single can't hold.
        .data
        .float  0.1 + 0.2, 1.0 / 3, 3.4028235e38, 1.17549435e-38, 1.4e-45
        .double 0.1 + 0.2, 1.0 / 3, 2.5e-324, 2.2250738585072014e-308, 9.999999999999999e22
        .double 1.7976931348623157e308, 1.0e23, 6.02214076e23 * 1.602176634e-19
        .float  16777217, 16777219, 0xFFFFFFFF, -1, 'A', 1.5 < 2, !0.0, 2.0 >= 3
        .float  -0.0, 0.0 * -1, 1.0 / 0.0, -1.0 / 0.0, 0.0 / 0.0
; SECTION: .data: 9a 99 99 3e ab aa aa 3e ff ff 7f 7f 00 00 80 00 01 00 00 00 33 33 33 33 33 33 d3 3f 55 55 55 55 55 55 d5 3f 01 00 00 00 00 00 00 00 00 00 00 00 00 00 10 00 f6 4a e1 c7 02 2d b5 44 ff ff ff ff ff ff ef 7f f6 4a e1 c7 02 2d b5 44 2c 88 60 50 55 8e f7 40 00 00 80 4b 02 00 80 4b 00 00 80 4f 00 00 80 bf 00 00 82 42 00 00 80 3f 00 00 80 3f 00 00 00 00 00 00 00 80 00 00 00 80 00 00 80 7f 00 00 80 ff 00 00 c0 7f
