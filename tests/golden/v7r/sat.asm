; SSAT, USAT, SSAT16, USAT16.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v7R4
        SSAT    R8, #1, R6                      ;= e6a08016
        SSAT    R7, #2, R14                     ;= e6a1701e
        SSAT    R7, #16, R5                     ;= e6af7015
        SSAT    R2, #31, R7                     ;= e6be2017
        SSAT    R8, #32, R9                     ;= e6bf8019
        USAT    R6, #0, R14                     ;= e6e0601e
        USAT    R7, #1, R1                      ;= e6e17011
        USAT    R3, #15, R5                     ;= e6ef3015
        USAT    R12, #30, R13                   ;= e6fec01d
        USAT    R14, #31, R8                    ;= e6ffe018
        SSAT    R3, #8, R6, LSL #1              ;= e6a73096
        SSAT    R5, #8, R4, LSL #31             ;= e6a75f94
        SSAT    R3, #8, R10, ASR #1             ;= e6a730da
        SSAT    R8, #8, R11, ASR #31            ;= e6a78fdb
        SSAT    R5, #8, R0, ASR #32             ;= e6a75050
        SSAT    R4, #8, R2, LSL #0              ;= e6a74012
        USAT    R2, #7, R6, LSL #1              ;= e6e72096
        USAT    R3, #7, R4, LSL #31             ;= e6e73f94
        USAT    R5, #7, R6, ASR #1              ;= e6e750d6
        USAT    R5, #7, R0, ASR #31             ;= e6e75fd0
        USAT    R8, #7, R6, ASR #32             ;= e6e78056
        USAT    R13, #7, R9, LSL #0             ;= e6e7d019
        SSAT16  R0, #1, R6                      ;= e6a00f36
        SSAT16  R0, #2, R9                      ;= e6a10f39
        SSAT16  R14, #8, R8                     ;= e6a7ef38
        SSAT16  R1, #16, R13                    ;= e6af1f3d
        USAT16  R9, #0, R0                      ;= e6e09f30
        USAT16  R4, #1, R4                      ;= e6e14f34
        USAT16  R13, #8, R5                     ;= e6e8df35
        USAT16  R7, #15, R6                     ;= e6ef7f36
        SSATEQ  R0, #4, R1                      ;= 06a30011
        USATNE  R2, #5, R3, ASR #2              ;= 16e52153
        SSAT16GT R4, #6, R5                     ;= c6a54f35
        USAT16LE R6, #7, R7                     ;= d6e76f37
        SSAT    R14, #32, R14                   ;= e6bfe01e
