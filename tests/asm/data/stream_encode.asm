; .stream writes strings with a terminator and integers as signed LEB128;
; .encode does the same into a section of its own, and a label on its line
; stays with the section that was current.
        .data
        .stream 63, 64, -1, -65, "ab"
lab     .encode 5, "x"
        .half   7
end     .byte   end - lab
; SECTION: .data: 3f c0 00 7f bf 7f 61 62 00 00 07 00 02
; SECTION: .encode: 05 78 00
