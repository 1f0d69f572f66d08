; Inside IT blocks 16-bit data processing sets no flags: what narrows there.
; RUN: %s %o -v7A8
        .thumb
        IT EQ                      ;= bf08
        ANDEQ R0, R0, R1           ;= 4008
        IT EQ                      ;= bf08
        ANDSEQ R0, R0, R1          ;= ea10 0001
        IT EQ                      ;= bf08
        MOVEQ R0, #1               ;= 2001
        IT EQ                      ;= bf08
        MOVEQ R0, R1               ;= 1c08  ; note: inside IT the 16-bit MOV form of two low registers is ADD Rd, Rs, #0
        ITE NE                     ;= bf14
        ADDNE R0, R1, R2           ;= 1888
        ADDEQ R0, R1, #300         ;= f501 7096
        ITT EQ                     ;= bf04
        LSLEQ R0, R1, #2           ;= 0088
        ORREQ R0, R1, R0           ;= 4308
        IT NE                      ;= bf18
        SUBNE R0, R0, #1           ;= 1e40  ; note: as llvm-mc; GNU as gives 3801
        IT EQ                      ;= bf08
        ADDEQ R8, R8, R1           ;= 4488
