; Thumb-2 extends, byte and bit reversal, CLZ.
; Written by scripts/golden/t2dp/gen.py: change the generator, not this file.
; RUN: %s %o -v8M33
        .thumb
        SXTB.W R0, R1                           ;= fa4f f081
        SXTB.W R8, R9, ROR #8                   ;= fa4f f899
        SXTB.W R12, R14, ROR #24                ;= fa4f fcbe
        SXTH.W R0, R1                           ;= fa0f f081
        SXTH.W R8, R9, ROR #8                   ;= fa0f f899
        SXTH.W R12, R14, ROR #24                ;= fa0f fcbe
        UXTB.W R0, R1                           ;= fa5f f081
        UXTB.W R8, R9, ROR #8                   ;= fa5f f899
        UXTB.W R12, R14, ROR #24                ;= fa5f fcbe
        UXTH.W R0, R1                           ;= fa1f f081
        UXTH.W R8, R9, ROR #8                   ;= fa1f f899
        UXTH.W R12, R14, ROR #24                ;= fa1f fcbe
        SXTB16 R0, R1                           ;= fa2f f081
        SXTB16 R10, R11, ROR #16                ;= fa2f faab
        UXTB16 R0, R1                           ;= fa3f f081
        UXTB16 R10, R11, ROR #16                ;= fa3f faab
        SXTAB R0, R1, R2                        ;= fa41 f082
        SXTAB R8, R9, R10, ROR #24              ;= fa49 f8ba
        SXTAH R0, R1, R2                        ;= fa01 f082
        SXTAH R8, R9, R10, ROR #24              ;= fa09 f8ba
        SXTAB16 R0, R1, R2                      ;= fa21 f082
        SXTAB16 R8, R9, R10, ROR #24            ;= fa29 f8ba
        UXTAB R0, R1, R2                        ;= fa51 f082
        UXTAB R8, R9, R10, ROR #24              ;= fa59 f8ba
        UXTAH R0, R1, R2                        ;= fa11 f082
        UXTAH R8, R9, R10, ROR #24              ;= fa19 f8ba
        UXTAB16 R0, R1, R2                      ;= fa31 f082
        UXTAB16 R8, R9, R10, ROR #24            ;= fa39 f8ba
        REV.W R0, R1                            ;= fa91 f081
        REV.W R9, R10                           ;= fa9a f98a
        REV16.W R0, R1                          ;= fa91 f091
        REV16.W R9, R10                         ;= fa9a f99a
        REVSH.W R0, R1                          ;= fa91 f0b1
        REVSH.W R9, R10                         ;= fa9a f9ba
        RBIT R2, R3                             ;= fa93 f2a3
        RBIT R12, R14                           ;= fa9e fcae
        CLZ R0, R1                              ;= fab1 f081
        CLZ R11, R12                            ;= fabc fb8c
