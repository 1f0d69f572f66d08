// Interim cross-reference; the macro libraries and cross-reference step makes it real.
#include "listing/xref.h"

#include "driver/diag.h"

void printxref() {
  error_user(nullptr, "E9999", "--cross_reference is not supported yet");
}
