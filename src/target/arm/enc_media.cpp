// v6 media instructions and bit fields: BFI/BFC/SBFX/UBFX, the REV family,
// parallel add and subtract, saturation, SEL, the extends and the packs, in
// ARM state and (where a class serves it) Thumb-2.
#include <cstring>
#include <utility>

#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

using R = reg_role;

bool row_is(const instruct *ir, const char *name) { return std::strcmp(ia_row(ir)->name, name) == 0; }

// Shift amount of an immediate shift in a Thumb-2 word: three bits at 12,
// two at 6.
void put_t2_shift_amount(instruct *ir, uint32_t amount) {
  ENC_put(ir, 12, 3, amount >> 2);
  ENC_put(ir, 6, 2, amount & 3u);
}

// ---- Bit fields ------------------------------------------------------------------

constexpr reg_operand bitfield_regs[] = {{R::RD, 12, 8}, {R::RN, 0, 16}};

// The lsb or width operand; false after its message.
bool bitfield_imm(instruct *ir, const operand *op, const char *what, int64_t *value) {
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "The %s operand must be immediate", what);
    return false;
  }
  *value = ENC_value(op);
  return true;
}

// ---- Parallel add and subtract ---------------------------------------------------

struct prefix_row {
  const char *prefix;
  uint32_t code;   // ARM state; one less in Thumb-2
};
constexpr prefix_row parallel_prefixes[] = {{"S", 1}, {"Q", 2}, {"SH", 3}, {"U", 5}, {"UQ", 6}, {"UH", 7}};

constexpr reg_operand three_regs[] = {{R::RD, 12, 8}, {R::RN, 16, 16}, {R::RM, 0, 0}};

// ---- Saturation ------------------------------------------------------------------

// Range of the saturation operand and its words, by signedness and width.
struct sat_rule {
  const inst_class *arm_cls;
  const inst_class *t2_cls;
  bool is_unsigned;
  int64_t low, high;
  unsigned field_width;
  const char *words;
};
constexpr sat_rule sat_rules[] = {
    {&arm_v6_wsat, &t2_v6_wsat, false, 1, 32, 5, "Illegal operand for immediate. Should lie between 1 and 32"},
    {&arm_v6_wsat, &t2_v6_wsat, true, 0, 31, 5, "Illegal operand for immediate. Should lie between  0 and 31"},
    {&arm_v6_hsat, &t2_v6_hsat, false, 1, 16, 4, "Illegal operand for immediate. Should lie between 1 and 16"},
    {&arm_v6_hsat, &t2_v6_hsat, true, 0, 15, 4, "Illegal operand for immediate. Should lie between 0 and 15"},
};

const sat_rule *find_sat_rule(const instruct *ir) {
  const inst_class *cls = ia_class(ir);
  const bool is_unsigned = ia_row(ir)->name[0] == 'U';
  for (const sat_rule &rule : sat_rules)
    if ((rule.arm_cls == cls || rule.t2_cls == cls) && rule.is_unsigned == is_unsigned) return &rule;
  return nullptr;
}

// The shifted source of SSAT and USAT: LSL #0..31 or ASR #1..32.
void sat_shift(instruct *ir, const operand *op) {
  if (op->op_shift != SHIFT_LSL && op->op_shift != SHIFT_ASR) {
    error(ir->line, "E0004", "Illegal shift type. Must be ASR or LSL");
    return;
  }
  int64_t amount = ENC_value(op);
  const bool asr = op->op_shift == SHIFT_ASR;
  if (asr && (amount < 1 || amount > 32)) {
    error(ir->line, "E0004", "Shift value must lie between 1 and 32");
    return;
  }
  if (!asr && (amount < 0 || amount > 31)) {
    error(ir->line, "E0004", "Shift amount exceeds its maximum value");
    return;
  }
  // Thumb-2 has no ASR #32 here: its zero amount with ASR is SSAT16.
  if (asr && amount == 32 && OPR_thumb2()) {
    error(ir->line, "E0004", "Shift amount exceeds its maximum value");
    return;
  }
  if (amount == 32) amount = 0;
  if (OPR_thumb2()) {
    if (asr) ENC_set(ir, 1u << 21);
    put_t2_shift_amount(ir, static_cast<uint32_t>(amount));
  } else {
    if (asr) ENC_set(ir, 1u << 6);
    ENC_put(ir, 7, 5, static_cast<uint32_t>(amount));
  }
}

void encode_saturate(instruct *ir, bool halfword) {
  const sat_rule *rule = find_sat_rule(ir);
  if (!rule) {
    OPR_shape_fault();
    return;
  }
  const bool t2 = OPR_thumb2();
  const operand *rd = ia_op(ir, 0);
  if (check_dest_op_reg(ir, rd)) ENC_put(ir, t2 ? 8 : 12, 4, rd->op_reg);

  const operand *sat = ia_op(ir, 1);
  if (sat->kind != OP_ICON) {
    error(ir->line, "E0004", "The second operand must be immediate");
  } else {
    const int64_t value = ENC_value(sat);
    if (value < rule->low || value > rule->high)
      error(ir->line, "E0004", "%s", rule->words);
    else
      ENC_put(ir, t2 ? 0 : 16, rule->field_width, static_cast<uint32_t>(value - rule->low));
  }

  const operand *src = ia_op(ir, 2);
  const unsigned rn_bit = t2 ? 16 : 0;
  if (!halfword && src->kind == OP_SHIFTREGI) {
    ENC_put(ir, rn_bit, 4, src->op_reg);
    sat_shift(ir, src);
  } else if (check_op_reg(ir, src, "n")) {
    ENC_put(ir, rn_bit, 4, src->op_reg);
  }
}

// ---- Packs -------------------------------------------------------------------------

// PKHTB Rd, Rn, Rm (no shift) is PKHBT Rd, Rm, Rn: the row and base word of
// PKHBT, with the sources swapped.
void pack_as_pkhbt(instruct *ir) {
  static const mnemonic_row *const pkhbt = OPR_find_row("PKHBT");
  ir->record = pkhbt;
  ENC_clear(ir, 0xFFFFFFFFu);
  ENC_set(ir, ia_opcode(ir));
}

void pack_shift(instruct *ir, const operand *op, bool top) {
  const uint8_t wanted = top ? SHIFT_ASR : SHIFT_LSL;
  if (op->op_shift != wanted) {
    error(ir->line, "E0004", top ? "Illegal shift type. Must be ASR" : "Illegal shift type. Must be LSL");
    return;
  }
  int64_t amount = ENC_value(op);
  if (amount < 1 || amount > (top ? 32 : 31)) {
    error(ir->line, "E0004", "Shift amount exceeds its maximum value");
    return;
  }
  if (amount == 32) amount = 0;
  if (OPR_thumb2())
    put_t2_shift_amount(ir, static_cast<uint32_t>(amount));
  else
    ENC_put(ir, 7, 5, static_cast<uint32_t>(amount));
}

}  // namespace

void encode_bitfield(instruct *ir) {
  check_arch_v7(ir);
  const bool has_rn = ia_class(ir)->ic_shape == arm_bitfield1.ic_shape;
  const unsigned nregs = has_rn ? 2 : 1;
  unsigned regs[2] = {0, 0};
  for (unsigned i = 0; i < nregs; ++i) {
    const operand *op = ia_op(ir, static_cast<int>(i));
    if (!OPR_is_reg(op)) {
      error(ir->line, "E0004", "Invalid operand combination.");
      return;
    }
    regs[i] = op->op_reg;
  }
  OPR_put(ir, bitfield_regs, nregs, regs);
  warn_pc_op(ir, regs[0], regs[1], regs[0]);

  int64_t lsb = 0;
  int64_t width = 0;
  const bool lsb_ok = bitfield_imm(ir, ia_op(ir, static_cast<int>(nregs)), "lsb", &lsb);
  const bool width_ok = bitfield_imm(ir, ia_op(ir, static_cast<int>(nregs + 1)), "width", &width);
  if (!lsb_ok || !width_ok) return;
  bool ok = true;
  if (width < 1 || width > 32) {
    error(ir->line, "E0004", "Width must be in the range of 1 to 32");
    ok = false;
  }
  if (lsb < 0 || lsb > 31) {
    error(ir->line, "E0004", "LSB must be in the range of 0 to 31");
    ok = false;
  }
  if (!ok) return;
  if (lsb + width > 32) {
    error(ir->line, "E0004", "LSB + width cannot be greater than 32");
    return;
  }
  const char *name = ia_row(ir)->name;
  const bool extract = std::strcmp(name + 1, "BFX") == 0;
  const uint32_t top = static_cast<uint32_t>(extract ? width - 1 : lsb + width - 1);
  if (OPR_thumb2()) {
    put_t2_shift_amount(ir, static_cast<uint32_t>(lsb));
    ENC_put(ir, 0, 5, top);
  } else {
    ENC_put(ir, 7, 5, static_cast<uint32_t>(lsb));
    ENC_put(ir, 16, 5, top);
  }
}

void encode_rev(instruct *ir) {
  static constexpr reg_operand regs_of[] = {{R::RD, 12, NO_FIELD}, {R::RM, 0, NO_FIELD}};
  check_arch_v6(ir);
  unsigned regs[2];
  if (OPR_encode(ir, regs_of, 2, regs)) warn_pc_op(ir, regs[0], regs[1], regs[1]);
}

void encode_addsub(instruct *ir) {
  const char *prefix = ir->ia_prefix;
  if (prefix[0] == '\0') {
    error(ir->line, "E0002", "Parallel add/subtract instructions must have a prefix");
  } else {
    const prefix_row *found = nullptr;
    for (const prefix_row &row : parallel_prefixes)
      if (std::strcmp(row.prefix, prefix) == 0) found = &row;
    if (!found)
      error(ir->line, "E0004", "Invalid instruction prefix");
    else if (OPR_thumb2())
      ENC_put(ir, 4, 3, found->code - 1);
    else
      ENC_put(ir, 20, 3, found->code);
  }
  unsigned regs[3];
  OPR_encode(ir, three_regs, 3, regs);
}

void encode_wsat(instruct *ir) { encode_saturate(ir, false); }
void encode_hsat(instruct *ir) { encode_saturate(ir, true); }

void encode_sel(instruct *ir) {
  check_arch_v6(ir);
  error_if_cortex_m3(ir);
  unsigned regs[3];
  if (OPR_encode(ir, three_regs, 3, regs)) warn_pc_op(ir, regs[0], regs[1], regs[2]);
}

void encode_extend(instruct *ir) {
  const bool has_rn = (ia_class(ir)->ic_allowed & IF_SZEA) != 0;
  int next = 0;
  const operand *rd = ia_op(ir, next++);
  if (check_dest_op_reg(ir, rd)) ENC_put(ir, 12, 4, rd->op_reg);
  if (has_rn) {
    const operand *rn = ia_op(ir, next++);
    if (check_op_reg(ir, rn, "n")) {
      if (rn->op_reg == REG_PC) error(ir->line, "E0004", "Operand Rn cannot be R15");
      ENC_put(ir, 16, 4, rn->op_reg);
    }
  }
  const operand *rm = ia_op(ir, next);
  if (rm->kind == OP_SHIFTREGI) {
    ENC_put(ir, 0, 4, rm->op_reg);
    OPR_put_rotation(ir, rm, 10);
  } else if (check_op_reg(ir, rm, "m")) {
    ENC_put(ir, 0, 4, rm->op_reg);
  }
}

void encode_pack(instruct *ir) {
  const bool top = row_is(ir, "PKHTB");
  const operand *rd = ia_op(ir, 0);
  const operand *rn = ia_op(ir, 1);
  const operand *rm = ia_op(ir, 2);
  const bool rd_ok = check_dest_op_reg(ir, rd);
  const bool rn_ok = check_op_reg(ir, rn, "n");
  if (rm->kind != OP_REGISTER && rm->kind != OP_SHIFTREGI) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  if (!rd_ok || !rn_ok) return;
  const bool plain = rm->kind == OP_REGISTER || ENC_value(rm) == 0;
  unsigned n = rn->op_reg;
  unsigned m = rm->op_reg;
  if (top && plain) {
    pack_as_pkhbt(ir);
    std::swap(n, m);
  }
  ENC_put(ir, OPR_thumb2() ? 8 : 12, 4, rd->op_reg);
  ENC_put(ir, 16, 4, n);
  ENC_put(ir, 0, 4, m);
  if (!plain) pack_shift(ir, rm, top);
}

void OPR_put_rotation(instruct *ir, const operand *op, unsigned bit) {
  const int64_t amount = ENC_value(op);
  // A written ROR #0 reaches here as the parser's LSL #0.
  if (op->op_shift != SHIFT_ROR && !(op->op_shift == SHIFT_LSL && amount == 0)) {
    error(ir->line, "E0004", "Illegal shift type. Must be ROR");
    return;
  }
  if (amount != 0 && amount != 8 && amount != 16 && amount != 24) {
    error(ir->line, "E0004", "Illegal rotate value. Must be 0, 8, 16 or 24");
    return;
  }
  ENC_put(ir, bit, 2, static_cast<uint32_t>(amount / 8));
}
