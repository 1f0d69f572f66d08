; A command file that names itself. Each --cmd_file replaces the file being
; read, so the same file used to be opened again and again and the run never
; ended; opening a command file again must be refused and end the run.
; RUN: -@ cmd_file_self.cmd %s %o
; EOF! E1000
; EXIT: 1
        .word   1
