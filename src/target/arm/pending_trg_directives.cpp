// Interim handler of .battr; the build attributes step makes it real.

#include "target/arm/trg_directives.h"
#include "driver/pending.h"

void DP_battr(instruct *ir) { DIR_parse_not_supported(ir); }
