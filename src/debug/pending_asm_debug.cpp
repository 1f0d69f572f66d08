// Interim handlers of .asmfunc and .endasmfunc; the assembly-source debug step
// makes them real.

#include "debug/asm_debug.h"
#include "driver/pending.h"

void DP_asmfunc(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_endasmfunc(instruct *ir) { DIR_parse_not_supported(ir); }
