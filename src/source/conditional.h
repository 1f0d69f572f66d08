#pragma once
// Conditional assembly and loops.
#include <cstdint>
struct instruct;

extern int16_t CBLK_lvl;    // top of the block stack, -1 when empty
extern int32_t CLOOP_lvl;   // loops being repeated, -1 outside loops

void DP_cond(instruct *ir);      // .if, .elseif
void DP_loopcnt(instruct *ir);   // .loop
void DP_break(instruct *ir);     // .break
void CAD_if(instruct *ir);
void CAD_else(instruct *ir);     // .else, and .elseif reached after an assembled branch
void CAD_endif(instruct *ir);
void CAD_loop(instruct *ir);
void CAD_break(instruct *ir);
void CAD_endloop(instruct *ir);
