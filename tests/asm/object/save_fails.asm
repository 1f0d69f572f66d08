; An object that can't be written is one file error, naming the file and why.
; RUN: %s %t/no/such/dir/save_fails.obj
; EOF! E1000
        .data
        .word   1
