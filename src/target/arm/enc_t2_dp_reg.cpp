// Thumb-2 data processing with register operands: the shifted-register
// forms, shifts by a register, the extends and the byte and bit reversals.
#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

using R = reg_role;

constexpr uint32_t T2_S_BIT = 1u << 20;
constexpr uint32_t T2_SUBS_PC_LR = 0xF3DE8F00;

// Which registers a register-form class names: compares have no Rd, MOV and
// MVN no Rn; the base word holds 15 for the one that is absent.
struct dp_reg_shape {
  const inst_class *cls;
  bool has_rd;
  bool has_rn;
};
constexpr dp_reg_shape dp_reg_shapes[] = {
    {&t2_dp_6, true, true},
    {&t2_dp_7, false, true},
    {&t2_dp_8, false, true},
    {&t2_dp_9, true, false},
};

const dp_reg_shape *find_shape(const inst_class *cls) {
  for (const dp_reg_shape &shape : dp_reg_shapes)
    if (shape.cls == cls) return &shape;
  return nullptr;
}

void set_flags_bit(instruct *ir) {
  if (ir->ia_flags & IF_S) ENC_set(ir, T2_S_BIT);
}

// A shift that changes the value: LSL #0 and no shift leave a plain move.
bool is_real_shift(const operand *op) {
  if (op->kind != OP_SHIFTREGI || op->op_shift == SHIFT_NONE) return false;
  return op->op_shift != SHIFT_LSL || ENC_value(op) != 0;
}

// The last operand: Rm, or Rm with an immediate shift (amount in three bits at
// 12 and two at 6, type at 4; RRX is ROR #0). False after a message.
bool put_operand2(instruct *ir, const operand *op) {
  if (op->kind == OP_REGISTER) {
    error_pc_op(ir, op->op_reg);
    ENC_put(ir, 0, 4, op->op_reg);
    return true;
  }
  if (op->kind != OP_SHIFTREGI) {
    error(ir->line, "E0004", "Invalid operand");
    return false;
  }
  error_pc_op(ir, op->op_reg);
  // The ARM-state field (Rm, type << 5, amount << 7) has the counts checked.
  const uint32_t field = ENC_shifted_reg_imm(ir, op);
  const uint32_t amount = (field >> 7) & 31u;
  ENC_put(ir, 0, 4, field & 0xFu);
  ENC_put(ir, 4, 2, (field >> 5) & 3u);
  ENC_put(ir, 12, 3, amount >> 2);
  ENC_put(ir, 6, 2, amount & 3u);
  return true;
}

// MOV with SP: no flags, and no shift of or into SP.
void check_mov_sp(instruct *ir, const operand *rd, const operand *src) {
  if (!OPR_is_reg(rd) || (src->kind != OP_REGISTER && src->kind != OP_SHIFTREGI)) return;
  const bool sp = rd->op_reg == REG_SP || src->op_reg == REG_SP;
  if (sp && is_real_shift(src))
    error(ir->line, "E0004", "Specifying R13(SP) as an operand is illegal in a MOV with register shift");
  if (sp && (ir->ia_flags & IF_S))
    error(ir->line, "E0004", "Condition code setting disallowed in a move with R13(SP) as one of the operands");
}

// Registers of a fixed list at their Thumb-2 fields, with PC refused once.
void put_regs_no_pc(instruct *ir, const reg_operand *ops, unsigned count) {
  unsigned regs[MAX_REG_OPERANDS] = {};
  OPR_encode(ir, ops, count, regs);
  OPR_error_pc_once(ir, regs, count);
}

// Extends that Cortex-M3 has.
bool is_m3_extend(const instruct *ir) {
  return OPR_row_is(ir, "SXTB") || OPR_row_is(ir, "SXTH") || OPR_row_is(ir, "UXTB") || OPR_row_is(ir, "UXTH");
}

}  // namespace

void encode_t2_dp_reg(instruct *ir) {
  check_arch_v7(ir);
  const dp_reg_shape *shape = find_shape(ia_class(ir));
  if (!shape) {
    OPR_shape_fault();
    return;
  }
  int next = 0;
  const operand *rd = shape->has_rd ? ia_op(ir, next++) : nullptr;
  const operand *rn = shape->has_rn ? ia_op(ir, next++) : nullptr;
  const operand *src = ia_op(ir, next);

  // MOV PC, LR returns as SUBS PC, LR, #0 does.
  if (ia_class(ir) == &t2_dp_9 && OPR_row_is(ir, "MOV") && OPR_is_reg(rd) && rd->op_reg == REG_PC &&
      OPR_is_reg(src) && src->op_reg == REG_LR) {
    error_if_cortex_m(ir);
    ENC_clear(ir, 0xFFFFFFFFu);
    ENC_set(ir, T2_SUBS_PC_LR);
    return;
  }

  if (rd && check_dest_op_reg(ir, rd)) {
    error_pc_op(ir, rd->op_reg);
    ENC_put(ir, 8, 4, rd->op_reg);
  }
  if (rn && check_op_reg(ir, rn, "n")) {
    error_pc_op(ir, rn->op_reg);
    ENC_put(ir, 16, 4, rn->op_reg);
  }
  if (!put_operand2(ir, src)) return;
  if (OPR_row_is(ir, "MOV")) check_mov_sp(ir, rd, src);
  set_flags_bit(ir);
}

void encode_t2_shift(instruct *ir) {
  static constexpr reg_operand regs[] = {{R::RD, NO_FIELD, 8}, {R::RM, NO_FIELD, 16}, {R::RS, NO_FIELD, 0}};
  check_arch_v7(ir);
  put_regs_no_pc(ir, regs, 3);
  set_flags_bit(ir);
}

void encode_t2_extend(instruct *ir) {
  check_arch_v7(ir);
  if (!is_m3_extend(ir)) error_if_cortex_m3(ir);
  const bool has_rn = ia_class(ir) == &t2_szea1;
  int next = 0;
  const operand *rd = ia_op(ir, next++);
  if (check_dest_op_reg(ir, rd)) {
    error_pc_op(ir, rd->op_reg);
    ENC_put(ir, 8, 4, rd->op_reg);
  }
  if (has_rn) {
    const operand *rn = ia_op(ir, next++);
    if (check_op_reg(ir, rn, "n")) {
      // Rn = 15 is the encoding of the extend without addition.
      if (rn->op_reg == REG_PC) error(ir->line, "E0004", "Operand Rn cannot be R15");
      else ENC_put(ir, 16, 4, rn->op_reg);
    }
  }
  const operand *rm = ia_op(ir, next);
  if (rm->kind == OP_SHIFTREGI) {
    error_pc_op(ir, rm->op_reg);
    ENC_put(ir, 0, 4, rm->op_reg);
    OPR_put_rotation(ir, rm, 4);
  } else if (check_op_reg(ir, rm, "m")) {
    error_pc_op(ir, rm->op_reg);
    ENC_put(ir, 0, 4, rm->op_reg);
  }
}

void encode_t2_rev(instruct *ir) {
  // Rm goes in twice, at 16 and at 0.
  static constexpr reg_operand regs[] = {{R::RD, NO_FIELD, 8}, {R::RM, NO_FIELD, 0}};
  check_arch_v7(ir);
  put_regs_no_pc(ir, regs, 2);
  const operand *rm = ia_op(ir, 1);
  if (OPR_is_reg(rm)) ENC_put(ir, 16, 4, rm->op_reg);
}
