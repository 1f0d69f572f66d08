// Interim pieces of the symbol table that wait for later steps: each is made
// real when the step named beside it lands.
#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"

// Register substitution (.map) becomes subregsymtbl.SUBREGSYM_find with the
// substitution symbols; until then no name has a substitute.
const std::string *SYM_register_substitute(const std::string &) { return nullptr; }

// ZQ-COFF objects can't be made before the COFF writer lands.
void SYM_invent_coff(symbol_record *sym, OFE::OF_SYMBOL *, section_record *, int) {
  error_internal(1, nullptr, "ZQ-COFF symbol %s without the COFF writer", sym->sym_name.c_str());
}
void SYM_file_coff(OFE::OF_SYMBOL *) {
  error_internal(1, nullptr, "ZQ-COFF file symbol without the COFF writer");
}
// Nothing names a symbol in an attribute list before the build attributes land.
void SYM_attrs_add(OFE::OFBA_ATTR_LIST *, OFE::OF_SYMBOL *) {
  error_internal(1, nullptr, "build-attribute list without the attribute tables");
}
