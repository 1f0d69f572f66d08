; Below v7 only v6-M has the hints; UDF has no such check.
; RUN: %s %o -v6
        .thumb
        sev                             ;! E0002 Instruction only available in V6M0 and V7 and higher
        wfi                             ;! E0002 Instruction only available in V6M0 and V7 and higher
        udf     #1
        udf     #256                    ;! E0200 Offset out of range, must be 8 bit immediate
        udf     1                       ;! E0004 Illegal operand
