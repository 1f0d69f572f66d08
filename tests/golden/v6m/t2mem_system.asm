; Thumb-2 barriers, hints, status registers, CPS, SRS, RFE, SMI, UDF, SG, TT. Written by scripts/golden/t2mem/gen.py.
; RUN: %s %o -v6M0
        .thumb
        DMB                                     ;= f3bf 8f5f
        DSB                                     ;= f3bf 8f4f
        ISB                                     ;= f3bf 8f6f
        MRS R0, APSR                            ;= f3ef 8000
        MRS R1, PRIMASK                         ;= f3ef 8110
        MRS R2, MSP                             ;= f3ef 8208
        MRS R3, PSP                             ;= f3ef 8309
        MRS R4, CONTROL                         ;= f3ef 8414
        MRS R5, IPSR                            ;= f3ef 8505
        MSR APSR_nzcvq, R0                      ;= f380 8800
        MSR PRIMASK, R1                         ;= f381 8810
        MSR CONTROL, R2                         ;= f382 8814
        MSR MSP, R3                             ;= f383 8808
