// Interim Thumb-2 width choice; the width step makes it real. Until then
// nothing is recorded in pass 1 and no 32-bit statement is narrowed.
#include "target/arm/glue_pending.h"
#include "target/arm/thumb2_hooks.h"

void TRG_encode_pass1(instruct *) {}
bool conv_32t2_to_16t(instruct *) { return false; }
void update_thumb2_lst(instruct *) {}

uint8_t suppress_output = 0;
int64_t num_thumb2_keep = 0;
int64_t num_thumb2_conv = 0;
int64_t num_orig_thumb = 0;
int64_t num_2opnd_conv = 0;
