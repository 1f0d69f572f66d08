// INTERIM link stand-ins for the lexer's unit tests, for pieces of other
// helpers that have not landed yet. All weak: the real definitions win.
#include "ofe/object_file.h"

struct instruct;

[[gnu::weak]] void SCN_align(unsigned long, unsigned long) {}
[[gnu::weak]] void SCN_asm_debug(instruct *) {}
[[gnu::weak]] void SCN_flush() {}
[[gnu::weak]] void SCN_insert_byte(unsigned, int) {}
[[gnu::weak]] void SCN_pop() {}
[[gnu::weak]] void SCN_push() {}
[[gnu::weak]] void SCN_queue(int, const char *) {}
[[gnu::weak]] void SCN_reset() {}
[[gnu::weak]] void SCN_space(unsigned long) {}
[[gnu::weak]] void ofile_error_handler(OFE::OBJECT_FILE *, OFE::OF_ERROR_CODE, const char *) {}
