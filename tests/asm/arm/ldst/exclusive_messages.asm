; Messages of the exclusives in ARM state: the address must be [Rn] alone,
; and a store's status register must differ from the others. These W ids
; come as errors.
; RUN: %s %o -v7A8
        .text
        LDREX   R0, [R1, #4]            ;! E0004 [Rn] must be a register indirect with no offset
        LDREXB  R0, R1                  ;! E0004 [Rn] must be a register indirect with no offset
        LDREX   #1, [R1]                ;! E0004 Destination operand Rd must be a register
        STREX   R0, #1, [R1]            ;! E0004 Operand Rt must be a register
        LDREXD  R0, #1, [R1]            ;! E0004 Operand Rt2 must be a register
        STREX   R0, R0, [R1]            ;! W0000 Using Rd == Rt or Rn will lead to unpredictable results
        STREXH  R1, R0, [R1]            ;! W0000 Using Rd == Rt or Rn will lead to unpredictable results
        STREXD  R2, R2, R3, [R1]        ;! W0000 Using Rd == Rt, Rt2,  or Rn will lead to unpredictable results
        STREXD  R3, R2, R3, [R1]        ;! W0000 Using Rd == Rt, Rt2,  or Rn will lead to unpredictable results
        STREXD  R0, R2, R3, [R1, #8]    ;! E0004 [Rn] must be a register indirect with no offset
