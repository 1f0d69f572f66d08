// Interim stand-ins so the option tests link before the driver and the
// target land.  All weak: the real definitions replace them.
#include <string>

#include "driver/driver.h"
#include "target/arm/state.h"
#include "target/arm/trg.h"

[[gnu::weak]] void add_incl_path(const char *dir) { paths.emplace_back(dir); }
[[gnu::weak]] void open_cmd_file(const char *) {}
[[gnu::weak]] int TRG_get_version(const char *) { return 0; }
[[gnu::weak]] void TRG_version_check() {}
// Records nothing; the interim in the tree refuses Thumb, which these
// tests do not want to trip over.
[[gnu::weak]] void TRG_set_code_state(long) {}
[[gnu::weak]] void TRG_set_ual_mode() {}
