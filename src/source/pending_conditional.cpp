// Interim handlers of conditional assembly and loops; the conditional assembly
// and macros step makes them real.

#include "source/conditional.h"
#include "driver/pending.h"

void DP_cond(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_loopcnt(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_break(instruct *ir) { DIR_pass_over_operands(ir); }
void CAD_if(instruct *ir) { DIR_not_supported(ir); }
void CAD_else(instruct *ir) { DIR_not_supported(ir); }
void CAD_endif(instruct *ir) { DIR_not_supported(ir); }
void CAD_loop(instruct *ir) { DIR_not_supported(ir); }
void CAD_break(instruct *ir) { DIR_not_supported(ir); }
void CAD_endloop(instruct *ir) { DIR_not_supported(ir); }

int16_t CBLK_lvl = -1;
int32_t CLOOP_lvl = -1;
