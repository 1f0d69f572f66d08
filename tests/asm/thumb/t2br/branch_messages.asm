; 32-bit branches refuse what has no 32-bit branch word: registers and
; addresses as targets, odd offsets and offsets beyond the field.
; RUN: %s %o -v7A8 -mt
        .text
        B.W     R0              ;! E0004 Operand must be a label
        BL      [R1]            ;! E0004 Operand must be a label
        BLX.W   R2              ;! E0004 Operand must be a label
        B.W     3               ;! E0200 Destination must be on a 2 byte boundary
        BL      -16777218       ;! E0200 Offset out of range, must be [-16777216,16777215]
        B.W     16777216        ;! E0200 Offset out of range, must be [-16777216,16777215]
        BGT.W   1048576         ;! E0200 Offset out of range, must be [-1048576,1048575]
        BLE.W   -1048578        ;! E0200 Offset out of range, must be [-1048576,1048575]
        BNE.W   -3              ;! E0200 Destination must be on a 2 byte boundary
        BXJ     #4              ;! E0004 Operand Rm must be a register
