; Branches by plain offsets, BX and BLX of registers, SWI, BKPT, NOP.
; Written by scripts/golden/t16/gen_t16.py: change the generator, not this file.
; RUN: %s %o -v4
        .thumb
        B       0                               ;= e000
        B       4                               ;= e002
        B       -4                              ;= e7fe
        B       2046                            ;= e3ff
        B       -2048                           ;= e400
        BEQ     0                               ;= d000
        BNE     254                             ;= d17f
        BCS     -256                            ;= d280
        BCC     2                               ;= d301
        BMI     -2                              ;= d4ff
        BPL     100                             ;= d532
        BVS     -100                            ;= d6ce
        BVC     16                              ;= d708
        BHI     32                              ;= d810
        BLS     64                              ;= d920
        BGE     128                             ;= da40
        BLT     -128                            ;= dbc0
        BGT     8                               ;= dc04
        BLE     -8                              ;= ddfc
        BL      0                               ;= f000 f800
        BL      256                             ;= f000 f880
        BL      -4                              ;= f7ff fffe
        BL      4194302                         ;= f3ff ffff
        BL      -4194304                        ;= f400 f800
        BX      LR                              ;= 4770
        BX      R0                              ;= 4700
        BX      PC                              ;= 4778
        BX      R9                              ;= 4748
        SVC     #0                              ;= df00
        SVC     #255                            ;= dfff
        NOP                                     ;= 46c0
