; What a group definition may not hold, and group directives out of place.
        .sect   "m"
        .group  "g1", 1
        .word   1               ;! E0900 Invalid group contents
        nop                     ;! E0800 Instructions not permitted in group definitions
        .gmember "m"
        .gmember "absent"       ;! E0900 Section with member name not found
        .endgroup
        .group  "g2", 1         ;! W0005 Group does not contain any members
        .endgroup
        .group  "g3", 2         ;! E0900 Illegal group kind ;! W0005 Group does not contain any members
        .endgroup
        .gmember "m"            ;! E0900 Matching .group directive is not present
        .endgroup               ;! E0900 Matching .group directive is not present
        .group  "g4"            ;! E0005 Operand missing
