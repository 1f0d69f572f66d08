; .map gives registers symbolic names; what it reads must be name/register
; pairs of known registers.
        .map    acc/nothere     ;! E0003 Illegal machine register nothere
        .map    acc r0          ;! E0000 Missing /
        .map    5/r0            ;! E0003 Symbolic register name expected
        .map    acc/7           ;! E0003 Machine register expected
        .map    a/b c/d         ;! E0000 Commas must separate directive elements ;! E0003 Illegal machine register b
        .clearmap
