// The target's side of relocation: the types of data relocations and the
// adjustments that ARM relocations need on their way to the object.
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "ofe/of_reloc_type.h"
#include "source/lexer.h"
#include "target/arm/glue_pending.h"
#include "target/arm/trg.h"

namespace {

// --eabi_compat value under which init entries are PC-relative words.
constexpr long EABI_COMPAT_LEGACY = 10;

struct bif_rtype_row {
  const char *name;
  int type;
};

// Built-in relocation functions of the exception tables and init arrays.
constexpr bif_rtype_row bif_rtypes[] = {
    {"$$INIT_ENTRY", OFE::OFR_ARM_TARGET1},  {"$$EXTAB_LP", OFE::OFR_ARM_PREL31},
    {"$$EXIDX_FUNC", OFE::OFR_ARM_PREL31},   {"$$EXIDX_EXTAB", OFE::OFR_ARM_PREL31},
    {"$$EXTAB_RTTI", OFE::OFR_ARM_TARGET2},  {nullptr, 0},
};

bool eabi_compat_is(long value) {
  return opt_on(OPT_EABI_COMPAT) && global_opts->getnumarg(OPT_EABI_COMPAT, 0) == value;
}

uint32_t template_of(const OFE::OF_RELOC_TYPE *type) { return type ? type->template_id() : 0; }

// The program OFRE_PUSH s, OFRE_PUSHPC, OFRE_SUB: the source form "s - $".
bool is_symbol_minus_pc(const value_record *value) {
  if (value->v_rel_count != 3 || !value->v_rel) return false;
  const relrec *r = value->v_rel;
  return template_of(r[0].rr_type) == OFE::OFRE_PUSH && r[0].rr_symbol &&
         template_of(r[1].rr_type) == OFE::OFRE_PUSHPC && template_of(r[2].rr_type) == OFE::OFRE_SUB;
}

}  // namespace

int TRG_bif_rtype(const char *name) {
  if (!name || object_format() == 1) return 0;
  for (const bif_rtype_row *row = bif_rtypes; row->name; ++row) {
    if (std::strcmp(row->name, name) != 0) continue;
    if (row->type == OFE::OFR_ARM_TARGET1 && eabi_compat_is(EABI_COMPAT_LEGACY)) return OFE::OFR_PCRLONG;
    return row->type;
  }
  return 0;
}

void TRG_reloc_data(instruct *ir, operand *op, unsigned int bits) {
  if (!op || !ofile) return;
  int type_id = op->value.v_bif ? TRG_bif_rtype(op->value.v_bif) : 0;
  // A built-in name without a type of its own in this format relocates as plain data.
  if (type_id == 0) {
    if (bits == 32) {
      type_id = OFE::OFR_RELLONG;
    } else if (bits == 16) {
      type_id = OFE::OFR_RELWORD;
    } else {
      error(ir ? ir->line : curline, "E0004", "Invalid data size for relocation");
      return;
    }
  }
  const OFE::OF_RELOC_TYPE *type = ofile->reloc_type(static_cast<unsigned>(type_id));
  // The mark goes into the statement's record, which the value's bytes then join.
  RELOC_emit(ir ? &ir->ior : nullptr, &op->value, 0, type, static_cast<short>(type ? type->field_size() : 0), 0,
             type ? type->field_offset() : 0);
}

uint32_t TRG_reloc_disp(value_record *value, const OFE::OF_RELOC_TYPE *type) {
  const uint32_t id = template_of(type);
  if (value && (id == OFE::OFR_ARM_MOVT_ABS || id == OFE::OFR_ARM_THM_MOVT_ABS)) return value->v_val.to_u32();
  return 0;
}

void TRG_reloc_preprocess(value_record *value, unsigned int, const OFE::OF_RELOC_TYPE **type, short *field_size) {
  if (!value || object_format() != 2 || !is_symbol_minus_pc(value)) return;
  symbol_record *s = value->v_rel[0].rr_symbol;
  const OFE::OF_RELOC_TYPE *pcrel = ofile->reloc_type(OFE::OFR_PCRLONG);
  if (type) *type = pcrel;
  if (field_size) *field_size = static_cast<short>(pcrel ? pcrel->field_size() : 32);
  value->v_type = VT_LABEL;
  value->v_symbol = s;
  value->v_section = s->sym_value.v_section;
  value->v_val = xi_from_uint(s->sym_value.v_val.to_u32());
  value->v_flags = s->sym_value.v_flags;
  value->v_bits = s->sym_value.v_bits;
  std::free(value->v_rel);
  value->v_rel = nullptr;
  value->v_rel_count = 0;
  value->v_rel_cap = 0;
}

bool TRG_reloc_requires_sym_rel(value_record *value) { return value && value->v_type == VT_LABEL; }

bool TRG_reloc_addend_is_symrel_offset(const OFE::OF_RELOC_TYPE *) { return true; }

bool TRG_requires_scaling(const OFE::OF_RELOC_TYPE *) { return true; }

const OFE::OF_RELOC_TYPE *ARM_reloc_type(uint32_t generic) {
  return ofile ? ofile->reloc_types().by_template_id(generic) : nullptr;
}

void adjust_thumb_symbol_values() {
  if (auto *arm = ofile ? dynamic_cast<OFE::ARM_MACHINE_DB *>(ofile->machine_db()) : nullptr)
    arm->adjust_thumb_symbol_values();
}
