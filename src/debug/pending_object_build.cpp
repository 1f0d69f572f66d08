// Interim bodies of what object assembly calls in later steps. Each goes when
// the real one lands: two definitions don't link.
#include "debug/object_build_pending.h"

#include <cstdlib>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "ofe/object_file.h"
#include "target/arm/trg.h"

// The build attributes step makes it real, with the target's attributes that
// this hands over to. Until then an object claims no attributes.
void BA_gen_build_attributes() {
  if (disable_build_attributes || !ofile || !ofile->build_attributes_supported()) return;
  TRG_gen_build_attributes();
}

// The DWARF steps make it real. Debug information that was asked for can't
// be made yet, and an object without it would pass for a complete one.
int dw_write() {
  error_user(nullptr, "E9999", "DWARF debug information is not supported yet");
  std::exit(1);
}

// The COFF debug step makes it real; no ZQ-COFF object can be made before
// the COFF writer, so this is not reached.
void CSYM_patch() { error_internal(1, nullptr, "COFF symbol patch without the COFF writer"); }
