#pragma once
// Stand-ins used by the interim handlers of directives whose subsystem has
// not been built: they keep the statement stream in step and say so honestly.
struct instruct;

// Pass 2: "E0002" "Directive %s is not supported yet" on the statement's line.
void DIR_not_supported(instruct *ir);
// A parse handler's stand-in: the operands are passed over to the line end.
void DIR_pass_over_operands(instruct *ir);
// Both of the above, for directives that do their work while parsed.
void DIR_parse_not_supported(instruct *ir);
