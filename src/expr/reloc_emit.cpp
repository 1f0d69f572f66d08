// Relocation emission: what a relocatable value leaves in its field, and the
// relocation that tells the linker the rest.
#include <cstdlib>
#include <cstring>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "ofe/elf_reloc.h"
#include "ofe/object_file.h"
#include "ofe/of_section.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

// Template flag: the relocation applies to the section as a whole.
constexpr uint32_t OFRF_WHOLE_SECTION = 0x1000;

uint32_t template_of(const relrec &r) { return r.rr_type ? r.rr_type->template_id() : 0; }

void drop_program(value_record *value) {
  std::free(value->v_rel);
  value->v_rel = nullptr;
  value->v_rel_count = value->v_rel_cap = 0;
}

bool same_group(const section_record *a, const section_record *b) {
  const char *ga = a ? a->scn_group_name : nullptr;
  const char *gb = b ? b->scn_group_name : nullptr;
  if (!ga || !gb) return ga == gb;
  return std::strcmp(ga, gb) == 0;
}

// A pushed symbol that can take part in a difference solved here: a label
// of a section in the current section's COMDAT group (or none, like it).
const section_record *label_section(const relrec &r) {
  if (!r.rr_type || !r.rr_type->is_symrel() || !r.rr_symbol) return nullptr;
  const value_record &v = r.rr_symbol->sym_value;
  if (v.v_type != VT_LABEL || !v.v_section || !same_group(v.v_section, curseg)) return nullptr;
  return v.v_section;
}

// "a - b" or "a - b + k" of two labels of one section, which ELF can't
// carry and which the assembler can finish.
bool solve_label_difference(value_record *value) {
  const relrec *p = value->v_rel;
  const unsigned n = value->v_rel_count;
  if (n != 3 && n != 5) return false;
  if (template_of(p[0]) != OFE::OFRE_PUSH || template_of(p[1]) != OFE::OFRE_PUSH ||
      template_of(p[2]) != OFE::OFRE_SUB)
    return false;
  if (n == 5 && (template_of(p[3]) != OFE::OFRE_PUSHUK || template_of(p[4]) != OFE::OFRE_ADD)) return false;
  const section_record *sa = label_section(p[0]);
  const section_record *sb = label_section(p[1]);
  if (!sa || !sb || std::strcmp(sa->name(), sb->name()) != 0) return false;
  const value_record &a = p[0].rr_symbol->sym_value;
  const value_record &b = p[1].rr_symbol->sym_value;
  INT128 result = a.v_val - b.v_val;
  if (n == 5) result += xi_from_uint(p[3].rr_value.k);
  const bool below = a.v_val < b.v_val;
  drop_program(value);
  value->v_type = VT_ICON;
  value->v_val = result;
  value->v_flags = a.v_flags;
  value->v_bits = a.v_bits;
  if (below) value->v_flags |= VF_NEGATIVE;
  value->v_section = nullptr;
  value->v_symbol = nullptr;
  return true;
}

}  // namespace

bool RELOC_is_scnrel(const value_record *value) {
  return RELOC_const_scnrel_offset(value) && !TRG_reloc_requires_sym_rel(const_cast<value_record *>(value)) &&
         value->v_type != VT_LDLABEL;
}

symbol_record *RELOC_symbol(const value_record *value) {
  if (!value || !is_relocatable(value)) return nullptr;
  symbol_record *sym = RELOC_is_scnrel(value) ? value->v_section->scn_symbol : value->v_symbol;
  if (sym) SYM_mark_referenced(sym);
  return sym;
}

uint64_t RELOC_place(const OFE::OF_RELOC_TYPE *type, unsigned field_offset) {
  if (type && (type->flags() & OFRF_WHOLE_SECTION)) return 0;
  OFE::OF_SECTION *os = curseg ? curseg->scn_object : nullptr;
  const unsigned unit = os && os->unit_size() ? os->unit_size() : 8;
  uint64_t place = curseg->scn_field_bits / unit + curpc + (32 / unit) * (field_offset >> 5);
  if (os && !os->initialized()) place -= curseg->section_start();
  return place;
}

bool RELOC_offset_fits(int64_t value, unsigned bits, uint32_t store_template) {
  if (bits == 0) return true;
  if (bits >= 64) return true;
  const int64_t span = int64_t{1} << (bits - 1);
  switch (store_template) {
    case OFE::OFRE_USTFLD: return value >= 0 && value <= 2 * span - 1;
    case OFE::OFRE_SSTFLD: return value >= -span && value <= span - 1;
    default: return value >= -span && value <= 2 * span - 1;
  }
}

void RELOC_append(const relrec *rr, unsigned field_offset) {
  if (opt_on(OPT_ZQ_MANUAL_RELOCS) || !ofile || !curseg || !curseg->scn_object || !rr->rr_type) return;
  const OFE::OF_RELOC_TYPE *type = rr->rr_type;
  OFE::OF_RELOC *r = curseg->scn_object->new_reloc(type->is_rela());
  if (!r) return;
  r->set_offset(RELOC_place(type, field_offset));
  r->set_type(type);
  // The COFF operands (fields, constants, section PCs, displacements) have
  // no writer yet; only ELF objects are made.
  if (OFE::ELF_RELOC *e = r->elf_api(); e && type->is_rela())
    e->set_addend(static_cast<int32_t>(rr->rr_value.k));
  if (type->is_symrel()) curseg->scn_reloc_syms[r] = rr->rr_symbol;
}

void E_emit_relexpr(value_record *value, const OFE::OF_RELOC_TYPE *type, short field_size,
                    unsigned field_offset) {
  const bool elf = object_format() == 2;
  if (elf) {
    if (solve_label_difference(value)) return;
    error(curline, "E0200",
          "Unable to resolve this relocatable expression; relocation support for arbitrary "
          "expressions is not available in the QMX800 EABI");
    // No object is written after an error; ELF can't hold the program anyway.
    return;
  }
  for (unsigned i = 0; i < value->v_rel_count; ++i) RELOC_append(&value->v_rel[i], field_offset);
  relrec store{};
  store.rr_type = const_cast<OFE::OF_RELOC_TYPE *>(reloc_signedness(type));
  store.rr_value.field = {static_cast<uint8_t>(field_offset % 32), static_cast<uint8_t>(field_size),
                          static_cast<uint8_t>(type ? type->container_size() : 0)};
  RELOC_append(&store, field_offset);
}

void RELOC_emit(IOR_STRUCT *ior, value_record *value, uint32_t pc, const OFE::OF_RELOC_TYPE *type,
                short field_size, unsigned ior_offset, unsigned field_offset) {
  if (!value) return;
  TRG_reloc_preprocess(value, pc, &type, &field_size);
  const bool elf = object_format() == 2;
  if (type && TRG_reloc_addend_is_symrel_offset(type) && is_relocatable(value) && !value->v_rel) {
    if (elf && type->is_symrel()) {
      if (const symbol_record *s = RELOC_symbol(value))
        value->v_val = xi_from_int(static_cast<int32_t>(value->v_val.to_u32() - s->sym_value.v_val.to_u32()));
    } else if (!elf && type->is_pcrel()) {
      value->v_val -= xi_from_uint(pc & type->pc_mask());
    }
  }
  if (value->v_rel) value->v_val = INT128{};
  if (ior) IOR_reloc(ior, value, ior_offset / 8);
  // Relocations exist from pass 2 on; pass 1 needs only the field's value.
  if (!pass2) return;
  if (value->v_rel) {
    E_emit_relexpr(value, type, field_size, field_offset);
    return;
  }
  if (!type) return;
  relrec r{};
  r.rr_type = const_cast<OFE::OF_RELOC_TYPE *>(type);
  if (type->is_const()) r.rr_value.k = value->v_val.to_u32();
  if (type->is_symrel()) r.rr_symbol = RELOC_symbol(value);
  if (!elf && type->is_disp()) r.rr_value.k = TRG_reloc_disp(value, type) & 0xFFFFu;
  if (elf && type->is_rela()) r.rr_value.k = value->v_val.to_u32();
  RELOC_append(&r, field_offset);
}
