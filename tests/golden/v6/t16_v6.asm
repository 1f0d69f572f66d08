; The v6 additions: extends, byte reversals, CPY, CPS, BLX.
; Written by scripts/golden/t16/gen_t16.py: change the generator, not this file.
; RUN: %s %o -v6
        .thumb
        SXTB    R0, R1                          ;= b248
        SXTH    R2, R3                          ;= b21a
        UXTB    R4, R5                          ;= b2ec
        UXTH    R6, R7                          ;= b2be
        REV     R0, R7                          ;= ba38
        REV16   R1, R6                          ;= ba71
        REVSH   R2, R5                          ;= baea
        MOV     R0, R1                          ;= 4608
        CPY     R2, R3                          ;= 461a
        MOV     R8, R1                          ;= 4688
        CPSIE   I                               ;= b662
        CPSID   F                               ;= b671
        CPSIE   aif                             ;= b667
        CPSID   IA                              ;= b676
        BKPT    #0                              ;= be00
        BKPT    #255                            ;= beff
        BLX     R3                              ;= 4798
        BLX     LR                              ;= 47f0
        BLX     256                             ;= f000 e880
        BLX     -4                              ;= f7ff effe
        BLX     4194300                         ;= f3ff effe
        MULS    R1, R1                          ;= 4349
