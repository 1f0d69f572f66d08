// Interim handler of .reloc; the relocations step makes it real.

#include "expr/reloc_directive.h"
#include "driver/pending.h"

void DP_reloc(instruct *ir) { DIR_parse_not_supported(ir); }
