; Preloads: U, Rn and the offset; a register offset sets bit 25. The P bit
; belongs to the row (PLD has it, PLI has not).
; RUN: %s %o -v7A8
        .text
        PLD     [R1]
        PLD     [R1, #-4]
        PLD     [R1, #4095]
        PLD     [R1, R2]
        PLD     [R1, -R2, LSL #3]
        PLI     [R1]
        PLI     [R1, #-4]
        PLI     [R1, R2, ASR #4]
; SECTION: .text: 00 f0 d1 f5 04 f0 51 f5 ff ff d1 f5 02 f0 d1 f7 82 f1 51 f7 00 f0 d1 f4 04 f0 51 f4 42 f2 d1 f6
