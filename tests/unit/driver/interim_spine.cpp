// Interim stand-ins so the driver tests link before the section manager and
// the engine-error handlers land. All weak: the real definitions replace them.
#include "directives/sections.h"
#include "ofe/of_types.h"

[[gnu::weak]] void SCN_queue(int, const char *) {}
[[gnu::weak]] void SCN_align(unsigned long, unsigned long) {}
[[gnu::weak]] void SCN_space(unsigned long) {}
[[gnu::weak]] void SCN_insert_byte(unsigned, int) {}
[[gnu::weak]] void SCN_reset() {}
[[gnu::weak]] void SCN_push() {}
[[gnu::weak]] void SCN_pop() {}
[[gnu::weak]] void SCN_flush() {}
[[gnu::weak]] void SCN_asm_debug(instruct *) {}
[[gnu::weak]] const char *section_record::name() const { return ""; }
[[gnu::weak]] section_record *curseg = nullptr;
[[gnu::weak]] void ofile_error_handler(OFE::OBJECT_FILE *, OFE::OF_ERROR_CODE, const char *) {}
