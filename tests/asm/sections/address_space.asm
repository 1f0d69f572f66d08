; Reservations and counters that would carry a section past 4 GiB are refused
; at the statement that asks, once; a full section then takes nothing more.
a       .usect  ".u1", 0x80000000
b       .usect  ".u1", 0x7FFFFFFF
c       .usect  ".u1", 1        ;! E0004 .usect size 1 goes beyond the 32-bit address space
        .bss    big, 0xFFFFFFF0
        .bss    more, 0x20      ;! E0004 .bss size 32 goes beyond the 32-bit address space
        .bss    fits, 0xF
        .bss    aligned, 1, 16  ;! E0004 Section .bss goes beyond the 32-bit address space
        .bss    after, 1
d       .usect  ".u2", 0xFFFFFFFF
e       .usect  ".u2", 0        ; an empty block still fits at the very end

        .sect   "s1"
        .space  0xFFFFFFF8
        .word   1
        .word   2               ;! E0004 Section s1 goes beyond the 32-bit address space
        .word   3
        .byte   4
        .sect   "s2"
        .space  0xFFFFFFF0
        .align  32              ;! E0004 Section s2 goes beyond the 32-bit address space
        .sect   "s3"
        .space  0xFFFFFFFD
        .field  1, 24           ;! E0004 Section s3 goes beyond the 32-bit address space
        .sect   "s4"
        .space  0xFFFFFFFD
        .bits   1, 24           ;! E0004 Section s4 goes beyond the 32-bit address space
        .sect   "s5"
        .space  0xFFFFFFFF
        .space  0
        .space  1               ;! E0004 .space size 1 goes beyond the 32-bit address space
        .string "ab"            ;! E0004 Section s5 goes beyond the 32-bit address space
