; The same classes from the Thumb-2 slot (SRS takes its addressing mode
; itself, IA when none is named) and SETEND in 16-bit Thumb.
; RUN: %s %o -v7A8 -mt
        .text
        clrex                           ; F3BF8F2F
        dmb                             ; F3BF8F5F
        dsb                             ; F3BF8F4F
        isb                             ; F3BF8F6F
        cps     #0x13                   ; F3AF8113
        srsdb   sp!, #0x13              ; E82DC013
        srsfd   sp, #0x13               ; E80DC013
        srsia   sp!, #0x13              ; E9ADC013
        srsea   sp, #0x1f               ; E98DC01F
        srs     sp, #0x10               ; E98DC010
        setend  be                      ; B658
        setend  le                      ; B650
; SECTION: .text: bf f3 2f 8f bf f3 5f 8f bf f3 4f 8f bf f3 6f 8f af f3 13 81 2d e8 13 c0 0d e8 13 c0 ad e9 13 c0 8d e9 1f c0 8d e9 10 c0 58 b6 50 b6
