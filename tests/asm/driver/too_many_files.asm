; Three file names are the most the command line takes.
; RUN: %s %t/a.obj %t/a.lst extra
; EXIT: 1
; EOF! E0000 Too many files on command line
