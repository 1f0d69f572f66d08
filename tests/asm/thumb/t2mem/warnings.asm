; Warnings that leave the Thumb-2 encoding as written: write-back on a
; preload is dropped; a load that writes back its own destination and the
; Cortex-M3 LDRD erratum are encoded as they stand.
; RUN: %s %o -v7M3
        .text
        .thumb
        PLD     [R0, #4]!               ;! W0000 Write-back ignored in PLI/PLD instruction
        PLI     [R0, R1]!               ;! W0000 Write-back ignored in PLI/PLD instruction
        LDR     R0, [R0, #4]!           ;! W0000 Specifying the same register with write back in source and destination leads to unpredictable results
        LDRD    R0, R1, [R0, #8]        ;! W5369 Cortex-M3 Errata 602117: LDRD with base in list may result in incorrect base register when interrupted or faulted
        LDRD    R2, R3, [R3]
        LDRD    R0, R1, [R0, #8]!       ;! W0000 Specifying the same register with write back in source and destination leads to unpredictable results
        STRD    R0, R1, [R0, #8]
; SECTION: .text: 90 f8 04 f0 10 f9 01 f0 50 f8 04 0f d0 e9 02 01 d3 e9 00 23 f0 e9 02 01 c0 e9 02 01
