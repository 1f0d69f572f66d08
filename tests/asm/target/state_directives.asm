; The state directives align to the new state's unit, fill the gap with the
; pattern of the state that is left, and give labels the aligned address.
; RUN: %s %o -v7A8
        .text
s:      .byte   1
        .thumb                  ; from ARM: one byte of 0x01A00000's low end
l1:     .byte   2
        .arm                    ; from Thumb: 0xC0
l2:     .byte   3
        .state16
l3:     .byte   4, 5, 6
        .state32                ; three bytes: the low end of 46C046C0
l4:     .byte   7
        .align  8               ; ARM: 01A00000 in full words
l5:     .byte   .ZQ_ARM_32BIS
        .thumb
        .byte   8
        .align  8               ; Thumb-2: mov.w r8, r8 for 32 bits, then C0
        .word   l1-s, l2-s, l3-s, l4-s, l5-s
        .state16
        .byte   9
        .align  8               ; Thumb: 46C0
; SECTION: .text: 01 00 02 c0 03 00 04 05 06 c0 46 c0 07 00 00 a0 01 00 08 4f ea 08 08 c0 02 00 00 00 04 00 00 00 06 00 00 00 0c 00 00 00 10 00 00 00 09 c0 46 c0
