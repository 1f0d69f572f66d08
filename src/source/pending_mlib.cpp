// Interim handler of .mlib; the macro libraries step makes it real.

#include "source/mlib.h"
#include "driver/pending.h"

void MLIB_include(instruct *ir) { DIR_not_supported(ir); }
