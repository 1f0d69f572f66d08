; BKPT is a v5 instruction; SMI is refused on Cortex-M.
; RUN: %s %o -v4
        .text
        bkpt    #1                      ;! E0002 Instruction is only available in V5 and higher
        svc     #1
        smi     #1
        udf     #1
