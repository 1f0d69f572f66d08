; Faults of .symver.
        .global ext
        .symver ext, noversion          ;! E0300 missing version name in 'noversion' for symbol 'ext'
        .symver ext, ext@@V1            ;! E0300 undefined symbol 'ext' cannot be used to declare default version name 'ext@@V1'
        .symver ext, ext@V1
        .symver ext, ext@V2             ;! E0300 multiple versions 'ext@V1 and 'ext@V2' for symbol 'ext'
        .symver ext                     ;! E0005 Operand missing
