; Words the opcode lookup has seen before, in other cases and beside their
; longer and shorter neighbours: LDRHI is LDR with HI, not LDRH with I.
; RUN: %s %o -v7A8
        .text
        ldrhi   r0, [r1]
        ldrh    r0, [r1]
        LDRHI   r0, [r1]
        ldrh    r0, [r1]
        addeq   r0, r0, #1
        ADDEQ   r0, r0, #1
        addseq  r0, r0, #1
        addeqs  r0, r0, #1
        qadd16  r0, r1, r2
        qadd16  r0, r1, r2
        uqadd8  r0, r1, r2
add:    add     r0, r0, #1
        b       add
; SECTION: .text: 00 00 91 85 b0 00 d1 e1 00 00 91 85 b0 00 d1 e1 01 00 80 02 01 00 80 02 01 00 90 02 01 00 90 02 12 0f 21 e6 12 0f 21 e6 92 0f 61 e6 01 00 80 e2 fe ff ff ea
