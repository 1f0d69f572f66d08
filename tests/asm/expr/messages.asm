; Each message of the expression engine that a data directive can reach.
        .data
base:   .word   1
K       .set    4
        .word   1 / 0           ;! E0200 Integer divide by zero
        .word   1 % 0           ;! E0200 Integer remainder by zero
        .word   base % 0        ;! E0200 Illegal remainder by zero
; the quotient by zero of a symbol is the largest INT128
        .word   ext / 0         ;! E0200 Illegal divide by zero ;! W0001 Constant value out of range, will be truncated to 32 bits
        .word   base < ext      ;! E0200 Operation cannot be performed on given operands
        .word   (1 + 2          ;! E0000 No matching right parenthesis
        .word   1 +             ;! E0200 Binary operator can't be applied
        .word   -               ;! E0200 Unary operator can't be applied
        .word   )               ;! E0200 Bad term in expression
        .word   1.5             ;! E0201 Illegal floating-point expression
        .float  base + 1.5      ;! E0201 Absolute operands required for FP operations ;! E0201 Illegal floating-point expression
        .float  1.5 % 2         ;! E0201 Invalid floating-point operation
        .double 1.5 >> 1        ;! E0201 Invalid floating-point operation
        .float  ~1.5            ;! E0009 Cannot apply bitwise NOT to floats
        .word   K.foo           ;! E0009 Missing struct/union member or tag
        .word   K.              ;! E0009 Illegal struct/union reference dot operator
        .double 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 * 1.0e500 ;! E0201 Floating-point overflow
        .double 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 * 1.0e-500 ;! E0201 Floating point underflow
; EOF! E0300 The following symbols are undefined: foo ext
