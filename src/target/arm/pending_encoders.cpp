// Encoders of later steps (VFP, Thumb, Thumb-2, NEON): until they land, the
// statement is refused at its line and its length is written as zeros.
#include "target/arm/pending_encoders.h"

#include "driver/diag.h"
#include "driver/records.h"
#include "target/arm/encoders.h"
#include "target/arm/thumb2_hooks.h"

void encode_not_supported(instruct *ir) {
  error(ir->line, "E0002", "Encoding of %s is not supported yet", ia_row(ir)->name);
}

void encode_vfp(instruct *ir) { encode_not_supported(ir); }
void encode_thumb16(instruct *ir) { encode_not_supported(ir); }
void encode_thumb2(instruct *ir) { encode_not_supported(ir); }
void encode_simd_ins(instruct *ir) { encode_not_supported(ir); }

// The Thumb-2 width choice and jump expansion land with the Thumb steps: until
// then nothing is recorded in pass 1 and no 32-bit statement is narrowed.
void TRG_encode_pass1(instruct *) {}
bool conv_32t2_to_16t(instruct *) { return false; }
void update_thumb2_lst(instruct *) {}
