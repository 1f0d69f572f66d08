; Exclusive loads and stores: Rt at 12, a store's status register at 12 and
; its source at 0; the second register of a pair is implied.
; RUN: %s %o -v7A8
        .text
        LDREX   R0, [R1]
        LDREXB  R2, [R3]
        LDREXH  R4, [R5]
        LDREXD  R6, R7, [R8]
        STREX   R0, R1, [R2]
        STREXB  R3, R4, [R5]
        STREXH  R6, R7, [R8]
        STREXD  R0, R2, R3, [R4]
        LDREXEQ R0, [R1]
        STREXDNE R1, R2, R3, [R4]
; SECTION: .text: 9f 0f 91 e1 9f 2f d3 e1 9f 4f f5 e1 9f 6f b8 e1 91 0f 82 e1 94 3f c5 e1 97 6f e8 e1 92 0f a4 e1 9f 0f 91 01 92 1f a4 11
