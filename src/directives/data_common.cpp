// Pieces shared by the data directive handlers.
#include "directives/data_internal.h"

#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "listing/listing.h"
#include "target/arm/trg.h"

namespace {

// COFF basic type and size of each directive id that makes a debug record.
struct debug_type_row {
  int32_t id;
  int type;
  int bits;
};
constexpr debug_type_row debug_types[] = {
    {DIR_BYTE, 2, 8},     {DIR_UBYTE, 12, 8},  {DIR_HALF, 3, 16},   {DIR_UHALF, 13, 16},
    {DIR_WORD, 4, 32},    {DIR_UWORD, 14, 32}, {DIR_LONG, 5, 32},   {DIR_ULONG, 15, 32},
    {DIR_FLOAT, 6, 32},   {DIR_DOUBLE, 7, 64}, {DIR_LDOUBLE, 11, 64}, {0, 0, 0},
};

}  // namespace

bool data_element_ok(const operand *op) {
  switch (op->kind) {
    case OP_SCON: return op->value.v_str != nullptr;
    case OP_ICON:
    case OP_SYMBOL:
    case OP_REGISTER: return op->value.v_type != 0 && op->value.v_type != VT_FCON;
    default: return false;
  }
}

uint32_t data_u32(const operand *op) { return op->value.v_val.to_u32(); }

void data_reloc(instruct *ir, operand *op, unsigned bits) {
  if (is_relocatable(op->value)) TRG_reloc_data(ir, op, bits);
}

void data_emit(instruct *ir, unsigned bits, uint32_t value) {
  // The relocation's listing mark may already be in the record.
  IOR_write(&ir->ior, bits, 0, value);
  IOR_dump(&ir->ior, ir, 0);
}

void data_list_first_only(instruct *ir, uint32_t lst_bit) {
  if (pass2 && (LST_control & lst_bit) && ir->line) ir->line->flags |= LNF_FIRST_OBJ;
}

void data_debug_sym(instruct *ir) {
  if (!pass2 || !opt_on(OPT_CDEBUG_ASM_DATA)) return;
  const int32_t id = ir->dir()->id;
  for (const debug_type_row *r = debug_types; r->id; ++r) {
    if (r->id == id) {
      debug_sym(ir, r->type, 3, r->bits, 0, nullptr);
      return;
    }
  }
}
