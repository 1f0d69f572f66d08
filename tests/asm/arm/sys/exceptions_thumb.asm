; SMI and UDF in Thumb-2 (the value split 4, 8, 4 and 4, 12) and UDF in
; 16-bit Thumb.
; RUN: %s %o -v7A8 -mt
        .text
        smi     #0xabcd                 ; F7FA8BCD
        smi     #0x1                    ; F7F08001
        udf     #0xabcd                 ; F7FAABCD
        udf     #0x100                  ; F7F0A100
        .state16
        udf     #0x12                   ; DE12
        udf     #255                    ; DEFF
        .thumb
        udf     #0x1000                 ; F7F1A000
; SECTION: .text: fa f7 cd 8b f0 f7 01 80 fa f7 cd ab f0 f7 00 a1 12 de ff de f1 f7 00 a0
