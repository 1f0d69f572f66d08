// Mapping symbols: where code of each instruction set and data begin in a
// section ($a, $t, $d), recorded as fields are emitted in pass 2 and made
// symbols when the object is built.
#include <vector>

#include "directives/sections.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "ofe/object_file.h"
#include "ofe/of_symbol.h"
#include "target/arm/state.h"
#include "target/arm/trg.h"

namespace {

struct mapping_record {
  uint32_t address;
  section_record *section;
  uint32_t state;
  int kind;   // 0 data, 1 code
};

std::vector<mapping_record> mapping_records;
int last_kind = -1;

const char *mapping_name(const mapping_record &r) {
  const bool coff = object_format() == 1;
  if (r.kind == 0) return coff ? "$DATA" : "$d";
  if (r.state == 0) return coff ? "$CODE32" : "$a";
  return coff ? "$CODE16" : "$t";
}

}  // namespace

void TRG_signal_section_change() {
  if (pass2) signal_state_change = 1;
}

void TRG_add_mapping_sym(int kind) {
  if (kind == 2 || !curseg || !pass2) return;
  if (!signal_state_change && kind == last_kind) return;
  mapping_records.push_back({curseg->section_start() + SCN_address(), curseg, cur_state, kind});
  signal_state_change = 0;
  last_kind = kind;
}

void TRG_dump_mapping_syms() {
  for (const mapping_record &r : mapping_records) {
    symbol_record sym{};
    sym.sym_name = mapping_name(r);
    sym.sym_flags = SYMF_REFERENCED | SYMF_REF_THIS_PASS;
    if (OFE::OF_SYMBOL *os = SYM_invent(&sym, r.address, r.section, 2, 6); os && object_format() == 2) {
      os->set_type(OFE::OFY_NONE);
      os->set_binding(OFE::OFB_LOCAL);
    }
  }
  mapping_records.clear();
  mapping_records.shrink_to_fit();
  last_kind = -1;
}
