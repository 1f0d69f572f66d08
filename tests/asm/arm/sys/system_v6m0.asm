; v6-M has the 16-bit hints and the barriers, but no other Thumb-2 word.
; RUN: %s %o -v6M0 -mt
        .text
        yield                           ; BF10
        wfe                             ; BF20
        wfi                             ; BF30
        sev                             ; BF40
        dmb                             ; F3BF8F5F
        dsb                             ; F3BF8F4F
        isb                             ; F3BF8F6F
; SECTION: .text: 10 bf 20 bf 30 bf 40 bf bf f3 5f 8f bf f3 4f 8f bf f3 6f 8f
