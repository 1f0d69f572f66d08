; MOVW, MOVT, and MOV of a value that no rotated byte holds.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7R4
        MOVW    R14, #0                         ;= e300e000
        MOVT    R14, #0                         ;= e340e000
        MOVW    R6, #1                          ;= e3006001
        MOVT    R6, #1                          ;= e3406001
        MOVW    R11, #0xFFFF                    ;= e30fbfff
        MOVT    R11, #0xFFFF                    ;= e34fbfff
        MOVW    R11, #0x1234                    ;= e301b234
        MOVT    R11, #0x1234                    ;= e341b234
        MOVW    R11, #43981                     ;= e30abbcd
        MOVT    R11, #43981                     ;= e34abbcd
        MOVW    R7, #0x8000                     ;= e3087000
        MOVT    R7, #0x8000                     ;= e3487000
        MOVWEQ  R14, #0xABCD                    ;= 030aebcd
        MOVTEQ  R0, #0x5555                     ;= 03450555
        MOVWNE  R14, #0xABCD                    ;= 130aebcd
        MOVTNE  R0, #0x5555                     ;= 13450555
        MOVWGT  R14, #0xABCD                    ;= c30aebcd
        MOVTGT  R0, #0x5555                     ;= c3450555
        MOVWLE  R14, #0xABCD                    ;= d30aebcd
        MOVTLE  R0, #0x5555                     ;= d3450555
        MOV     R11, #0x1234                    ;= e301b234  ; note: becomes MOVW
        MOV     R2, #0xFFFF                     ;= e30f2fff  ; note: becomes MOVW
        MOV     R13, #0x101                     ;= e300d101  ; note: becomes MOVW
        MOV     R7, #0x8001                     ;= e3087001  ; note: becomes MOVW
        MOV     R0, #4097                       ;= e3010001  ; note: becomes MOVW
        MOVNE   R3, #0x4321                     ;= 13043321  ; note: becomes MOVW
        MOV     R3, #0x10000                    ;= e3a03801  ; note: a rotated byte: no MOVW
