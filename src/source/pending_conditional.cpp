// Interim handlers of conditional assembly and loops; the conditional assembly
// and macros step makes them real.

#include "source/conditional.h"
#include "driver/pending.h"

[[gnu::weak]] void DP_cond(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_loopcnt(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_break(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void CAD_if(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void CAD_else(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void CAD_endif(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void CAD_loop(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void CAD_break(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void CAD_endloop(instruct *ir) { DIR_not_supported(ir); }

[[gnu::weak]] int16_t CBLK_lvl = -1;
[[gnu::weak]] int32_t CLOOP_lvl = -1;
