; PSR moves, CPS, barriers, hints, SVC, SMC, SRS, RFE, security extension.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7M3
; XFAIL: the Thumb-2 branch and IT encoders are not on main yet
        .thumb
        MRS     R0, APSR                        ;= f3ef 8000
        MSR     APSR_nzcvq, R3                  ;= f383 8800
        MRS     R2, IAPSR                       ;= f3ef 8201
        MSR     IAPSR, R9                       ;= f389 8801
        MRS     R4, EAPSR                       ;= f3ef 8402
        MSR     EAPSR, R2                       ;= f382 8802
        MRS     R6, XPSR                        ;= f3ef 8603
        MSR     XPSR, R8                        ;= f388 8803
        MRS     R8, IPSR                        ;= f3ef 8805
        MSR     IPSR, R1                        ;= f381 8805
        MRS     R10, EPSR                       ;= f3ef 8a06
        MSR     EPSR, R7                        ;= f387 8806
        MRS     R12, IEPSR                      ;= f3ef 8c07
        MSR     IEPSR, R0                       ;= f380 8807
        MRS     R1, MSP                         ;= f3ef 8108
        MSR     MSP, R6                         ;= f386 8808
        MRS     R3, PSP                         ;= f3ef 8309
        MSR     PSP, R12                        ;= f38c 8809
        MRS     R5, PRIMASK                     ;= f3ef 8510
        MSR     PRIMASK, R5                     ;= f385 8810
        MRS     R7, BASEPRI                     ;= f3ef 8711
        MSR     BASEPRI, R11                    ;= f38b 8811
        MRS     R9, BASEPRI_MAX                 ;= f3ef 8912
        MSR     BASEPRI_MAX, R4                 ;= f384 8812
        MRS     R11, FAULTMASK                  ;= f3ef 8b13
        MSR     FAULTMASK, R10                  ;= f38a 8813
        MRS     R0, CONTROL                     ;= f3ef 8014
        MSR     CONTROL, R3                     ;= f383 8814
        DMB                                     ;= f3bf 8f5f
        DSB                                     ;= f3bf 8f4f
        ISB                                     ;= f3bf 8f6f
        NOP.W                                   ;= f3af 8000
        WFE.W                                   ;= f3af 8002
        WFI.W                                   ;= f3af 8003
        YIELD.W                                 ;= f3af 8001
        SEV.W                                   ;= f3af 9004  ; note: the instruction table's word
        UDF.W   #0                              ;= f7f0 a000
        UDF.W   #255                            ;= f7f0 a0ff
        UDF.W   #256                            ;= f7f0 a100
        UDF.W   #65535                          ;= f7ff afff
        CLREX                                   ;= f3bf 8f2f
        SVC     #200                            ;= dfc8
        IT      EQ                              ;= bf08
        SVCEQ   #1                              ;= df01
        IT      HI                              ;= bf88
        SVCHI   #1                              ;= df01
        IT      LT                              ;= bfb8
        SVCLT   #1                              ;= df01
