; Byte and bit reversal.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        REV     R12, R13                        ;= e6bfcf3d
        REV     R0, R2                          ;= e6bf0f32
        REV     R6, R4                          ;= e6bf6f34
        REV     R14, R0                         ;= e6bfef30
        REVEQ   R1, R14                         ;= 06bf1f3e
        REV16   R3, R9                          ;= e6bf3fb9
        REV16   R14, R4                         ;= e6bfefb4
        REV16   R2, R14                         ;= e6bf2fbe
        REV16   R14, R0                         ;= e6bfefb0
        REV16EQ R1, R14                         ;= 06bf1fbe
        REVSH   R3, R13                         ;= e6ff3fbd
        REVSH   R7, R8                          ;= e6ff7fb8
        REVSH   R9, R3                          ;= e6ff9fb3
        REVSH   R14, R0                         ;= e6ffefb0
        REVSHEQ R1, R14                         ;= 06ff1fbe
        RBIT    R2, R3                          ;= e6ff2f33  ; note: RBIT is taken from v6 on
        RBIT    R0, R4                          ;= e6ff0f34  ; note: RBIT is taken from v6 on
        RBIT    R0, R1                          ;= e6ff0f31  ; note: RBIT is taken from v6 on
        RBIT    R14, R0                         ;= e6ffef30  ; note: RBIT is taken from v6 on
        RBITEQ  R1, R14                         ;= 06ff1f3e  ; note: RBIT is taken from v6 on
