; Once an error is counted no object is written, so reserving the whole
; address space only moves the counter: the run ends at once.
        .data
        .byte   1.5             ;! E0201 Illegal floating-point expression
        .space  0x7fffffff
        .bes    0x7fffffff
