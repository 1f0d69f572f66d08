; The architecture each system instruction needs, on a v5E part.
; RUN: %s %o -v5e
        .text
        sev                             ;! E0002 Instruction only available in V7 and higher
        wfe                             ;! E0002 Instruction only available in V7 and higher
        wfi                             ;! E0002 Instruction only available in V7 and higher
        yield                           ;! E0002 Instruction only available in V7 and higher
        clrex                           ;! E0002 Instruction only available in V7 and higher
        dmb                             ;! E0002 Instruction only available in V6M0 and V7 and higher
        dsb                             ;! E0002 Instruction only available in V6M0 and V7 and higher
        isb                             ;! E0002 Instruction only available in V6M0 and V7 and higher
        setend  be                      ;! E0002 Instruction is only available in V6 and higher
        rfeia   r0                      ;! E0002 Instruction is only available in V6 and higher
        srsia   sp, #0x13               ;! E0002 Instruction is only available in V6 and higher
        nop
        cpsie   i
        bkpt    #1
