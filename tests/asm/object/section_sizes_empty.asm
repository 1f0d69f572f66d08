; With all sizes 0 the summary prints nothing.
; RUN: %s %o --section_sizes=on
; OBJECT: yes
        .text
