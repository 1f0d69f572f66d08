// Interim: the Thumb-2 branch, IT and ADR encoders land with their own files; until then the statement is refused.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_t2_branch(instruct *ir) { encode_not_supported(ir); }
void encode_t2_adr(instruct *ir) { encode_not_supported(ir); }
void encode_t2_it(instruct *ir) { encode_not_supported(ir); }
void encode_t2_czb(instruct *ir) { encode_not_supported(ir); }
void encode_t2_bxj(instruct *ir) { encode_not_supported(ir); }
