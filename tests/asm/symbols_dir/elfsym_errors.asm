; Faults of .elfsym.
        .data
x:      .byte   1
        .elfsym                         ;! E0005 Missing elfsym name operand
        .elfsym x, SYM_BLOCKED(1)       ;! E0004 Wrong attr type in .elfsym
        .elfsym x, SYM_PRESERVE(1), SYM_UPDATE(1) ;! E0004 SYM_PRESERVE and SYM_UPDATE cannot be specified together in .elfsym
        .elfsym x, SIZE(4)              ;! E0003 Bad attribute name for attribute/value pair operand
        .elfsym x, SYM_SIZE 4           ;! E0003 Bad attribute value specified for attribute/value pair operand
        .elfsym nowhere, SYM_UPDATE(1)  ;! E0004 Symbol nowhere is not defined
