; MOVW, MOVT, and MOV of a value that no rotated byte holds.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7A8
        MOVW    R1, #0                          ;= e3001000
        MOVT    R1, #0                          ;= e3401000
        MOVW    R9, #1                          ;= e3009001
        MOVT    R9, #1                          ;= e3409001
        MOVW    R0, #0xFFFF                     ;= e30f0fff
        MOVT    R0, #0xFFFF                     ;= e34f0fff
        MOVW    R11, #0x1234                    ;= e301b234
        MOVT    R11, #0x1234                    ;= e341b234
        MOVW    R13, #43981                     ;= e30adbcd
        MOVT    R13, #43981                     ;= e34adbcd
        MOVW    R1, #0x8000                     ;= e3081000
        MOVT    R1, #0x8000                     ;= e3481000
        MOVWEQ  R14, #0xABCD                    ;= 030aebcd
        MOVTEQ  R0, #0x5555                     ;= 03450555
        MOVWNE  R14, #0xABCD                    ;= 130aebcd
        MOVTNE  R0, #0x5555                     ;= 13450555
        MOVWGT  R14, #0xABCD                    ;= c30aebcd
        MOVTGT  R0, #0x5555                     ;= c3450555
        MOVWLE  R14, #0xABCD                    ;= d30aebcd
        MOVTLE  R0, #0x5555                     ;= d3450555
        MOV     R1, #0x1234                     ;= e3011234  ; note: becomes MOVW
        MOV     R14, #0xFFFF                    ;= e30fefff  ; note: becomes MOVW
        MOV     R12, #0x101                     ;= e300c101  ; note: becomes MOVW
        MOV     R3, #0x8001                     ;= e3083001  ; note: becomes MOVW
        MOV     R14, #4097                      ;= e301e001  ; note: becomes MOVW
        MOVNE   R3, #0x4321                     ;= 13043321  ; note: becomes MOVW
        MOV     R3, #0x10000                    ;= e3a03801  ; note: a rotated byte: no MOVW
