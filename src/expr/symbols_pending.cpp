// Interim pieces of later steps that the symbol table calls into. Each weak
// definition gives way to the real one when its subsystem lands.
#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"

// Register substitution (.map) becomes subregsymtbl.SUBREGSYM_find with the
// substitution symbols; until then no name has a substitute.
[[gnu::weak]] const std::string *SYM_register_substitute(const std::string &) { return nullptr; }

// Jump expansion brings the jump lists; until then no section has one.
[[gnu::weak]] void SYM_record_label_jump(symbol_record *sym) {
  error_internal(1, nullptr, "jump list without jump expansion for %s", sym->sym_name.c_str());
}

// ZQ-COFF objects can't be made before the COFF writer lands.
[[gnu::weak]] void SYM_invent_coff(symbol_record *sym, OFE::OF_SYMBOL *, section_record *, int) {
  error_internal(1, nullptr, "ZQ-COFF symbol %s without the COFF writer", sym->sym_name.c_str());
}
[[gnu::weak]] void SYM_file_coff(OFE::OF_SYMBOL *) {
  error_internal(1, nullptr, "ZQ-COFF file symbol without the COFF writer");
}
// Nothing names a symbol in an attribute list before the build attributes land.
[[gnu::weak]] void SYM_attrs_add(OFE::OFBA_ATTR_LIST *, OFE::OF_SYMBOL *) {
  error_internal(1, nullptr, "build-attribute list without the attribute tables");
}

// The instruction parser's mark of a modified operand (instruction parser step).
[[gnu::weak]] uint8_t modified_op = 0;

// Page control of the listing file comes with the listing step.
[[gnu::weak]] uint16_t LST_linesprinted = 0;
[[gnu::weak]] uint16_t LST_pagelen = 60;
[[gnu::weak]] void LST_pagehdr() { LST_linesprinted = 0; }
