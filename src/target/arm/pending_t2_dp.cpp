// Interim: the Thumb-2 data-processing encoders land with their own files; until then the statement is refused.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_t2_dp(instruct *ir) { encode_not_supported(ir); }
void encode_t2_dpw(instruct *ir) { encode_not_supported(ir); }
void encode_t2_mov_imm(instruct *ir) { encode_not_supported(ir); }
void encode_t2_dp_reg(instruct *ir) { encode_not_supported(ir); }
void encode_t2_shift(instruct *ir) { encode_not_supported(ir); }
void encode_t2_extend(instruct *ir) { encode_not_supported(ir); }
void encode_t2_mul(instruct *ir) { encode_not_supported(ir); }
void encode_t2_div(instruct *ir) { encode_not_supported(ir); }
void encode_t2_rev(instruct *ir) { encode_not_supported(ir); }
