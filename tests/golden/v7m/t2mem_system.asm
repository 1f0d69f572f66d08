; Thumb-2 barriers, hints, status registers, CPS, SRS, RFE, SMI, UDF, SG, TT. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v7M3
        .thumb
        DMB                                     ;= f3bf 8f5f
        DSB                                     ;= f3bf 8f4f
        ISB                                     ;= f3bf 8f6f
        NOP.W                                   ;= f3af 8000
        YIELD.W                                 ;= f3af 8001
        WFE.W                                   ;= f3af 8002
        WFI.W                                   ;= f3af 8003
        MRS R0, APSR                            ;= f3ef 8000
        MRS R1, IAPSR                           ;= f3ef 8101
        MRS R2, EAPSR                           ;= f3ef 8202
        MRS R3, XPSR                            ;= f3ef 8303
        MRS R4, IPSR                            ;= f3ef 8405
        MRS R5, EPSR                            ;= f3ef 8506
        MRS R6, IEPSR                           ;= f3ef 8607
        MRS R7, MSP                             ;= f3ef 8708
        MRS R8, PSP                             ;= f3ef 8809
        MRS R9, PRIMASK                         ;= f3ef 8910
        MRS R10, BASEPRI                        ;= f3ef 8a11
        MRS R11, BASEPRI_MAX                    ;= f3ef 8b12
        MRS R12, FAULTMASK                      ;= f3ef 8c13
        MRS R0, CONTROL                         ;= f3ef 8014
        MSR APSR_nzcvq, R0                      ;= f380 8800
        MSR APSR_nzcvq, R1                      ;= f381 8800
        MSR MSP, R2                             ;= f382 8808
        MSR PSP, R3                             ;= f383 8809
        MSR PRIMASK, R4                         ;= f384 8810
        MSR BASEPRI, R5                         ;= f385 8811
        MSR BASEPRI_MAX, R6                     ;= f386 8812
        MSR FAULTMASK, R7                       ;= f387 8813
        MSR CONTROL, R8                         ;= f388 8814
        UDF.W #0                                ;= f7f0 a000
        UDF.W #65535                            ;= f7ff afff
        UDF.W #0x1234                           ;= f7f1 a234
        SEV.W                                   ;= f3af 9004  ; note: the instruction table's word
