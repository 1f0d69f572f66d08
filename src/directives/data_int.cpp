// Integer data: .byte, .half, .word and .long with their other spellings,
// .string and .vinstr. Pass 1 moves the counter by what pass 2 writes.
#include <cstring>

#include "directives/data_internal.h"
#include "directives/directives.h"
#include "directives/sections.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "listing/listing.h"

namespace {

enum class int_write { ior, field };

struct int_directive {
  unsigned bits;
  bool align_each;       // every element starts aligned, not only the first
  uint32_t lst_bit;      // listing option of this size
  int_write how;
};

constexpr int_directive byte_dir{8, false, LST_OPT_B, int_write::ior};
constexpr int_directive half_dir{16, true, LST_OPT_H, int_write::ior};
constexpr int_directive word_dir{32, true, LST_OPT_W, int_write::ior};
constexpr int_directive long_dir{32, true, LST_OPT_L, int_write::field};

// Each character of a string is one element of the directive's size.
uint32_t char_value(char c) { return static_cast<uint32_t>(static_cast<int32_t>(static_cast<signed char>(c))); }

void write_one(instruct *ir, const int_directive &d, uint32_t value) {
  if (d.how == int_write::field)
    SCN_insert_field(d.bits, xi_from_uint(value), ir, 0, false);
  else
    data_emit(ir, d.bits, value);
}

void write_element(instruct *ir, const int_directive &d, operand *op) {
  if (op->kind == OP_SCON) {
    for (const char *c = op->value.v_str; *c; ++c) write_one(ir, d, char_value(*c));
    return;
  }
  data_reloc(ir, op, d.bits);
  write_one(ir, d, data_u32(op));
}

unsigned element_count(const operand *op) {
  return op->kind == OP_SCON ? static_cast<unsigned>(std::strlen(op->value.v_str)) : 1;
}

void run(instruct *ir, const int_directive &d) {
  operand *op = data_elements(ir);
  if (!op) return;
  SCN_align(d.bits, 0);
  LBL_define();
  if (pass2) data_list_first_only(ir, d.lst_bit);
  bool first = true;
  for (; op; op = op->next) {
    if (!data_element_ok(op)) continue;
    if (!first && d.align_each) SCN_align(d.bits, 0);
    first = false;
    if (pass1)
      SCN_space(static_cast<unsigned long>(d.bits) * element_count(op));
    else
      write_element(ir, d, op);
  }
  data_debug_sym(ir);
}

}  // namespace

void GD1_byte(instruct *ir) { run(ir, byte_dir); }
void GD2_byte(instruct *ir) { run(ir, byte_dir); }
void GD_half(instruct *ir) { run(ir, half_dir); }
void GD_word(instruct *ir) { run(ir, word_dir); }
void GD_long(instruct *ir) { run(ir, long_dir); }

void GD_vinstr(instruct *ir) {
  if (!data_elements(ir)) return;
  SCN_setvcode();
  run(ir, word_dir);
}
