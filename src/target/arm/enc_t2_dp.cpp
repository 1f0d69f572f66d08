// Thumb-2 data processing with an immediate: the modified-constant forms,
// ADDW and SUBW, the exception return SUBS PC, LR, #imm, and MOV/MVN with
// their MOVW fallback.
#include "target/arm/enc_t2_dp.h"

#include "driver/diag.h"
#include "expr/value.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

constexpr uint32_t T2_S_BIT = 1u << 20;
// SUBS PC, LR, #imm8: the return from an exception.
constexpr uint32_t T2_SUBS_PC_LR = 0xF3DE8F00;

uint32_t rotate_left(uint32_t v, uint32_t n) { return n == 0 ? v : (v << n) | (v >> (32 - n)); }

// A twelve-bit immediate split as the architecture does: i at 26, imm3 at 12,
// imm8 at 0.
void put_imm12(instruct *ir, uint32_t field) {
  ENC_put(ir, 26, 1, field >> 11);
  ENC_put(ir, 12, 3, (field >> 8) & 7u);
  ENC_put(ir, 0, 8, field & 0xFFu);
}

// The 32-bit value of an immediate operand; false when it holds no 32-bit
// value (signed or unsigned), so that no field gets a cut value.
bool imm32(const operand *op, uint32_t *v) {
  const int64_t value = ENC_value(op);
  if (value < -0x80000000LL || value > 0xFFFFFFFFLL) return false;
  *v = static_cast<uint32_t>(value);
  return true;
}

// Rd at 8, not PC; false when the operand is no register.
bool put_rd(instruct *ir, const operand *rd) {
  if (!check_dest_op_reg(ir, rd)) return false;
  error_pc_op(ir, rd->op_reg);
  ENC_put(ir, 8, 4, rd->op_reg);
  return true;
}

// Rn at 16; PC only where the instruction allows it.
void put_rn(instruct *ir, const operand *rn, bool pc_allowed) {
  if (!check_op_reg(ir, rn, "n")) return;
  if (!pc_allowed) error_pc_op(ir, rn->op_reg);
  ENC_put(ir, 16, 4, rn->op_reg);
}

// SUBS PC, LR, #imm8 (and MOV PC, LR as its #0).
void exception_return(instruct *ir, uint32_t value) {
  error_if_cortex_m(ir);
  ENC_clear(ir, 0xFFFFFFFFu);
  ENC_set(ir, T2_SUBS_PC_LR);
  if (value > 0xFF) {
    error(ir->line, "E0004", "Immediate cannot be greater than %d-bits", 8);
    return;
  }
  ENC_put(ir, 0, 8, value);
}

// The row of the same name with W added (ADD -> ADDW), base word rewritten.
void become_wide_form(instruct *ir) {
  static const mnemonic_row *const addw = OPR_find_row("ADDW");
  static const mnemonic_row *const subw = OPR_find_row("SUBW");
  ir->record = OPR_row_is(ir, "ADD") ? addw : subw;
  ENC_clear(ir, 0xFFFFFFFFu);
  ENC_set(ir, ia_opcode(ir));
}

// Rd, Rn and the twelve-bit immediate of ADDW and SUBW.
void encode_dpw_fields(instruct *ir) {
  put_rd(ir, ia_op(ir, 0));
  put_rn(ir, ia_op(ir, 1), true);
  const operand *imm = ia_op(ir, 2);
  if (imm->kind != OP_ICON && imm->kind != OP_SYMBOL) {
    error(ir->line, "E0004", "The third operand must be immediate or symbol");
    return;
  }
  // No relocation fills this field: a label's address is not a constant.
  // An undefined symbol has had its message.
  if (imm->kind == OP_SYMBOL && is_relocatable(imm->value)) {
    if (num_errors == ir->ia_errors) error(ir->line, "E0004", "Expression must evaluate to an absolute constant");
    return;
  }
  const int64_t value = ENC_value(imm);
  if (value < 0 || value > 0xFFF) {
    error(ir->line, "E0004", "Immediate cannot be greater than %d-bits", 12);
    return;
  }
  put_imm12(ir, static_cast<uint32_t>(value));
}

// The modified constant of op into its fields; false after the message.
bool put_modified_constant(instruct *ir, const operand *op) {
  uint32_t v = 0;
  if (op->kind != OP_ICON || !imm32(op, &v) || !is_modified_constant(v)) {
    error(ir->line, "E0004", "Illegal constant, does not conform to modify_constant() format");
    return false;
  }
  put_imm12(ir, t2_modified_constant_field(v));
  return true;
}

void set_flags_bit(instruct *ir) {
  if (ir->ia_flags & IF_S) ENC_set(ir, T2_S_BIT);
}

}  // namespace

bool is_const_representable_in_mod_const(uint32_t v, uint32_t *byte, uint32_t *rotation) {
  for (uint32_t rot = 8; rot < 32; ++rot) {
    const uint32_t b = rotate_left(v, rot);
    if (b >= 0x80 && b <= 0xFF) {
      *byte = b;
      *rotation = rot;
      return true;
    }
  }
  return false;
}

bool is_modified_constant(uint32_t v) {
  const uint32_t xy = v & 0xFFu;
  uint32_t byte = 0;
  uint32_t rotation = 0;
  return v < 256 || v == xy * 0x00010001u || v == ((v >> 8) & 0xFFu) * 0x01000100u || v == xy * 0x01010101u ||
         is_const_representable_in_mod_const(v, &byte, &rotation);
}

uint32_t t2_modified_constant_field(uint32_t v) {
  const uint32_t xy = v & 0xFFu;
  if (v < 256) return v;
  if (v == xy * 0x00010001u) return 0x100 | xy;
  if (v == ((v >> 8) & 0xFFu) * 0x01000100u) return 0x200 | ((v >> 8) & 0xFFu);
  if (v == xy * 0x01010101u) return 0x300 | xy;
  uint32_t byte = 0;
  uint32_t rotation = 0;
  is_const_representable_in_mod_const(v, &byte, &rotation);
  return rotation << 7 | (byte & 0x7Fu);
}

void encode_t2_dp(instruct *ir) {
  check_arch_v7(ir);
  const bool compare = ia_class(ir) == &t2_dp_2;
  const operand *rd = compare ? nullptr : ia_op(ir, 0);
  const operand *rn = ia_op(ir, compare ? 0 : 1);
  const operand *imm = ia_op(ir, compare ? 1 : 2);
  const bool add_or_sub = OPR_row_is(ir, "ADD") || OPR_row_is(ir, "SUB");
  const bool set_flags = (ir->ia_flags & IF_S) != 0;

  if (OPR_row_is(ir, "SUB") && set_flags && OPR_is_reg(rd) && rd->op_reg == REG_PC && OPR_is_reg(rn) &&
      rn->op_reg == REG_LR && imm->kind == OP_ICON) {
    uint32_t v = 0;
    exception_return(ir, imm32(imm, &v) ? v : 0x100);
    return;
  }

  uint32_t v = 0;
  const bool numeric = imm->kind == OP_ICON && imm32(imm, &v);
  if (add_or_sub && !set_flags && !(numeric && is_modified_constant(v))) {
    become_wide_form(ir);
    encode_dpw_fields(ir);
    return;
  }
  if (!compare) put_rd(ir, rd);
  put_rn(ir, rn, false);
  put_modified_constant(ir, imm);
  set_flags_bit(ir);
}

void encode_t2_dpw(instruct *ir) {
  check_arch_v7(ir);
  encode_dpw_fields(ir);
}

void encode_t2_mov_imm(instruct *ir) {
  const operand *rd = ia_op(ir, 0);
  const operand *imm = ia_op(ir, 1);
  uint32_t v = 0;
  const bool numeric = imm->kind == OP_ICON && imm32(imm, &v);
  if (numeric && is_modified_constant(v)) {
    check_arch_v7(ir);
    put_rd(ir, rd);
    put_imm12(ir, t2_modified_constant_field(v));
    set_flags_bit(ir);
    return;
  }
  // MVN has no such fallback: MOVW would load the value itself, not its
  // complement.
  if (numeric && !(ir->ia_flags & IF_S) && v < 0x10000 && OPR_row_is(ir, "MOV")) {
    static const mnemonic_row *const movw = OPR_find_row("MOVW");
    ir->record = movw;
    ENC_clear(ir, 0xFFFFFFFFu);
    ENC_set(ir, ia_opcode(ir));
    encode_movw_movt(ir);
    return;
  }
  check_arch_v7(ir);
  put_rd(ir, rd);
  error(ir->line, "E0004", "Invalid Immediate operand\n");
}
