; SSAT, USAT, SSAT16, USAT16.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7A8
        SSAT    R9, #1, R2                      ;= e6a09012
        SSAT    R9, #2, R2                      ;= e6a19012
        SSAT    R12, #16, R2                    ;= e6afc012
        SSAT    R5, #31, R12                    ;= e6be501c
        SSAT    R2, #32, R11                    ;= e6bf201b
        USAT    R6, #0, R3                      ;= e6e06013
        USAT    R12, #1, R1                     ;= e6e1c011
        USAT    R8, #15, R12                    ;= e6ef801c
        USAT    R3, #30, R8                     ;= e6fe3018
        USAT    R7, #31, R12                    ;= e6ff701c
        SSAT    R1, #8, R8, LSL #1              ;= e6a71098
        SSAT    R4, #8, R7, LSL #31             ;= e6a74f97
        SSAT    R1, #8, R10, ASR #1             ;= e6a710da
        SSAT    R2, #8, R12, ASR #31            ;= e6a72fdc
        SSAT    R12, #8, R13, ASR #32           ;= e6a7c05d
        SSAT    R4, #8, R3, LSL #0              ;= e6a74013
        USAT    R13, #7, R14, LSL #1            ;= e6e7d09e
        USAT    R14, #7, R10, LSL #31           ;= e6e7ef9a
        USAT    R7, #7, R2, ASR #1              ;= e6e770d2
        USAT    R6, #7, R8, ASR #31             ;= e6e76fd8
        USAT    R12, #7, R11, ASR #32           ;= e6e7c05b
        USAT    R0, #7, R8, LSL #0              ;= e6e70018
        SSAT16  R0, #1, R14                     ;= e6a00f3e
        SSAT16  R9, #2, R11                     ;= e6a19f3b
        SSAT16  R11, #8, R1                     ;= e6a7bf31
        SSAT16  R4, #16, R8                     ;= e6af4f38
        USAT16  R11, #0, R8                     ;= e6e0bf38
        USAT16  R12, #1, R6                     ;= e6e1cf36
        USAT16  R4, #8, R4                      ;= e6e84f34
        USAT16  R7, #15, R3                     ;= e6ef7f33
        SSATEQ  R0, #4, R1                      ;= 06a30011
        USATNE  R2, #5, R3, ASR #2              ;= 16e52153
        SSAT16GT R4, #6, R5                     ;= c6a54f35
        USAT16LE R6, #7, R7                     ;= d6e76f37
        SSAT    R14, #32, R14                   ;= e6bfe01e
