// Interim: the table of unified-to-VFP translations lands with the VFP
// step; until then no statement is translated and NEON's encoder sees it.
#include "target/arm/instr.h"

bool simd_to_vfp_rewrite(instruct *) { return false; }
