// Branches and addresses: B, BL, BLX, BX, BXJ, CRET and ADR. ARM state only;
// the Thumb classes of these mnemonics have encoders of their own.
#include <cstdint>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/records.h"
#include "expr/symbols.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// Generic relocation type of the 24-bit ARM branch field.
constexpr uint32_t R_ARM_PC24 = 768;
// Shapes that take a label (B, CRET): a register there needs the X of BLX.
constexpr uint32_t SHAPE_LABEL = 0x280004;
// BLX Rm replaces the whole base word of the B row.
constexpr uint32_t BLX_REG_WORD = 0x12FFF30;
// br_type values.
constexpr uint32_t BR_CALL = 1, BR_CRET = 3, BR_INDIRECT = 4;

bool takes_label(const instruct *ir) { return (ia_class(ir)->ic_shape & SHAPE_LABEL) != 0; }

// A call to code of this file that runs in Thumb state: the branch must
// switch state itself.
bool calls_thumb_code_here(const operand *op) {
  const symbol_record *sym = op->value.v_symbol;
  if (!sym) return false;
  const bool thumb = sym->sym_state == 1 || sym->sym_state == 2;
  const bool here = sym->sym_storage == SYM_STOR_LOCAL || sym->sym_storage == SYM_STOR_GLOBAL;
  return thumb && here;
}

void encode_register_branch(instruct *ir, const operand *op) {
  if (takes_label(ir) && !(ir->ia_flags & IF_X)) {
    error(ir->line, "E0004", "Operand must be a label");
    return;
  }
  if (arm_arch_types.is_v5e_or_higher() && (ir->ia_flags & IF_X)) {
    ENC_clear(ir, 0xFFFFFFFFu);
    ENC_set(ir, BLX_REG_WORD);
  }
  ENC_put(ir, 0, 4, op->op_reg);
  if (op->op_reg != REG_PC) br_type = BR_INDIRECT;
}

void encode_label_branch(instruct *ir, operand *op) {
  const bool v5e = arm_arch_types.is_v5e_or_higher();
  // BL to Thumb code of this file becomes BLX: the halfword bit of the
  // target goes to bit 24, where BL has its link bit.
  bool to_thumb = false;
  if (v5e && (ir->ia_flags & IF_LINK) && ir->ia_cond == COND_AL && calls_thumb_code_here(op)) {
    ir->ia_flags |= IF_X;
    to_thumb = true;
  }
  if (v5e && (ir->ia_flags & IF_X)) ENC_put(ir, 28, 4, 0xF);

  // A symbolic target is relocated (the field then holds the addend); a
  // plain number is the offset itself.
  if (is_relocatable(&op->value)) {
    op->value.v_val -= xi_from_int(8);
    if (!ENC_pcrel(ir, op, SCN_address(), R_ARM_PC24, 24, 0)) return;
  }
  if (to_thumb) {
    const int64_t offset = ENC_range(ir, op, 1, 25, true);
    ENC_put(ir, 0, 24, static_cast<uint32_t>(offset >> 1) & 0xFFFFFFu);
    ENC_put(ir, 24, 1, static_cast<uint32_t>(offset) & 1u);
  } else {
    const unsigned shift = (ir->ia_flags & IF_X) ? 1 : 2;
    const int64_t offset = ENC_range(ir, op, shift, 24, true);
    ENC_put(ir, 0, 24, static_cast<uint32_t>(offset) & 0xFFFFFFu);
  }
  if (ir->ia_flags & IF_LINK) br_type |= BR_CALL;
}

}  // namespace

void encode_branch(instruct *ir) {
  operand *op = ia_op(ir, 0);
  if (op->kind == OP_REGISTER) {
    encode_register_branch(ir, op);
    return;
  }
  if (!takes_label(ir)) {
    error(ir->line, "E0004", "Operand must be a register");
    return;
  }
  if (op->kind != OP_SYMBOL && op->kind != OP_ICON) {
    error(ir->line, "E0004", "Operand must be a label");
    return;
  }
  encode_label_branch(ir, op);
}

void encode_cret(instruct *ir) {
  br_type = BR_CRET;
  encode_branch(ir);
}

void encode_adr(instruct *ir) {
  const operand *rd = ia_op(ir, 0);
  operand *target = ia_op(ir, 1);
  if (check_dest_op_reg(ir, rd)) ENC_put(ir, 12, 4, rd->op_reg);

  int32_t offset = 0;
  if (target->kind == OP_ICON) {
    offset = static_cast<int32_t>(ENC_value(target));
  } else if (!ENC_label_offset(ir, target, &offset)) {
    return;
  }
  // The address is PC plus or minus a rotated immediate: ADD or SUB.
  const uint32_t magnitude = offset < 0 ? 0u - static_cast<uint32_t>(offset) : static_cast<uint32_t>(offset);
  uint32_t field = 0;
  if (!ENC_rotated_imm(magnitude, &field)) {
    error(ir->line, "E0200", "Offset out of range");
    return;
  }
  ENC_put(ir, offset < 0 ? 22 : 23, 1, 1);
  ENC_put(ir, 0, 12, field);
}
