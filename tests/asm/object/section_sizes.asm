; The summary of --section_sizes: constant data counts every initialised
; section that holds no code, writable or not; reserved space counts as data.
; The object goes to a device so that the file name in the summary is fixed.
; RUN: %s /dev/null --suppress_asm_extension --section_sizes=on
        .data
        .word   1, 2
        .sect   ".rodata"
        .byte   1, 2, 3
        .bss    b, 10
