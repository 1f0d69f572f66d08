; Copied by local_scopes.asm: a scope of its own.
$1:     .word   3
name?   .word   4
        .word   $1 - base, name? - base
