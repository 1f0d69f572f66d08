; Carriage returns and Ctrl-Z are not part of the text.
; EXIT: 1

ok_label
5 ;! E0003 Only labels and comments may begin in the first column. Make sure that the label name is not a reserved keyword.
