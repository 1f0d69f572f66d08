// The list of sections, the current one, and the passage between the passes.
#include <cstring>
#include <string>
#include <unordered_map>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "ofe/elf_defs.h"
#include "ofe/elf_section.h"
#include "ofe/object_file.h"
#include "ofe/of_section.h"
#include "ofe/of_symbol.h"
#include "source/lexer.h"
#include "directives/section_pending.h"
#include "expr/symbols_internal.h"

section_record *seglist = nullptr;
section_record *curseg = nullptr;
std::map<std::string, std::pair<uint32_t, uint32_t>> scn_address_set;

namespace {

constexpr uint32_t ZQ_SHF_BOUND = 4;

// The one saved section of SCN_push; pushes don't nest.
struct saved_section {
  int kind = -1;
  std::string name;
} pushed;

bool elf_object() { return ofile && ofile->format() == OFE::OFF_ELF; }

OFE::ELF_SECTION *elf_of(const section_record *s) { return dynamic_cast<OFE::ELF_SECTION *>(s->scn_object); }

// What each kind asks of its object section at creation.
void shape_object_section(section_record *s) {
  OFE::OF_SECTION *os = s->scn_object;
  switch (s->scn_kind) {
    case SCN_KIND_CODE: os->set_allocated(true); os->set_exec(); break;
    case SCN_KIND_DATA:
    case SCN_KIND_ABS: os->set_allocated(true); os->set_data(); break;
    case SCN_KIND_SECT: os->set_allocated(true); os->set_const_data(); break;
    case SCN_KIND_BSS:
    case SCN_KIND_UDATA: os->set_allocated(true); os->set_bss(); break;
    case SCN_KIND_GROUP: os->set_allocated(true); break;
    default: os->set_allocated(false); break;
  }
  if (s->scn_kind > SCN_KIND_UDATA) {
    if (OFE::ELF_SECTION *elf = elf_of(s)) elf->set_sh_type(OFE::SHT_PROGBITS);
  }
}

// The section's own symbol: a label at offset 0 that the name table never finds.
symbol_record *make_section_symbol(section_record *s, const char *name) {
  auto *sym = new symbol_record{};
  sym->sym_name = name;
  E_clrval(&sym->sym_value);
  sym->sym_value.v_type = VT_LABEL;
  sym->sym_value.v_flags = VF_ADDRESS;
  sym->sym_value.v_bits = 32;
  sym->sym_value.v_symbol = sym;
  sym->sym_value.v_section = s;
  sym->sym_storage = SYM_STOR_LOCAL;
  sym->sym_section = s;
  sym->sym_flags = SYMF_DECLARED | SYMF_DEFINED | SYMF_BUILTIN;
  return sym;
}

}  // namespace

uint32_t section_record::section_start() const {
  if (!opt_on(OPT_ABSOLUTE_LISTING)) return 0;
  auto it = scn_address_set.find(name());
  return it == scn_address_set.end() ? 0 : it->second.first;
}

const char *section_record::name() const { return scn_symbol ? scn_symbol->sym_name.c_str() : ""; }

section_record *SCN_create(int kind, const char *name) {
  auto *s = new section_record{};
  s->scn_kind = static_cast<int8_t>(kind);
  s->scn_object = ofile->section_table()->new_section(name);
  s->scn_symbol = make_section_symbol(s, name);
  s->scn_big_endian = kind == SCN_KIND_CODE ? big_endian_code : big_endian_data;
  shape_object_section(s);
  s->scn_saved_pc = s->section_start();
  return s;
}

namespace {
// Sources made by tools switch among tens of thousands of sections; a walk of
// the list per switch would make that quadratic. The index and the tail are
// forgotten whenever the list is emptied.
std::unordered_map<std::string, section_record *> scn_index;
section_record *scn_tail = nullptr;

void forget_index_if_empty() {
  if (seglist) return;
  scn_index.clear();
  scn_tail = nullptr;
}
}  // namespace

section_record *SCN_query(const char *name) {
  forget_index_if_empty();
  if (!name) return nullptr;
  const auto found = scn_index.find(name);
  return found == scn_index.end() ? nullptr : found->second;
}

void SCN_queue(int kind, const char *name) {
  if (kind == SCN_KIND_SECT && std::strcmp(name, ".data") == 0) kind = SCN_KIND_DATA;
  section_record *s = SCN_query(name);
  if (s) {
    if (kind == SCN_KIND_SECT && s->scn_kind == SCN_KIND_ABS) kind = SCN_KIND_ABS;
    if (kind != s->scn_kind && (kind < 0 || kind > SCN_KIND_SECT || s->scn_kind >= SCN_KIND_BSS))
      error(curline, "E0300", "Cannot redefine this section name");
  } else {
    s = SCN_create(kind, name);
    (scn_tail ? scn_tail->scn_next : seglist) = s;
    scn_tail = s;
    scn_index.emplace(s->name(), s);
  }
  if (curseg) curseg->scn_saved_pc = curpc;
  curpc = s->scn_saved_pc;
  curseg = s;
}

void SCN_push() {
  if (!curseg) {
    pushed.kind = -1;
    return;
  }
  pushed.kind = curseg->scn_kind;
  pushed.name = curseg->name();
}

void SCN_pop() {
  if (pushed.kind < 0) return;
  SCN_queue(pushed.kind, pushed.name.c_str());
}

void SCN_reset() {
  for (section_record *s = seglist; s; s = s->scn_next) {
    const uint32_t pass1_end = s == curseg ? curpc : s->scn_saved_pc;
    s->scn_saved_pc = s->section_start();
    DATA_MAP &contents = s->scn_object->raw_data_nocheck();
    contents.clear();
    // Pass 1 sized the section: one buffer instead of repeated doubling.
    // Only a hint, so a huge reservation is left to the writes themselves.
    const uint32_t bytes = pass1_end - s->scn_saved_pc;
    if (s->scn_kind != SCN_KIND_BSS && pass1_end > s->scn_saved_pc && bytes <= (256u << 20))
      contents.reserve(bytes + 4);
    auto bound = scn_address_set.find(s->name());
    OFE::ELF_SECTION *elf = elf_of(s);
    if (elf && bound != scn_address_set.end()) {
      elf->set_load_addr(bound->second.first);
      elf->set_run_addr(bound->second.first);
      elf->set_zq_sh_flags(elf->zq_sh_flags() | ZQ_SHF_BOUND);
    } else {
      s->scn_object->set_load_addr(s->section_start());
      s->scn_object->set_run_addr(s->section_start());
    }
    s->scn_field_word = 0;
    s->scn_field_bits = 0;
    s->scn_full = 0;
  }
  if (curseg) curpc = curseg->scn_saved_pc;
}

void SCN_flush() {
  if (curseg) curseg->scn_saved_pc = curpc;
  for (section_record *s = seglist; s; s = s->scn_next) {
    curseg = s;
    curpc = s->scn_saved_pc;
    OFE::OF_SECTION *os = s->scn_object;
    const bool empty = s->scn_saved_pc == s->section_start() && s->scn_field_bits == 0;
    if (s->scn_has_code || s->scn_has_vcode) {
      os->set_exec();
    } else if (os->exec() && !empty) {
      os->set_data();  // a .text that held only data
    }
    if ((empty || !os->exec()) && os->unit_size() == 8) SCN_core_align(8, 0, SCN_trg_align);
    if (s->scn_field_bits) {
      s->scn_field_bits = (s->scn_field_bits + 7) & ~7u;
      if (pass2 && s->scn_kind != SCN_KIND_BSS)
        SCN_emit_raw(s->scn_field_bits, s->scn_field_word);
      else
        curpc += s->scn_field_bits / 8;
      s->scn_field_word = 0;
      s->scn_field_bits = 0;
    }
    s->scn_saved_pc = curpc;
    if (s->scn_func_sym && opt_on(OPT_SYMDEBUG_COFF) && SYM_option_item_is(OPT_HLL_SOURCE, "asm"))
      CSYM_patch_asmfunc_syms();
  }
}

void SCN_def_snames() {
  const bool elf = elf_object();
  for (section_record *s = seglist; s; s = s->scn_next) {
    OFE::OF_SYMBOL *os = s->scn_object->create_section_symbol();
    if (!os) continue;
    os->set_value(elf ? 0 : s->scn_object->run_addr());
    s->scn_symbol->sym_object = os;
  }
}

char SCN_get_relch(const section_record *section) {
  switch (section->scn_kind) {
    case SCN_KIND_CODE: return '\'';
    case SCN_KIND_DATA: return '"';
    case SCN_KIND_SECT: return '+';
    case SCN_KIND_BSS: return '-';
    case SCN_KIND_UDATA: return '=';
    case SCN_KIND_ABS:
    case SCN_KIND_NOALLOC:
    case SCN_KIND_GROUP: return ' ';
    default: error_internal(1, curline, "Unrecognized Section Kind"); return ' ';
  }
}

void SCN_setvcode() {
  if (curseg) curseg->scn_has_vcode = 1;
}

bool SCN_iscomdat(section_record *section) {
  if (!section || !elf_object()) return false;
  if (pass1) {
    for (const section_record *g = seglist; g; g = g->scn_next) {
      if (g->scn_kind != SCN_KIND_GROUP || g->scn_group_kind != 1 || !g->scn_object->group_type()) continue;
      for (const scn_group_member *m = g->scn_group_members; m; m = m->next)
        if (std::strcmp(m->name, section->name()) == 0) return true;
    }
    return false;
  }
  // An ELF object's sections are ELF sections: no run-time type test on
  // each relocatable operand.
  const OFE::ELF_SECTION *elf = section->scn_object ? section->scn_object->elf_api() : nullptr;
  if (!elf || !(elf->sh_flags() & OFE::SHF_GROUP) || !section->scn_group_name) return false;
  const section_record *group = SCN_query(section->scn_group_name);
  return group && group->scn_group_kind == 1;
}
