; An error in the source removes the dependency file; no object is made.
; RUN: %s %o --asm_dependency=%t/dep.ppa
; EXIT: 1
; NOFILE: dep.ppa
; NOFILE: dependency_removed.obj
5 ;! E0003 Only labels and comments may begin in the first column. Make sure that the label name is not a reserved keyword.
