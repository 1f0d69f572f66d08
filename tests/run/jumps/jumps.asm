; Plain Thumb functions whose branches reach across large gaps: the long
; forms that jump expansion chooses, with the labels and alignments behind
; them, and a chain of pseudo-branches.
; BUILD: -v4
; BUILD: -v7A8
        .text
        .state16
        .global jp_hops
        .global jp_cmp
        .global jp_ne
        .global jp_chain

; x + 3, by hops across gaps in both directions: the long unconditional
; form is a branch with link, so LR is kept on the stack.
jp_hops:
        PUSH    {R4, LR}
        ADD     R0, #1
        BR      hop2                    ; ahead, far
hop1:   ADD     R0, #1
        BR      hop3                    ; ahead, far
        .space  3000                    ; never run
hop2:   BR      hop1                    ; behind, far
        .align  4
        .space  2100
hop3:   ADD     R0, #1
        POP     {R4}
        POP     {R1}
        BX      R1

; 1 if x >= 10 (signed), else 2: a conditional pseudo-branch of six bytes.
jp_cmp:
        PUSH    {R4, LR}
        CMP     R0, #10
        BRGE    big
        MOV     R0, #2
        BR      done
        .space  3000
big:    MOV     R0, #1
done:   POP     {R4}
        POP     {R1}
        BX      R1

; 5 if x is 0, else 6: a conditional branch of two halfwords, 300 ahead.
jp_ne:
        CMP     R0, #0
        BNE     nonzero
        MOV     R0, #5
        BX      LR
        .space  300
nonzero:
        MOV     R0, #6
        BX      LR

; x + 9: the first BT is too far from its target and jumps to the second.
jp_chain:
        PUSH    {R4, LR}
        BT      sum
        .space  1000
        BT      sum
        .space  1200
sum:    ADD     R0, #9
        POP     {R4}
        POP     {R1}
        BX      R1
