; Supervisor calls, breakpoints, secure monitor calls and permanently
; undefined words in ARM state: the comment field and its split.
; RUN: %s %o -v7A8
        .text
        svc     #0x123456               ; EF123456
        svceq   #0                      ; 0F000000
        swi     #0xffffff               ; EFFFFFFF
        swine   #1                      ; 1F000001
        bkpt    #0x1234                 ; E1212374
        bkpt    #0                      ; E1200070
        smi     #0xabcd                 ; E16ABC7D
        smieq   #15                     ; 0160007F
        udf     #0xabcd                 ; E7FABCFD
        udf     #0                      ; E7F000F0
        svc     #0x1000001              ; EF000001 ;! W0002 Comment field value truncated
        bkpt    #0x12345                ; E1223475 ;! W0002 Comment field value truncated
        smi     #0x10001                ; E1600071 ;! W0002 Comment field value truncated
; SECTION: .text: 56 34 12 ef 00 00 00 0f ff ff ff ef 01 00 00 1f 74 23 21 e1 70 00 20 e1 7d bc 6a e1 7f 00 60 01 fd bc fa e7 f0 00 f0 e7 01 00 00 ef 75 34 22 e1 71 00 60 e1
