; Faults of the section property directives.
        .comdat "nowhere"       ;! E0300 Section "nowhere" not defined
        .noinit "nowhere"       ;! E0900 .noinit directive applied to undefined section "nowhere"
        .sect   "full"
        .byte   1
        .bound  "full", 100h    ;! E0900 The .bound directive for a section must be specified before any content.
        .bound  "empty", 200h
        .bound  "empty", 300h   ;! E0900 .bound directive repeated for section empty
        .bound  "empty", 200h, 1 ;! E0900 .bound directive repeated for section empty
        .bound  "empty", 200h
        .noinit                 ;! E0005 Operand missing
        .noinit empty           ;! E0004 String operand expected
