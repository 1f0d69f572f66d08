; The output of another tool chain is refused before anything is assembled.
; RUN: %s %o
; EXIT: 1
; NOFILE: foreign_source.obj
    .word 1
	  .compiler_opts --silicon_version=7
