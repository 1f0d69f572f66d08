; Old syntax in .state16 on v6-M: ADD of two low registers as three, MOV as ADDS, NOP.
; Written by scripts/golden/t16/gen_t16.py: change the generator, not this file.
; RUN: %s %o -v6M0
        .state16
        ADD     R0, R1                          ;= 1840
        ADD     R7, R0                          ;= 183f
        ADD     R0, R8                          ;= 4440
        ADD     R0, R1, R2                      ;= 1888
        ADD     R0, #-4                         ;= 3804
        SUB     R0, R1, #7                      ;= 1fc8
        MOV     R0, R1                          ;= 1c08  ; note: MOVS of two low registers is ADDS Rd, Rs, #0
        MOV     R0, #17                         ;= 2011
        LSL     R0, R1                          ;= 4088
        LSR     R0, R1, #32                     ;= 0808
        MUL     R0, R1                          ;= 4348
        CPY     R0, R1                          ;= 4608
        REV     R0, R1                          ;= ba08
        UXTB    R0, R1                          ;= b2c8
        CPSID   I                               ;= b672
        NOP                                     ;= 46c0
        LDMIA   R0!, {R1}                       ;= c802
        PUSH    {R4, LR}                        ;= b510
        SWI     #1                              ;= df01
        BKPT    #1                              ;= be01
        BLX     R1                              ;= 4788
        B       20                              ;= e00a
        BGT     -20                             ;= dcf6
        BL      4096                            ;= f001 f800
