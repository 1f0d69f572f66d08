; Exclusive loads and stores, CLREX.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        LDREX   R7, [R2]                        ;= e1927f9f
        STREX   R11, R14, [R12]                 ;= e18cbf9e
        LDREX   R14, [R2]                       ;= e192ef9f
        STREX   R11, R9, [R10]                  ;= e18abf99
        LDREX   R14, [R8]                       ;= e198ef9f
        STREX   R3, R6, [R7]                    ;= e1873f96
        LDREX   R14, [R0]                       ;= e190ef9f
        STREX   R0, R14, [R1]                   ;= e1810f9e
        LDREXEQ R2, [R3]                        ;= 01932f9f
        STREXEQ R4, R5, [R6]                    ;= 01864f95
        LDREXNE R2, [R3]                        ;= 11932f9f
        STREXNE R4, R5, [R6]                    ;= 11864f95
        LDREXMI R2, [R3]                        ;= 41932f9f
        STREXMI R4, R5, [R6]                    ;= 41864f95
        LDREXAL R2, [R3]                        ;= e1932f9f
        STREXAL R4, R5, [R6]                    ;= e1864f95
