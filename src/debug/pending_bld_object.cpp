// Interim object assembly; the object assembly and target hooks step makes it real.
#include "debug/bld_object.h"

#include <cstdio>
#include <cstdlib>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"

[[gnu::weak]] void BLD_object() {
  if (num_errors) {
    fprintf(stderr, "\nErrors in Source - Assembler Aborted\n");
    exit(1);
  }
  if (opt_on(OPT_ABSOLUTE_LISTING) || opt_on(OPT_PREPROCESS)) return;
  error_user(nullptr, "E1000", "Failed to write object file : %s", "object output is not supported yet");
  exit(1);
}
