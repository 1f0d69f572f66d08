// Interim: the Thumb-2 load, store and system encoders land with their own files; until then the statement is refused.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_t2_ldr_str(instruct *ir) { encode_not_supported(ir); }
void encode_t2_ldm(instruct *ir) { encode_not_supported(ir); }
void encode_t2_table(instruct *ir) { encode_not_supported(ir); }
void encode_t2_prefetch(instruct *ir) { encode_not_supported(ir); }
void encode_t2_cps(instruct *ir) { encode_not_supported(ir); }
