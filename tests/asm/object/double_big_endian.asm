; Big-endian code keeps a double's high word first, each word big-endian.
; RUN: %s %o --endian=big
        .data
        .double 1.0
        .float  -2.0
; SECTION: .data: 3f f0 00 00 00 00 00 00 c0 00 00 00
