; A local label used after its scope has ended names another symbol, which
; stays undefined and is listed at the end.
        .text
$1:     .word   1
        .newblock
x       .set    $1
; EOF! E0300 The following symbols are undefined: $1_$2
