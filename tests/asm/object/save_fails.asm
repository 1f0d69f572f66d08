; An object that can't be written is an engine error and then a file error.
; RUN: %s %t/no/such/dir/save_fails.obj
; EOF! E1500
; EOF! E1000
        .data
        .word   1
