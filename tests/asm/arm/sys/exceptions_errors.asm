; The comment fields take an absolute constant, and UDF refuses a value its
; field can't hold.
; RUN: %s %o -v7A8
        .text
        svc     0x10                    ;! E0004 Comment field value must be an absolute constant
        bkpt    r0                      ;! E0004 Comment field value must be an absolute constant
        smi     label                   ;! E0004 Comment field value must be an absolute constant
        udf     #0x10000                ;! E0200 Offset out of range, must be 16 bit immediate
        udf     #-1                     ;! E0200 Offset out of range, must be 16 bit immediate
        udf     1                       ;! E0004 Illegal operand
        .state16
        udf     #0x100                  ;! E0200 Offset out of range, must be 8 bit immediate
        .arm
label:
