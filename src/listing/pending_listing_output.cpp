// Interim listing output; the listing step writes the lines, object bytes and
// messages of a group to the listing file.
#include "driver/diag.h"
#include "listing/listing.h"
#include "listing/lst_directives.h"

// Nothing is written to the listing file yet, so a new page only restarts the
// line count.
void LST_pagehdr() { LST_linesprinted = 0; }

void LST_print_group(const lst_group *) {
  static bool told = false;
  if (told) return;
  told = true;
  internal_warning("the listing file is not written by this build");
}
