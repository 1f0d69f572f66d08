// Interim handlers of .cdecls; the C header conversion step makes them real.

#include "directives/cdecls.h"
#include "driver/pending.h"

void DP_cdecls(instruct *ir) { DIR_pass_over_operands(ir); }
void GD_cdecls(instruct *ir) { DIR_not_supported(ir); }
