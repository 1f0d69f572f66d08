; With --asm_dependency there is a dependency file and no object.
; RUN: %s %o --asm_dependency=%t/dep.ppa
; NOFILE: dependency_only.obj
start:
