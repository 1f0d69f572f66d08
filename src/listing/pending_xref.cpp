// Interim cross-reference; the macro libraries and cross-reference step makes it real.
#include "listing/xref.h"

#include "driver/diag.h"
#include "driver/driver.h"

void printxref() {
  if (ASSY_LST) return;  // the table belongs to the listing, which is refused as a whole
  error_user(nullptr, "E9999", "--cross_reference is not supported yet");
}
