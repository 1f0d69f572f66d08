; SMI and UDF in Thumb-2 (SMI's low four bits at 16, the rest in the second
; halfword; UDF split 4, 12) and UDF in
; 16-bit Thumb.
; RUN: %s %o -v7A8 -mt
        .text
        smi     #0xabcd                 ; F7FD8BCA
        smi     #0x1                    ; F7F18000
        udf     #0xabcd                 ; F7FAABCD
        udf     #0x100                  ; F7F0A100
        .state16
        udf     #0x12                   ; DE12
        udf     #255                    ; DEFF
        .thumb
        udf     #0x1000                 ; F7F1A000
; SECTION: .text: fd f7 ca 8b f1 f7 00 80 fa f7 cd ab f0 f7 00 a1 12 de ff de f1 f7 00 a0
