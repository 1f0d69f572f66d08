// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_mul(instruct *ir) { encode_not_supported(ir); }
void encode_mull(instruct *ir) { encode_not_supported(ir); }
void encode_fixpt(instruct *ir) { encode_not_supported(ir); }
void encode_smul(instruct *ir) { encode_not_supported(ir); }
