; SMI is no Cortex-M instruction; UDF is.
; RUN: %s %o -v7M3 -mt
        .text
        smi     #1                      ;! E0002 Illegal Cortex-M instruction/directive
        udf     #0x1234
