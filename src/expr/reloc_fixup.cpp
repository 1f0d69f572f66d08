// Relocations are made in pass 2, before most symbols have object symbols;
// once every symbol exists each relocation is tied to its own.
#include "debug/object_build_pending.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "ofe/of_reloc.h"
#include "ofe/of_section.h"

namespace {

bool names_own_section(const OFE::OF_RELOC_TYPE *type) {
  switch (type->template_id()) {
    case OFE::OFR_ARM_PC24:
    case OFE::OFR_ARM_THM_CALL:
    case OFE::OFR_ARM_THM_JUMP24:
    case OFE::OFR_ARM_THM_JUMP19:
      return false;
    default:
      return true;
  }
}

void fix_table(section_record *s, OFE::OF_RELOC_TABLE *table) {
  const bool coff = object_format() == 1;
  for (unsigned i = 0; i < table->relnum(); ++i) {
    OFE::OF_RELOC *r = table->reloc(i);
    if (!r || !r->type() || !r->type()->is_symrel()) continue;
    auto it = s->scn_reloc_syms.find(r);
    if (it == s->scn_reloc_syms.end()) {
      error_internal(1, nullptr, "failed to locate symbol for relocation entry at offset 0x%0*x in section \"%s\"", 8,
                     static_cast<unsigned>(r->offset()), s->name());
      continue;
    }
    symbol_record *sym = it->second;
    if (sym && sym->sym_object) {
      r->set_symbol(sym->sym_object);
    } else if (sym != s->scn_symbol) {
      error_internal(1, nullptr, "failed to locate output object file symbol for relocation entry for symbol \"%s\"",
                     sym ? sym->sym_name.c_str() : "");
      continue;
    }
    if (coff && sym == s->scn_symbol && names_own_section(r->type())) r->set_internal();
  }
}

}  // namespace

void RELOC_fixup() {
  for (section_record *s = seglist; s; s = s->scn_next) {
    OFE::OF_SECTION *os = s->scn_object;
    if (!os) continue;
    for (unsigned t = 0; t < os->reloc_table_num(); ++t)
      if (OFE::OF_RELOC_TABLE *table = os->reloc_table(t)) fix_table(s, table);
  }
}
