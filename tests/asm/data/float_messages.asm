; Conversion errors of floating data; the converted value is written all the same.
        .data
        .float  1.0e39          ;! E0201 Floating-point overflow
        .float  1.0e-50         ;! E0201 Floating-point underflow
        .float  1.0 2.0         ;! E0000 Commas must separate directive elements
