; SSAT, USAT, SSAT16, USAT16.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        SSAT    R10, #1, R8                     ;= e6a0a018
        SSAT    R11, #2, R2                     ;= e6a1b012
        SSAT    R8, #16, R7                     ;= e6af8017
        SSAT    R10, #31, R0                    ;= e6bea010
        SSAT    R5, #32, R2                     ;= e6bf5012
        USAT    R10, #0, R14                    ;= e6e0a01e
        USAT    R4, #1, R14                     ;= e6e1401e
        USAT    R0, #15, R2                     ;= e6ef0012
        USAT    R12, #30, R4                    ;= e6fec014
        USAT    R6, #31, R3                     ;= e6ff6013
        SSAT    R7, #8, R9, LSL #1              ;= e6a77099
        SSAT    R5, #8, R10, LSL #31            ;= e6a75f9a
        SSAT    R9, #8, R11, ASR #1             ;= e6a790db
        SSAT    R9, #8, R6, ASR #31             ;= e6a79fd6
        SSAT    R12, #8, R7, ASR #32            ;= e6a7c057
        SSAT    R8, #8, R3, LSL #0              ;= e6a78013
        USAT    R13, #7, R10, LSL #1            ;= e6e7d09a
        USAT    R9, #7, R13, LSL #31            ;= e6e79f9d
        USAT    R12, #7, R3, ASR #1             ;= e6e7c0d3
        USAT    R8, #7, R2, ASR #31             ;= e6e78fd2
        USAT    R4, #7, R8, ASR #32             ;= e6e74058
        USAT    R1, #7, R4, LSL #0              ;= e6e71014
        SSAT16  R12, #1, R9                     ;= e6a0cf39
        SSAT16  R6, #2, R7                      ;= e6a16f37
        SSAT16  R11, #8, R5                     ;= e6a7bf35
        SSAT16  R9, #16, R2                     ;= e6af9f32
        USAT16  R3, #0, R4                      ;= e6e03f34
        USAT16  R5, #1, R1                      ;= e6e15f31
        USAT16  R13, #8, R5                     ;= e6e8df35
        USAT16  R2, #15, R11                    ;= e6ef2f3b
        SSATEQ  R0, #4, R1                      ;= 06a30011
        USATNE  R2, #5, R3, ASR #2              ;= 16e52153
        SSAT16GT R4, #6, R5                     ;= c6a54f35
        USAT16LE R6, #7, R7                     ;= d6e76f37
        SSAT    R14, #32, R14                   ;= e6bfe01e
