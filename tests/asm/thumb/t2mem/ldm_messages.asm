; Messages of the Thumb-2 multiple transfers.
; RUN: %s %o -v7M3
        .text
        .thumb
        LDM.W   R0, R1                  ;! E0004 Register list required
        PUSH.W  R1                      ;! E0004 Register list required
        LDM.W   #4, {R0, R1}            ;! E0004 Operand Rn must be a register
        LDM.W   PC, {R0, R1}            ;! E0004 Specifying R15 as an operand is illegal
        LDM.W   R0, {R1, LR, PC}        ;! E0004 Both PC and LR cannot be in the register list
        POP.W   {R4, LR, PC}            ;! E0004 Both PC and LR cannot be in the register list
        STM.W   R0, {R1, PC}            ;! E0004 PC not allowed in STM/PUSH register list
        STMDB.W R0!, {PC}               ;! E0004 PC not allowed in STM/PUSH register list
        PUSH.W  {R1, PC}                ;! E0004 PC cannot be pushed onto the stack
        STM.W   R0, {R1, SP}            ;! E0004 SP cannot be in the register list
        LDMDB.W R0, {R1, SP}            ;! E0004 SP cannot be in the register list
        LDMIB   R0, {R1, R2}            ;! E0004 Illegal addressing mode
        STMDA   R0!, {R1, R2}           ;! E0004 Illegal addressing mode
        LDM.W   R0, {R1, R2}^           ;! W0000 Invalid operand modifiers ignored
        LDM.W   R0!, {R0}               ;! W0000 Specifying the same register with write back in source and destination leads to unpredictable results
