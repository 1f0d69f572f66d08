; Faults of .equ and .set.
        .set    1               ;! E0100 Label required
A       .set    A               ;! E0300 Symbol can't be defined in terms of itself: "A"
        .global E1, ext
E1      .set    ext             ;! E0300 Cannot equate an external symbol to an external symbol
        .common cm, 4
C       .set    cm              ;! E0300 Symbol cannot be defined in terms of a common symbol: "C" ("cm" is common)
X       .set    1
X       .set    2               ;! E0300 Redefinition of X attempted
        .global GF
GF      .set    2.5             ;! E0300 Cannot define an absolute symbol with a floating-point value; symbol's value will be encoded in floating-point format
N       .set                    ;! E0005 Operand missing
