; The hints and UDF that plain Thumb reaches through its 16-bit slot, on v7-M
; in .state16.
; RUN: %s %o -v7M3
        .state16
        sev
        wfe
        wfi
        yield
        udf     #12
        udf     #255
; SECTION: .text: 40 bf 20 bf 30 bf 10 bf 0c de ff de
