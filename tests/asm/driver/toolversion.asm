; --toolversion prints the version and stops.
; RUN: --toolversion
; EXIT: 0
