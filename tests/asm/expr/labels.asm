; Differences and comparisons of labels of one section fold to constants,
; whatever the shape of the expression around them; $ is the address of the
; statement for every element.
        .data
        .word   0
l1:     .word   l2 - l1, l2 > l1, l1 == l1, l1 + 4 == l2, l2 - 4 != l1
        .word   (l2 - l1) * 2, l1 + 4 - l1, -(l1 - l2), 4 + l2 - l1, l2 - (l1 + 4)
        .word   3 - l1 + l2, l2 + 3 - l1 - 1, (l2 + 8) - (l1 + 4), l2 - l1 + l2 - l1
        .word   -l1 + l2, l2 - 2 * 4 - l1 + 8, l2 - -(0 - l1), l2 - (l1 - 4)
        .word   (l2 - l1) / 2, (l2 - l1) % 3, (l2 - l1) << 1, (l2 - l1) >> 1, ~(l2 - l1), !(l2 - l1)
        .word   l2 - l1 & 6, l2 - l1 | 1, l2 - l1 ^ 5, -l1 - -l2
l2:     .word   $ - l1, $ - $, l2 - $
; SECTION: .data: 00 00 00 00 70 00 00 00 01 00 00 00 01 00 00 00 00 00 00 00 01 00 00 00 e0 00 00 00 04 00 00 00 70 00 00 00 74 00 00 00 6c 00 00 00 73 00 00 00 72 00 00 00 74 00 00 00 e0 00 00 00 70 00 00 00 70 00 00 00 70 00 00 00 74 00 00 00 38 00 00 00 01 00 00 00 e0 00 00 00 38 00 00 00 8f ff ff ff 00 00 00 00 00 00 00 00 71 00 00 00 75 00 00 00 70 00 00 00 70 00 00 00 00 00 00 00 00 00 00 00
