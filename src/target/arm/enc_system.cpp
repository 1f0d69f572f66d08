// Interim bodies; the encoders of this family replace them.
#include "target/arm/encoders.h"
#include "target/arm/pending_encoders.h"

void encode_psr(instruct *ir) { encode_not_supported(ir); }
void encode_swi(instruct *ir) { encode_not_supported(ir); }
void encode_bkpt(instruct *ir) { encode_not_supported(ir); }
void encode_nop(instruct *ir) { encode_not_supported(ir); }
void encode_clrex(instruct *ir) { encode_not_supported(ir); }
void encode_synch(instruct *ir) { encode_not_supported(ir); }
void encode_setend(instruct *ir) { encode_not_supported(ir); }
void encode_cps(instruct *ir) { encode_not_supported(ir); }
void encode_rfe(instruct *ir) { encode_not_supported(ir); }
void encode_srs(instruct *ir) { encode_not_supported(ir); }
void encode_smi(instruct *ir) { encode_not_supported(ir); }
void encode_hint(instruct *ir) { encode_not_supported(ir); }
void encode_sg(instruct *ir) { encode_not_supported(ir); }
void encode_tt(instruct *ir) { encode_not_supported(ir); }
void encode_udf(instruct *ir) { encode_not_supported(ir); }
