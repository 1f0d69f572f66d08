; Faults that the .global family finds in pass 2.
        .data
        .def    nodef           ;! E0300 'nodef' is not defined in this source file
        .ref    here            ;! W0000 Defined symbol 'here' cannot have a .ref
        .import here            ;! W0000 Defined symbol 'here' cannot have a .import
here:   .byte   1
        .hidden x
        .protected x            ;! E0300 .HIDDEN cannot be specified for x, .PROTECTED has already been specified
        .hidden x
x:      .byte   2
        .global                 ;! E0005 Operand missing
        .global a, 5            ;! E0300 Symbol expected
