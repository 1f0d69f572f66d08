; With a VFP unit and little-endian code a double is stored low word first.
; RUN: %s %o --float_support=vfpv3
        .data
        .double 1.5, -0.0
; SECTION: .data: 00 00 00 00 00 00 f8 3f 00 00 00 00 00 00 00 80
