// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_branch(instruct *ir) { encode_not_supported(ir); }
void encode_cret(instruct *ir) { encode_not_supported(ir); }
void encode_adr(instruct *ir) { encode_not_supported(ir); }
