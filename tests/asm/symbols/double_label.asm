; A label defined twice: the second place is reported, and nothing else.
        .text
base:
lab:    .word   1
lab:    .word   2               ;! E0300 Symbol lab has already been defined
        .word   lab - base
