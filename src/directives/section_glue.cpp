// What the symbol table and the expression engine read of the current section.
#include "directives/sections.h"
#include "driver/driver.h"
#include "expr/expr_internal.h"
#include "expr/symbols_internal.h"

uint32_t SCN_address() {
  return curpc + (curseg ? curseg->scn_field_bits >> 3 : 0);
}

uint32_t SYM_label_address() { return SCN_address(); }
bool SYM_section_has_jumps() { return curseg && curseg->scn_jumps.head; }
OFE::OF_SECTION *SYM_scn_object(section_record *section) { return section->scn_object; }
symbol_record *SYM_scn_symbol(section_record *section) { return section->scn_symbol; }
bool SYM_scn_has_code(section_record *section) { return section->scn_has_code != 0; }
uint32_t SYM_scn_start(section_record *section) { return section->section_start(); }

uint32_t E_section_address() { return SCN_address(); }
bool E_section_is_abs() { return curseg && curseg->scn_kind == SCN_KIND_ABS; }
