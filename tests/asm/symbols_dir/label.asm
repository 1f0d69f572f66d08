; .label names the load-time address of the place where it stands; labels
; waiting for a statement are defined there first.
        .data
        .byte   1
pend
        .label  ld1
        .byte   2
        .label  ld2
; SYMBOL: pend 00000001 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: ld1 00000001 0 OBJECT LOCAL HIDDEN .data
; SYMBOL: ld2 00000002 0 OBJECT LOCAL HIDDEN .data
