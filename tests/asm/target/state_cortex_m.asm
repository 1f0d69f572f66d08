; On a Cortex-M part ARM state is refused but set all the same; the default
; state stays Thumb-2 for the predefined symbols.
; RUN: %s %o -v7M3 -mt
        .text
        .byte   1
        .arm                    ;! E0002 Illegal Cortex-M instruction/directive
l:      .byte   .ZQ_ARM_T2IS
        .armfunc l              ;! E0002 Illegal Cortex-M instruction/directive
        .thumbfunc l
        .state32                ;! E0002 Illegal Cortex-M instruction/directive
