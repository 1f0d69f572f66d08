; Base words and their small fields in ARM state: no-ops, barriers, hints,
; SETEND, CPS, RFE and SRS with the addressing modes of each.
; RUN: %s %o -v7A8
        .text
        nop                             ; E1A00000
        nopeq                           ; 01A00000
        fmstat                          ; EEF1FA10
        fmstateq                        ; 0EF1FA10
        clrex                           ; F57FF01F
        dmb                             ; F57FF05F
        dsb                             ; F57FF04F
        isb                             ; F57FF06F
        sev                             ; E320F004
        wfe                             ; E320F002
        wfi                             ; E320F003
        yield                           ; E320F001
        wfene                           ; 1320F002
        setend  be                      ; F1010200
        setend  le                      ; F1010000
        cpsie   aif                     ; F10801C0
        cpsid   f                       ; F10C0040
        cpsie   A                       ; F1080100
        cpsie   i, #0x13                ; F10A0093
        cpsid   Ai, #0x10               ; F10E0190
        cps     #0x1f                   ; F102001F
        rfeia   r0                      ; F8900A00
        rfefd   r0                      ; F8900A00
        rfeea   r1!                     ; F9310A00
        rfedb   r1!                     ; F9310A00
        rfeib   r2                      ; F9920A00
        rfeed   r2                      ; F9920A00
        rfeda   r3                      ; F8130A00
        srsdb   sp!, #0x13              ; F96D0513
        srsfd   sp!, #0x13              ; F96D0513
        srsia   sp, #0x10               ; F8CD0510
        srsea   #0x10                   ; F8CD0510
        srsib   sp, #0x1f               ; F9CD051F
        srsfa   sp, #0x1f               ; F9CD051F
        srsda   sp!, #0x13              ; F86D0513
; SECTION: .text: 00 00 a0 e1 00 00 a0 01 10 fa f1 ee 10 fa f1 0e 1f f0 7f f5 5f f0 7f f5 4f f0 7f f5 6f f0 7f f5 04 f0 20 e3 02 f0 20 e3 03 f0 20 e3 01 f0 20 e3 02 f0 20 13 00 02 01 f1 00 00 01 f1 c0 01 08 f1 40 00 0c f1 00 01 08 f1 93 00 0a f1 90 01 0e f1 1f 00 02 f1 00 0a 90 f8 00 0a 90 f8 00 0a 31 f9 00 0a 31 f9 00 0a 92 f9 00 0a 92 f9 00 0a 13 f8 13 05 6d f9 13 05 6d f9 10 05 cd f8 10 05 cd f8 1f 05 cd f9 1f 05 cd f9 13 05 6d f8
