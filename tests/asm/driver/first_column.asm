; What may begin in the first column, and what an indented name is.
; EXIT: 1
label_alone
label_with_colon:
5 ;! E0003 Only labels and comments may begin in the first column. Make sure that the label name is not a reserved keyword.
5 junk ;! E0003 Only labels and comments may begin in the first column. Make sure that the label name is not a reserved keyword. ;! E0002 Illegal mnemonic specified
    indented: ;! E0002 Illegal mnemonic specified
spaced : ;! E0002 Illegal mnemonic specified
* a comment line
        .end
this line is never looked at
