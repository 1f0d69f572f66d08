// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_cdp(instruct *ir) { encode_not_supported(ir); }
void encode_cdp_xfer(instruct *ir) { encode_not_supported(ir); }
void encode_cpr_xfer(instruct *ir) { encode_not_supported(ir); }
