; A negative size is refused rather than read as a huge block, and so is a
; block that would reach past the 32-bit address space.
        .data
        .space  -1              ;! E0004 .space size must not be negative; found -1
        .bes    -4              ;! E0004 .bes size must not be negative; found -4
        .space  4294967296      ;! E0004 .space size 4294967296 goes beyond the 32-bit address space
        .space  later           ;! E0004 Absolute, well-defined integer value expected
later   .equ    4
        .space                  ;! E0005 Operand missing
        .space  1, 2            ;! E0003 Unexpected trailing operand(s)
