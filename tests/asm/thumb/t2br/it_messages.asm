; Conditions inside and outside IT blocks. Each instruction takes one slot
; of the block; labels and directives between them take none. Inside a
; block no condition is encoded: a missing or wrong one is a warning.
; RUN: %s %o -v7A8 -mt
        .text
        ITTE    EQ
        MOVWEQ  R0, #1
lab:    .align  2               ; neither the label nor the directive ends the block
        MOVWEQ  R1, #2
        MOVWNE  R2, #3
        MOVWEQ  R3, #4          ;! E0002 Condition codes not allowed outside of IT blocks in Thumb.
        ITET    GT
        MOVW    R4, #5          ;! W0004 Missing condition code inside of IT block
        MOVWGT  R5, #6          ;! W0004 Incorrect condition code inside of IT block
        MOVWLT  R6, #7          ;! W0004 Incorrect condition code inside of IT block
        IT      NE
        BNE.W   lab             ; a branch ends its block
        BNE.W   lab             ; outside, a branch keeps its condition
        ITQ     EQ              ;! E0003 Invalid modifier in If-Then (IT) instruction
        MOVW    R7, #8          ;! W0004 Missing condition code inside of IT block
        NOP.W                   ; the slot of the bad letter checks nothing
        IT      XY              ;! E0003 Empty or Invalid condition code
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        IT                      ;! E0003 Empty or Invalid condition code
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        ITTTTT  EQ              ;! E0003 Invalid modifier in If-Then (IT) instruction
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        NOP.W                   ;! W0004 Missing condition code inside of IT block
        NOP.W
; The 16-bit forms set flags outside a block and only there.
        IT      EQ
        ADDSEQ.N R0, R0, #1     ;! E0002 Instruction cannot set status inside IT
        ADD.N   R1, R1, #1      ;! E0002 Instruction must set status
        ITT     NE
        ADDNE.N R2, R2, #1
        CMPNE.N R2, #3
        ADDS.N  R3, R3, #1
