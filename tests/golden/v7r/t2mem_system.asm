; Thumb-2 barriers, hints, status registers, CPS, SRS, RFE, SMI, UDF, SG, TT. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v7R4
        .thumb
        DMB                                     ;= f3bf 8f5f
        DSB                                     ;= f3bf 8f4f
        ISB                                     ;= f3bf 8f6f
        NOP.W                                   ;= f3af 8000
        YIELD.W                                 ;= f3af 8001
        WFE.W                                   ;= f3af 8002
        WFI.W                                   ;= f3af 8003
        MRS R0, APSR                            ;= f3ef 8000
        MRS R1, CPSR                            ;= f3ef 8100
        MRS R2, SPSR                            ;= f3ff 8200
        MSR CPSR_fc, R0                         ;= f380 8900
        MSR CPSR_c, R1                          ;= f381 8100
        MSR SPSR_fsxc, R2                       ;= f392 8f00
        MSR APSR_nzcvq, R3                      ;= f383 8800
        MSR CPSR_x, R4                          ;= f384 8200
        CPSIE.W i                               ;= f3af 8440
        CPSID.W aif                             ;= f3af 86e0
        CPSIE.W f, #16                          ;= f3af 8530
        CPSID a, #31                            ;= f3af 879f
        CPS #19                                 ;= f3af 8113
        SRSDB SP!, #19                          ;= e82d c013
        SRSIA SP, #16                           ;= e98d c010
        SRS SP, #31                             ;= e98d c01f
        SRSFD SP!, #17                          ;= e82d c011
        SRSEA SP, #18                           ;= e98d c012
        RFEIA R0                                ;= e990 c000
        RFEDB R1!                               ;= e831 c000
        RFEFD SP!                               ;= e9bd c000
        RFEEA R14                               ;= e81e c000
        UDF.W #0                                ;= f7f0 a000
        UDF.W #65535                            ;= f7ff afff
        UDF.W #0x1234                           ;= f7f1 a234
        SEV.W                                   ;= f3af 9004  ; note: the instruction table's word
