// Data processing in ARM state (the second operand as rotated immediate,
// shifted register or register-shifted register), CLZ, and MOVW/MOVT.
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "ofe/of_reloc_type.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"
#include "target/arm/glue_pending.h"

namespace {

// Operand shapes with a destination register and with a first source register.
constexpr uint32_t SHAPE_HAS_RD = 0xE1E368;
constexpr uint32_t SHAPE_HAS_RN = 0x84C031;

constexpr uint32_t DP_IMMEDIATE = 1u << 25;
constexpr unsigned DP_OPCODE_BIT = 21;

// An immediate that has no rotated form may fit negated in the partner
// instruction: the base opcode and the four-bit opcode field of the partner.
struct dp_swap_row {
  uint32_t base;
  uint32_t partner;
};
constexpr dp_swap_row dp_swaps[] = {
    {0x800000, 2},    // ADD -> SUB
    {0x400000, 4},    // SUB -> ADD
    {0x1500000, 11},  // CMP -> CMN
    {0x1700000, 10},  // CMN -> CMP
};

const dp_swap_row *find_swap(uint32_t base) {
  for (const dp_swap_row &row : dp_swaps)
    if (row.base == base) return &row;
  return nullptr;
}

bool row_is(const instruct *ir, const char *name) { return std::strcmp(ia_row(ir)->name, name) == 0; }

// Rd or Rn of a data-processing statement.
void dp_register(instruct *ir, const operand *op, unsigned bit, bool destination) {
  if (!OPR_is_reg(op)) {
    if (destination)
      check_dest_op_reg(ir, op);
    else
      check_op_reg(ir, op, "n");
    return;
  }
  if (op->op_mods) warn(ir->line, "W0000", "Operand modifiers ignored");
  ENC_put(ir, bit, 4, op->op_reg);
}

// MOV on v7 of a value with no rotated form becomes MOVW.
void become_movw(instruct *ir) {
  static const mnemonic_row *const movw = OPR_find_row("MOVW");
  ir->record = movw;
  ENC_clear(ir, 0xFFFFFFFFu);
  ENC_set(ir, ia_opcode(ir));
  encode_movw_movt(ir);
}

void dp_immediate(instruct *ir, const operand *op) {
  const uint32_t value = static_cast<uint32_t>(ENC_value(op));
  uint32_t field = 0;
  if (ENC_rotated_imm(value, &field)) {
    ENC_set(ir, DP_IMMEDIATE);
    ENC_put(ir, 0, 12, field);
    return;
  }
  if (arm_arch_types.is_v7_or_higher() && row_is(ir, "MOV")) {
    become_movw(ir);
    return;
  }
  ENC_set(ir, DP_IMMEDIATE);
  const dp_swap_row *swap = find_swap(ia_opcode(ir));
  if (swap && ENC_rotated_imm(0u - value, &field)) {
    ENC_clear(ir, 0xFu << DP_OPCODE_BIT);
    ENC_put(ir, DP_OPCODE_BIT, 4, swap->partner);
    ENC_put(ir, 0, 12, field);
    return;
  }
  error(ir->line, "E0004", "Immediate not representable as a rotated 8 bit immediate");
}

void dp_shift_by_register(instruct *ir, const operand *op) {
  const unsigned rs = OPR_shift_reg(op);
  if (rs == REG_PC) warn(ir->line, "W0000", "R15 should not be used to specify shift amount");
  ENC_put(ir, 8, 4, rs);
  ENC_put(ir, 5, 2, op->op_shift & 3u);
  ENC_set(ir, 1u << 4);
  ENC_put(ir, 0, 4, op->op_reg);
}

// Rd at 8 and Rm at 16 and 0 in Thumb-2; Rd at 12 and Rm at 0 in ARM state.
constexpr reg_operand clz_regs[] = {
    {reg_role::RD, 12, 8},
    {reg_role::RM, 0, 0},
};

// MOVW/MOVT of a relocatable value: the linker fills in its half; the field
// keeps the addend's half.
void movw_relocation(instruct *ir, operand *op, bool top) {
  const bool t2 = OPR_thumb2();
  const uint32_t id = top ? (t2 ? OFE::OFR_ARM_THM_MOVT_ABS : OFE::OFR_ARM_MOVT_ABS)
                         : (t2 ? OFE::OFR_ARM_THM_MOVW_ABS_NC : OFE::OFR_ARM_MOVW_ABS_NC);
  const OFE::OF_RELOC_TYPE *type = ARM_reloc_type(id);
  if (!type) {
    error(ir->line, "E0001", "Address must be defined in the current section");
    op->value.v_val = xi_from_uint(0);
    return;
  }
  if (!suppress_output)
    RELOC_emit(&ir->ior, &op->value, curpc, type, static_cast<short>(type->field_size()), 0,
               type->field_offset());
}

}  // namespace

void encode_dp(instruct *ir) {
  const uint32_t shape = ia_class(ir)->ic_shape;
  int next = 0;
  if (shape & SHAPE_HAS_RD) dp_register(ir, ia_op(ir, next++), 12, true);
  if (shape & SHAPE_HAS_RN) dp_register(ir, ia_op(ir, next++), 16, false);

  const operand *op2 = ia_op(ir, next);
  switch (op2->kind) {
    case OP_SHIFTREGR: dp_shift_by_register(ir, op2); break;
    case OP_SHIFTREGI: ENC_put(ir, 0, 12, ENC_shifted_reg_imm(ir, op2)); break;
    case OP_REGISTER: ENC_put(ir, 0, 4, op2->op_reg); break;
    case OP_ICON: dp_immediate(ir, op2); break;
    default: error(ir->line, "E0004", "Illegal operand"); break;
  }
  if (op2->op_mods) warn(ir->line, "W0000", "Operand modifier(s) ignored");
}

void encode_clz(instruct *ir) {
  check_arch_v5(ir);
  unsigned regs[2];
  if (!OPR_encode(ir, clz_regs, 2, regs)) return;
  OPR_reject_pc(ir, regs, 2);
  if (OPR_thumb2()) ENC_put(ir, 16, 4, regs[1]);
}

void encode_movw_movt(instruct *ir) {
  check_arch_v7(ir);
  const operand *rd = ia_op(ir, 0);
  if (check_dest_op_reg(ir, rd)) {
    error_pc_op(ir, rd->op_reg);
    ENC_put(ir, OPR_thumb2() ? 8 : 12, 4, rd->op_reg);
  }

  const bool top = row_is(ir, "MOVT");
  operand *op = ia_op(ir, 1);
  uint32_t value = 0;
  if (op->kind == OP_SYMBOL && is_relocatable(op->value)) {
    movw_relocation(ir, op, top);
    value = static_cast<uint32_t>(ENC_value(op));
    value = (top ? value >> 16 : value) & 0xFFFFu;
  } else if (op->kind == OP_ICON) {
    const int64_t v = ENC_value(op);
    if (v < 0 || v >= 0x10000) {
      error(ir->line, "E0004", "Immediate cannot be greater than 16-bits");
      return;
    }
    value = static_cast<uint32_t>(v);
  } else {
    error(ir->line, "E0004", "The second operand must be an immediate value or symbol");
    return;
  }

  if (OPR_thumb2()) {
    ENC_put(ir, 0, 8, value & 0xFFu);
    ENC_put(ir, 12, 3, (value >> 8) & 0x7u);
    ENC_put(ir, 26, 1, (value >> 11) & 0x1u);
    ENC_put(ir, 16, 4, value >> 12);
  } else {
    ENC_put(ir, 0, 12, value & 0xFFFu);
    ENC_put(ir, 16, 4, value >> 12);
  }
}
