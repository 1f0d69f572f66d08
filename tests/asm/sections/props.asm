; Link properties of sections: the first link type given stands, and names
; of sections that don't exist are passed over with a warning.
        .sect   "keep"
        .retain
        .retain
        .clink                  ;! W0000 Section keep already has .RETAIN specified - ignoring .CLINK directive
        .clink  "nowhere"       ;! W0000 Section nowhere does not exist - ignoring .CLINK directive
        .sect   "linked"
        .clink
        .retain "linked"        ;! W0000 Section linked already has .CLINK specified - ignoring .RETAIN directive
        .retainrefs nowhere     ;! W0000 Section nowhere does not exist - ignoring .retainrefs directive
        .retainrefs "keep"
        .noinit "late"
        .comdat keep
        .byte   1
        .sect   "late"
; OBJECT: yes
