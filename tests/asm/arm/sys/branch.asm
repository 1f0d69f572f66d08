; Branches in ARM state to plain-number offsets (from the branch's pc + 8),
; the condition and link letters, and the register forms.
; RUN: %s %o -v7A8
        .text
        b       8                       ; EA000002
        b       -8                      ; EAFFFFFE
        beq     0                       ; 0A000000
        bl      0x100                   ; EB000040
        blle    -0x100                  ; DBFFFFC0
        ble     4                       ; DA000001
        bls     4                       ; 9A000001
        blt     4                       ; BA000001
        blo     4                       ; 3A000001
        b       0x1fffffc               ; EA7FFFFF
        b       -0x2000000              ; EA800000
        blx     6                       ; FA000003
        bx      r0                      ; E12FFF10
        bxne    lr                      ; 112FFF1E
        bx      pc                      ; E12FFF1F
        blx     r1                      ; E12FFF31
        blxeq   r12                     ; 012FFF3C
        bxj     r2                      ; E12FFF22
        cret    8                       ; EA000002
        crethi  -4                      ; 8AFFFFFF
; SECTION: .text: 02 00 00 ea fe ff ff ea 00 00 00 0a 40 00 00 eb c0 ff ff db 01 00 00 da 01 00 00 9a 01 00 00 ba 01 00 00 3a ff ff 7f ea 00 00 80 ea 03 00 00 fa 10 ff 2f e1 1e ff 2f 11 1f ff 2f e1 31 ff 2f e1 3c ff 2f 01 22 ff 2f e1 02 00 00 ea ff ff ff 8a
