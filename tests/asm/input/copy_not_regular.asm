; Only regular files are copied: a directory or a device is not found,
; and reading goes on in this file.
 .word 1
 .copy "."            ;! E1000 Include/Copy file not found or opened
 .include "/dev/null" ;! E1000 Include/Copy file not found or opened
 .copy /dev/zero      ;! E1000 Include/Copy file not found or opened
 .word 2
