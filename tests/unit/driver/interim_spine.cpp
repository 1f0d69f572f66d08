// Interim stand-ins so the driver tests link before the section manager lands.
// All weak: the real definitions replace them.
struct instruct;

[[gnu::weak]] void SCN_queue(int, const char *) {}
[[gnu::weak]] void SCN_align(unsigned long, unsigned long) {}
[[gnu::weak]] void SCN_space(unsigned long) {}
[[gnu::weak]] void SCN_insert_byte(unsigned, int) {}
[[gnu::weak]] void SCN_reset() {}
[[gnu::weak]] void SCN_push() {}
[[gnu::weak]] void SCN_pop() {}
[[gnu::weak]] void SCN_flush() {}
[[gnu::weak]] void SCN_asm_debug(instruct *) {}
