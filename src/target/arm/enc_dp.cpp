// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_dp(instruct *ir) { encode_not_supported(ir); }
void encode_clz(instruct *ir) { encode_not_supported(ir); }
