// Interim pieces of the section manager that the expression engine reads.
// Each weak definition gives way to the real one when its subsystem lands.
#include "driver/driver.h"
#include "expr/expr_internal.h"

// Without the section manager no bits wait in a field accumulator, no
// section is absolute and none belongs to a COMDAT group.
[[gnu::weak]] uint32_t E_section_address() { return curpc; }
[[gnu::weak]] bool E_section_is_abs() { return false; }
[[gnu::weak]] bool SCN_iscomdat(section_record *) { return false; }
