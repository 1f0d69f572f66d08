; Local labels: each of .newblock, .text, .copy and the end of a copied file
; starts a new scope, so the same $1 names a new symbol in each.
        .text
base:
$1:     .word   1
        .word   $1 - base
        .newblock
$1:     .word   2
        .word   $1 - base
        .copy   "_local_scopes_inc.asm"
$1:     .word   5
        .word   $1 - base
; SYMBOL: $1_$1 00000000 0 FUNC LOCAL HIDDEN .text
; SYMBOL: $1_$2 00000008 0 FUNC LOCAL HIDDEN .text
; SYMBOL: $1_$3 00000010 0 FUNC LOCAL HIDDEN .text
; SYMBOL: $1_$4 00000020 0 FUNC LOCAL HIDDEN .text
; SYMBOL: name$3 00000014 0 FUNC LOCAL HIDDEN .text
