// Interim handlers of .asmfunc and .endasmfunc; the assembly-source debug step
// makes them real.

#include "debug/asm_debug.h"
#include "driver/pending.h"

void DP_asmfunc(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_endasmfunc(instruct *ir) { DIR_parse_not_supported(ir); }

// No debug information is made before the DWARF step (it refuses the option
// itself), so branches have nothing to be recorded in.
void dw_mk_branch(uint32_t, uint32_t, operand *) {}
