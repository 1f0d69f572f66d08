// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_ldr_str(instruct *ir) { encode_not_supported(ir); }
void encode_ldm(instruct *ir) { encode_not_supported(ir); }
void encode_swp(instruct *ir) { encode_not_supported(ir); }
void encode_pld(instruct *ir) { encode_not_supported(ir); }
void encode_ldrex(instruct *ir) { encode_not_supported(ir); }
void encode_ldrexd(instruct *ir) { encode_not_supported(ir); }
void encode_strex(instruct *ir) { encode_not_supported(ir); }
void encode_strexd(instruct *ir) { encode_not_supported(ir); }
