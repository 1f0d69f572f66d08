// Encoders of later steps (VFP, NEON): until they land, the statement is
// refused at its line and its length is written as zeros.
#include "target/arm/pending_encoders.h"

#include "driver/diag.h"
#include "driver/records.h"
#include "target/arm/encoders.h"

void encode_not_supported(instruct *ir) {
  error(ir->line, "E0002", "Encoding of %s is not supported yet", ia_row(ir)->name);
}

void encode_vfp(instruct *ir) { encode_not_supported(ir); }
void encode_simd_ins(instruct *ir) { encode_not_supported(ir); }
