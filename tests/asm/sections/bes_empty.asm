; An empty .bes at the start of a section has no byte before it: its label
; stays at 0 instead of wrapping to the top of the address space.
        .data
e0:     .bes    0
        .byte   5
e1:     .bes    0
; SECTION: .data: 05
; SYMBOL: e0 00000000 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: e1 00000001 0 OBJECT LOCAL HIDDEN .data
