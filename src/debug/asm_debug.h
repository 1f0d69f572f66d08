#pragma once
// Debug information made from hand-written source: the function directives.
#include <cstdint>

struct instruct;
struct operand;

// Parse handlers that do all the work; both pass handlers are donothing.
void DP_asmfunc(instruct *ir);
void DP_endasmfunc(instruct *ir);

// An instruction that branches (kind: 1 call, 2 return, 3 C-return, 4
// indirect jump, 5 a load into PC; a link ORs 1 in) at `pc` to `target`,
// for the source-level debug information.
void dw_mk_branch(uint32_t kind, uint32_t pc, operand *target);
