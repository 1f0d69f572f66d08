; What Cortex-M parts refuse of the system instructions.
; RUN: %s %o -v7M3 -mt
        .text
        setend  le                      ;! E0002 Illegal Cortex-M instruction/directive
        cps     #0x13                   ;! E0002 Illegal Cortex-M instruction/directive
        srsdb   sp!, #0x13              ;! E0002 Illegal Cortex-M instruction/directive
        clrex
        dmb
