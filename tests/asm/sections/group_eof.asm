; A group that the file ends in.
        .group  "g", 1
        .gmember ".text"
; EOF! E0900 Unexpected end-of-file.
