// The checks the 16-bit Thumb encoders share: low registers, unsigned and
// word-scaled immediates, branch and address offsets, and the halfwords of the
// long branch forms.
#include "target/arm/enc_t16.h"

#include "directives/ior.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/records.h"
#include "expr/symbols.h"
#include "target/arm/encode.h"
#include "target/arm/glue_pending.h"
#include "target/arm/trg.h"

operand icon_op{};

namespace {

// ADD Rd, #imm and SUB Rd, #imm differ in the top five bits.
constexpr uint32_t TOP5_ADD_IMM = 6, TOP5_SUB_IMM = 7;

void set_value(operand *op, int64_t v) { op->value.v_val = xi_from_i64(v); }

// A symbolic target: the linker or the pc-relative resolution finishes it. A
// plain number is the offset itself.
bool is_symbolic(const operand *op) { return is_relocatable(&op->value); }

}  // namespace

operand *T16_icon(int64_t value, uint16_t mods) {
  icon_op.kind = OP_ICON;
  icon_op.value = value_record{};
  icon_op.value.v_type = VT_ICON;
  icon_op.value.v_known = 1;
  set_value(&icon_op, value);
  icon_op.op_mods = mods;
  icon_op.op_lane = -2;
  icon_op.op_shift = SHIFT_NONE;
  return &icon_op;
}

bool T16_is_reg(const operand *op) { return op && op->kind == OP_REGISTER; }

bool T16_low_reg(instruct *ir, const operand *op, const char *message) {
  if (!T16_is_reg(op)) {
    error(ir->line, "E0004", "Illegal operand");
    return false;
  }
  if (op->op_reg > 7) {
    error(ir->line, "E0004", "%s", message);
    return false;
  }
  return true;
}

void T16_put_split_reg(instruct *ir, unsigned reg, unsigned low_at, unsigned high_at) {
  ENC_put(ir, low_at, 3, reg & 7);
  ENC_put(ir, high_at, 1, (reg >> 3) & 1);
}

uint32_t T16_unsigned_field(instruct *ir, operand *op, unsigned bit, unsigned width, bool swap) {
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return 0;
  }
  if (op->op_mods) warn(ir->line, "W0000", "Invalid operand modifier(s) ignored");
  const int64_t v = ENC_value(op);
  const int64_t limit = int64_t{1} << width;
  if (v >= 0 && v < limit) {
    ENC_put(ir, bit, width, static_cast<uint32_t>(v));
    return static_cast<uint32_t>(v);
  }
  if (swap && v < 0 && -v < limit) {
    const uint32_t top = (ENC_word(ir) >> 11) & 0x1F;
    ENC_put(ir, 11, 5, top == TOP5_ADD_IMM ? TOP5_SUB_IMM : TOP5_ADD_IMM);
    ENC_put(ir, bit, width, static_cast<uint32_t>(-v));
    return static_cast<uint32_t>(-v);
  }
  error(ir->line, "E0200", "Offset out of range, must be %d bit immediate", static_cast<int>(width));
  return 0;
}

uint32_t T16_word_field(instruct *ir, operand *op, unsigned bit, unsigned width) {
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return 0;
  }
  const int64_t v = ENC_value(op);
  if (v % 4) warn(ir->line, "W0002", "Offset not word aligned");
  if (v < 0 || v >= (int64_t{1} << (width + 2))) {
    error(ir->line, "E0200", "Offset out of range, must be %d bit immediate", static_cast<int>(width + 2));
    return 0;
  }
  const auto field = static_cast<uint32_t>(v / 4);
  ENC_put(ir, bit, width, field);
  return field;
}

int32_t T16_branch_field(instruct *ir, operand *op, uint32_t pc, unsigned width, uint32_t reloc) {
  if (op->kind != OP_SYMBOL && op->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return 0;
  }
  if (is_symbolic(op)) {
    op->value.v_val -= xi_from_int(4);
    if (!ENC_pcrel(ir, op, pc, reloc, static_cast<short>(width), 0)) return 0;
  }
  return static_cast<int32_t>(ENC_range(ir, op, 1, width, true));
}

uint32_t T16_address_field(instruct *ir, operand *op) {
  if (op->kind != OP_SYMBOL && op->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return 0;
  }
  if (is_symbolic(op)) {
    op->value.v_val -= xi_from_int(4);
    if (!ENC_pcrel(ir, op, SCN_address() & ~3u, 0, 8, 0)) return 0;
  }
  const auto field = static_cast<uint32_t>(ENC_range(ir, op, 2, 8, false));
  ENC_put(ir, 0, 8, field);
  return field;
}

uint16_t T16_skip_half(uint8_t cond, unsigned length) {
  // A conditional branch with offset 0 lands 4 bytes on, past one halfword;
  // offset 1 past two.
  return static_cast<uint16_t>(0xD000u | static_cast<uint32_t>(cond_reverse(cond)) << 8 | (length > 4 ? 1u : 0u));
}

void T16_link_halves(int32_t offset, bool exchange, uint16_t out[2]) {
  const auto field = static_cast<uint32_t>(offset) & 0x3FFFFFu;
  out[0] = static_cast<uint16_t>(0xF000u | field >> 11);
  out[1] = static_cast<uint16_t>((exchange ? 0xE800u : 0xF800u) | (field & 0x7FFu));
}

void T16_emit_leading_half(instruct *ir, uint16_t half) {
  if (suppress_output) return;
  IOR_STRUCT first{};
  IOR_clear(&first);
  IOR_write(&first, 16, 0, half);
  // A relocation of the statement is placed on its first halfword.
  first.ior_relch[0] = ir->ior.ior_relch[0];
  SCN_dump_field();
  IOR_dump(&first, ir, 1);
}
