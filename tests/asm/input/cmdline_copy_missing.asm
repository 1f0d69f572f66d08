; A file named by --copy_file has no source line: its message has none either.
; RUN: --copy_file=missing.inc %s %o
; EOF! E1000 Include/Copy file not found or opened
 .word 1
