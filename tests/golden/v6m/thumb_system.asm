; PSR moves, CPS, barriers, hints, SVC, SMC, SRS, RFE, security extension.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6M0
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
        MRS     R7, CONTROL                     ;= f3ef 8714
        MSR     CONTROL, R11                    ;= f38b 8814
        DMB                                     ;= f3bf 8f5f
        DSB                                     ;= f3bf 8f4f
        ISB                                     ;= f3bf 8f6f
