; Thumb-2 extends, byte and bit reversal, CLZ.
; Written by scripts/golden/t2dp/gen.py: change the generator, not this file.
; RUN: %s %o -v7M3
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
