#pragma once
// Handlers of the user-message and remark-control directives.
struct instruct;

// .emsg, .mmsg, .wmsg: one string operand into slot 0.
void DP_emsg(instruct *ir);
// Pass-2 handlers of .emsg, .mmsg and .wmsg (pass 1 is donothing).
void GD_emsg(instruct *ir);
void GD_mmsg(instruct *ir);
void GD_wmsg(instruct *ir);
// .remark, .noremark: one or more ids into slot 0; the handler runs in both
// passes and tells the two apart by the row's name.
void DP_remark(instruct *ir);
void GD_remark(instruct *ir);
