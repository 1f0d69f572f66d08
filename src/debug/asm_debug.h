#pragma once
// Debug information made from hand-written source: the function directives.
struct instruct;

// Parse handlers that do all the work; both pass handlers are donothing.
void DP_asmfunc(instruct *ir);
void DP_endasmfunc(instruct *ir);
