; .setsym and .setsect work only for an absolute listing.
lab     .setsym 100h            ;! E0900 .setsym only valid if absolute listing produced (use -a option)
        .setsym 100h            ;! E0900 .setsym only valid if absolute listing produced (use -a option) ;! E0100 .setsym requires a label
        .setsect ".text", 100h  ;! E0900 .setsect only valid if absolute listing produced (use -a option)
