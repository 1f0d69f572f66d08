// Interim bodies of what the target glue calls in later steps. Each goes when
// the real one lands: two definitions don't link.
#include "target/arm/glue_pending.h"

#include "driver/diag.h"

// The Thumb-2 encoder runs trials; no trial exists before it.
uint8_t suppress_output = 0;

// The Thumb-2 encoder counts these; without it no Thumb-2 instruction is seen.
int64_t num_thumb2_keep = 0;
int64_t num_thumb2_conv = 0;
int64_t num_orig_thumb = 0;
int64_t num_2opnd_conv = 0;

// The COFF writer makes these real. No ZQ-COFF object can be made until
// then, so they are not reached; if they were, say so.
void set_zqcoff_fh_isa(unsigned) { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
void set_zqcoff_fh_arm9abi() { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
void set_zqcoff_fh_zqabi() { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
void set_zqcoff_fh_dmode(bool) { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
