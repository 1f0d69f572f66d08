// Interim listing output; the listing step writes the lines, object bytes and
// messages of a group to the listing file.
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/output_files.h"
#include "listing/listing.h"
#include "listing/lst_directives.h"
#include "support/fhm.h"

// Nothing is written to the listing file yet, so a new page only restarts the
// line count.
void LST_pagehdr() { LST_linesprinted = 0; }

void LST_print_group(const lst_group *) {}

// A listing that was asked for can't be made yet, and an empty file would
// pass for one. Refused after pass 2, so that the error counts.
void LST_close() {
  fhm_close(ASSY_LST);  // its contents are dropped
  OUT_discard(out_kind::listing);
  ASSY_LST = nullptr;
  error_user(nullptr, "E9999", "Listing files are not supported yet");
}
