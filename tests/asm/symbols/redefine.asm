; .set and .equ can't change a symbol: the same value again is accepted,
; another value is refused and the first one stands.
X       .set    1
X       .equ    1
X       .set    2               ;! E0300 Redefinition of X attempted
        .data
        .word   X
