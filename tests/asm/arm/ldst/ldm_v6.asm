; Below v7 a written-back base in the list of an LDM is only a remark.
; RUN: %s %o -v6
        .text
        LDM     R0!, {R0, R1}           ;! R0000 Use of writeback flag when the register list contains Rn is deprecated in ARM mode; The result in Rn is unknown
        LDMDB   R2!, {R1, R2}           ;! R0000 Use of writeback flag when the register list contains Rn is deprecated in ARM mode; The result in Rn is unknown
; SECTION: .text: 03 00 b0 e8 06 00 32 e9
