; A warning of the 16-bit trial rejects the narrow form also under
; --no_warnings: an offset that the 16-bit field cannot hold takes 32 bits.
; RUN: %s %o -v7M3 --no_warnings
; SECTION: .text: d1 f8 02 00 a1 f8 07 00 08 68
        .thumb
        ldr     r0, [r1, #2]
        strh    r0, [r1, #7]
        ldr     r0, [r1]
