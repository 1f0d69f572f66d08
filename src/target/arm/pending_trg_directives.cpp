// Interim handlers of the target directives; the instruction tables and target
// state step (and, for .battr, the build attributes step) make them real.

#include "target/arm/trg_directives.h"
#include "driver/pending.h"

void DP_battr(instruct *ir) { DIR_parse_not_supported(ir); }
void TD_thumb_state(instruct *ir) { DIR_not_supported(ir); }
void TD_t_ual_state(instruct *ir) { DIR_not_supported(ir); }
void TD_arm_state(instruct *ir) { DIR_not_supported(ir); }
void TD_thumb_func(instruct *ir) { DIR_not_supported(ir); }
void TD_arm_func(instruct *ir) { DIR_not_supported(ir); }
