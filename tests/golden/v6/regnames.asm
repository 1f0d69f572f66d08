; Register names and lower case.
; Written by scripts/golden/gen.py: change the generator, not this file.
; RUN: %s %o -v6
        ADD     A1, R1, A1                      ;= e0810000
        ADD     A2, R2, A2                      ;= e0821001
        ADD     A3, R3, A3                      ;= e0832002
        ADD     A4, R1, A4                      ;= e0813003
        ADD     V1, R2, V1                      ;= e0824004
        ADD     V2, R3, V2                      ;= e0835005
        ADD     V3, R1, V3                      ;= e0816006
        ADD     V4, R2, V4                      ;= e0827007
        ADD     V5, R3, V5                      ;= e0838008
        ADD     V6, R1, V6                      ;= e0819009
        ADD     V7, R2, V7                      ;= e082a00a
        ADD     V8, R3, V8                      ;= e083b00b
        ADD     V9, R1, V9                      ;= e081c00c
        ADD     AP, R2, AP                      ;= e0827007
        ADD     IP, R3, IP                      ;= e083c00c
        ADD     SP, R1, SP                      ;= e081d00d
        ADD     LR, R2, LR                      ;= e082e00e
        ADD     R0, R3, PC                      ;= e083000f
        ADD     R13, R1, R13                    ;= e081d00d
        ADD     r5, R2, r5                      ;= e0825005
        ADD     sp, R3, sp                      ;= e083d00d
        ADD     lr, R1, lr                      ;= e081e00e
        ADD     ip, R2, ip                      ;= e082c00c
        ADD     a1, R3, a1                      ;= e0830000
        ADD     v9, R1, v9                      ;= e081c00c
        ADD     ap, R2, ap                      ;= e0827007
        mov     r0, r1                          ;= e1a00001
        Mov     R2, r3                          ;= e1a02003
        add     r4, r5, #0x10                   ;= e2854010
        ldr     r0, [r1, #4]                    ;= e5910004
        addeq   r0, r1, r2                      ;= 00810002
        ldreqb  r3, [r4]                        ;= 05d43000
        movseq  r0, r1                          ;= 01b00001
