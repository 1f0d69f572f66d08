// Symbols become symbols of the object file: one at a time (SYM_invent),
// the globals at the end, aliases, meta information and the file symbol.
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"
#include "ofe/elf_defs.h"
#include "ofe/elf_file.h"
#include "ofe/elf_section.h"
#include "ofe/elf_symbol.h"
#include "ofe/elf_tables.h"
#include "ofe/object_file.h"
#include "ofe/of_section.h"
#include "ofe/of_symbol.h"
#include "source/lexer.h"
#include "support/fhm.h"

namespace {

OFE::OF_SYMBOL *file_symbol;

bool is_elf() { return ofile && ofile->format() == OFE::OFF_ELF; }
bool is_coff() { return ofile && ofile->format() == OFE::OFF_ZQCOFF; }

// Binding of an ELF symbol by the COFF storage class it was invented with.
void set_elf_binding(const symbol_record *sym, OFE::ELF_SYMBOL *es, int storage) {
  switch (storage) {
    case 2: case 5: case 21: case 23: case 25: case 26: case 28:
      SYM_set_extern_linkage_elf(sym, es);
      break;
    case 3: case 6: case 7: case 14: case 20: case 24: case 29:
      es->set_binding(OFE::OFB_LOCAL);
      break;
    case 19:
      es->set_binding(OFE::OFB_WEAK);
      break;
    default:
      error_internal(1, curline, "Illegal storage class in SYM_invent_elf");
  }
}

void set_elf_type(const symbol_record *sym, OFE::OF_SYMBOL *os, section_record *section) {
  OFE::OF_SECTION *scn = section ? SYM_scn_object(section) : nullptr;
  if (sym->sym_flags & SYMF_TLS) {
    os->set_type(OFE::OFY_TLS);
    if (scn) {
      auto *es = static_cast<OFE::ELF_SECTION *>(scn);
      es->set_sh_flags(es->sh_flags() | OFE::SHF_TLS);
    }
    return;
  }
  if (!scn) return;
  if (SYM_scn_symbol(section) == sym) {
    os->set_type(OFE::OFY_SECTION);
    os->set_size(scn->size());
  } else if (SYM_scn_has_code(section) || scn->exec()) {
    os->set_type(OFE::OFY_FUNCTION);
  } else if (scn->data() || scn->bss()) {
    os->set_type(OFE::OFY_OBJECT);
  }
}

// The object-file name of a source: without its directories.
std::string file_symbol_name(const char *source) {
  const char *dir = nullptr, *base = nullptr, *ext = nullptr;
  fn_split(source, &dir, &base, &ext);
  char buffer[FN_BUFSIZE];
  return fn_build(buffer, nullptr, base, ext);
}

}  // namespace

OFE::OF_SYMBOL *SYM_invent(symbol_record *sym, uint32_t value, section_record *section, int kind, int storage) {
  if (!ofile) return nullptr;  // no object is made in this run
  OFE::OF_SYMBOL *os = ofile->symbol_table()->new_symbol();
  os->set_name(sym->sym_name.c_str());
  uint64_t v = value;
  if (is_elf() && section) v -= SYM_scn_start(section);
  if (kind == OFE::OFK_ABSOLUTE && sym->sym_value.v_type == VT_FCON && sym->sym_value.v_fval) {
    v = get_ieee_flt_fmt(sym->sym_value.v_fval);
  }
  if (kind == OFE::OFK_DEFINED && section) {
    os->set_section(SYM_scn_object(section));
  } else {
    // A defined value without a section is an absolute one.
    os->set_kind(kind == OFE::OFK_DEFINED ? OFE::OFK_ABSOLUTE : static_cast<OFE::OF_SYM_KIND>(kind));
  }
  os->set_value(v);
  sym->sym_object = os;
  if (sym->sym_flags & SYMF_NEAR_COMMON) os->set_near_common();

  bool own_section_symbol = section && SYM_scn_symbol(section) == sym;
  if (is_elf()) {
    set_elf_binding(sym, static_cast<OFE::ELF_SYMBOL *>(os), storage);
    set_elf_type(sym, os, section);
    if (kind == OFE::OFK_COMMON) {
      os->set_type(OFE::OFY_COMMON);
      os->set_value(sym->sym_align);
    }
  }
  if (!own_section_symbol) os->set_size(sym->sym_size);
  if (is_coff()) SYM_invent_coff(sym, os, section, storage);
  if (sym->sym_attrs) SYM_attrs_add(sym->sym_attrs, os);
  return os;
}

void SYM_set_extern_linkage_elf(const symbol_record *sym, OFE::ELF_SYMBOL *elf_symbol) {
  elf_symbol->set_binding((sym->sym_flags & SYMF_WEAK) ? OFE::OFB_WEAK : OFE::OFB_GLOBAL);
  elf_symbol->set_visibility(static_cast<unsigned char>(SYM_elf_visibility(sym)));
}

void SYM_add_globs() {
  for (int h = 0; h <= NAME_BUCKETS; ++h) {
    for (symbol_record *s = names[h]; s; s = s->sym_next) {
      if (s->sym_object || !SYM_is_global(s)) continue;
      bool external = s->sym_storage == SYM_STOR_EXTERN;
      if (external && !(s->sym_flags & SYMF_REFERENCED)) continue;  // an unused external stays out
      const value_record &v = s->sym_value;
      int kind = external ? OFE::OFK_UNDEFINED
                 : v.v_type == VT_COMMON ? OFE::OFK_COMMON
                 : v.v_section ? OFE::OFK_DEFINED
                               : OFE::OFK_ABSOLUTE;
      int storage = (s->sym_flags & SYMF_SYSTEM) ? 23 : v.v_type == VT_LDLABEL ? 21 : 2;
      SYM_invent(s, v.v_val.to_u32(), v.v_section, kind, storage);
    }
  }
}

void SYM_add_alias(symbol_record *alias, symbol_record *target) { SYM_aliases.emplace_back(alias, target); }

void SYM_add_aliases() {
  if (!ofile || !is_elf()) return;
  OFE::ELF_SYMALIAS_TABLE *table = ofile->elf_api()->symalias_table(true);
  if (!table) return;
  for (const auto &[alias, target] : SYM_aliases) {
    if (alias->sym_object && target->sym_object) table->add_alias(alias->sym_object->id(), target->sym_object->id());
  }
}

void SYM_add_metainfo() {
  if (!ofile || !is_elf() || symtab_meta_records.empty()) return;
  ofile->elf_api()->create_sym_meta_scn();
  for (const auto &[name, pairs] : symtab_meta_records) {
    symbol_record *sym = SYM_query(name);
    if (!sym || !sym->sym_object) {
      error(nullptr, "E0900", "%s is not defined in ELF symbol table", name.c_str());
      return;
    }
    auto *es = static_cast<OFE::ELF_SYMBOL *>(sym->sym_object);
    es->init_metainfo();
    for (const auto &[key, value] : pairs) {
      const char *text = value.c_str();
      long number = std::strtol(text, nullptr, 10);
      if (key == "SMK_RETAIN") es->set_retained(number == 1);
      else if (key == "SMK_LOCATION") es->set_location(static_cast<uint64_t>(number));
      else if (key == "SMK_NOINIT") es->set_noinit(number == 1);
      else if (key == "SMK_PRESERVE") es->set_preserve(number == 1);
      else if (key == "SMK_UPDATE") es->set_update(number == 1);
      else if (key == "SMK_OPTPRINTF_FORMATSTR") es->set_optprintf_formatstr(text);
      else if (key == "SMK_OPTPRINTF_FORWARD") es->add_to_optprintf_forward(text);
      else if (key == "SMK_USER_SECTION_NAME") es->set_user_section_name(text);
    }
  }
}

void SYM_add_file(const char *name) {
  if (!ofile || !name) return;
  OFE::OF_SYMBOL *os = ofile->symbol_table()->new_symbol();
  os->set_name(file_symbol_name(name).c_str());
  os->set_value(0);
  if (is_elf()) {
    os->set_kind(OFE::OFK_ABSOLUTE);
    os->set_binding(OFE::OFB_LOCAL);
    os->set_type(OFE::OFY_FILE);
    os->set_size(0);
  } else {
    SYM_file_coff(os);
  }
  file_symbol = os;
}

void SYM_update_file(const char *, const char *new_name) {
  if (file_symbol && new_name && *new_name) file_symbol->set_name(file_symbol_name(new_name).c_str());
}
