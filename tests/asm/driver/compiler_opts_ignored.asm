; Only a lower-case .compiler_opts that starts a line marks foreign source;
; the directive itself passes over the rest of its line.
; RUN: %s %o
; OBJECT: yes
; .compiler_opts in a comment
* .compiler_opts in a comment line
        .COMPILER_OPTS --abi=eabi "unbalanced ; @ $$
        .COMPILER_OPTS_SOURCE anything at all
