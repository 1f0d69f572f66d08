// Interim bodies of what the target glue calls in later steps. Each goes when
// the real one lands: two definitions don't link.
#include "target/arm/glue_pending.h"

#include "driver/diag.h"

// The COFF writer makes these real. No ZQ-COFF object can be made until
// then, so they are not reached; if they were, say so.
void set_zqcoff_fh_isa(unsigned) { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
void set_zqcoff_fh_arm9abi() { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
void set_zqcoff_fh_zqabi() { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
void set_zqcoff_fh_dmode(bool) { error_internal(1, nullptr, "ZQ-COFF file header without the COFF writer"); }
