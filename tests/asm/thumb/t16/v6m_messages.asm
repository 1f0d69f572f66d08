; What v6-M refuses in plain Thumb: the flag A of CPS and BLX of a label.
; RUN: %s %o -v6M0
        .state16
        cpsie   a                       ;! E0004 Flag 'A' is not allowed in Cortex-M.
        cpsid   fa                      ;! E0004 Flag 'A' is not allowed in Cortex-M.
        blx     label                   ;! E0002 Illegal Cortex-M instruction/directive
label:  bx      lr
