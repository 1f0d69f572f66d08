; Cortex-M has no ARM state: no BLX to a label and no BXJ.
; RUN: %s %o -v7M3 -mt
        .text
        BL      16              ; the call itself is M's
        BLX     16              ;! E0002 Illegal Cortex-M instruction/directive
        BXJ     R0              ;! E0002 Illegal Cortex-M instruction/directive
