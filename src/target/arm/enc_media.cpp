// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_bitfield(instruct *ir) { encode_not_supported(ir); }
void encode_rev(instruct *ir) { encode_not_supported(ir); }
void encode_addsub(instruct *ir) { encode_not_supported(ir); }
void encode_wsat(instruct *ir) { encode_not_supported(ir); }
void encode_hsat(instruct *ir) { encode_not_supported(ir); }
void encode_sel(instruct *ir) { encode_not_supported(ir); }
void encode_extend(instruct *ir) { encode_not_supported(ir); }
void encode_v6_mul(instruct *ir) { encode_not_supported(ir); }
void encode_v6_mull(instruct *ir) { encode_not_supported(ir); }
void encode_usad(instruct *ir) { encode_not_supported(ir); }
void encode_pack(instruct *ir) { encode_not_supported(ir); }
