// Multiple transfers (LDM, STM) and the swaps SWP, SWPB.
#include "driver/diag.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/enc_ldst.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

constexpr uint32_t LDM_IA = 1u << 23;        // increment after, when no mode is written
constexpr uint32_t LDM_USER = 1u << 22;      // '^': user bank, or SPSR restore with PC
constexpr uint32_t LDM_PC = 1u << REG_PC;

// Remark on a v4 to v6 LDM that writes back into a listed base.
constexpr unsigned REMARK_LDM_WRITEBACK = 0;

}  // namespace

// LDM, STM: Rn{!}, {list}{^}. The mode letters are written by the common
// modifier step; none means IA.
void encode_ldm(instruct *ir) {
  const bool load = (ia_opcode(ir) & LDST_L) != 0;
  const operand *base = ia_op(ir, 0);
  const operand *list = ia_op(ir, 1);

  if (base->kind != OP_REGISTER) {
    error(ir->line, "E0004", "Base operand Rn must be a register");
    return;
  }
  if (base->op_reg == REG_PC) error(ir->line, "E0004", "Base register (Rn) cannot be R15 (PC)");
  if (base->op_mods & ~MOD_WRITEBACK) warn(ir->line, "W0000", "Invalid operand modifiers ignored");
  ENC_put(ir, 16, 4, base->op_reg);
  if (if_am(ir->ia_flags & ia_class(ir)->ic_allowed) == AM_NONE) ENC_set(ir, LDM_IA);

  if (list->kind != OP_REGLIST) {
    error(ir->line, "E0004", "Register list required");
    return;
  }
  const uint32_t mask = static_cast<uint32_t>(ENC_value(list)) & 0xFFFF;
  const uint32_t base_bit = 1u << base->op_reg;
  const bool writeback = (base->op_mods & MOD_WRITEBACK) != 0;
  if (writeback) {
    ENC_set(ir, LDST_W);
    if (mask & base_bit) {
      if (!load) {
        if ((mask & (base_bit - 1)) != 0)
          warn(ir->line, "W0000", "If Rn is not the lowest register in the list, the value stored in Rn is unkown");
      } else if (arm_arch_types.is_v7_or_higher()) {
        error(ir->line, "E0004",
              "For ARM mode v7 or higher, the register list must not contain the base register Rn if "
              "writeback is specified");
      } else {
        remark(ir->line, REMARK_LDM_WRITEBACK,
               "Use of writeback flag when the register list contains Rn is deprecated in ARM mode; The "
               "result in Rn is unknown");
      }
    }
  }
  ENC_put(ir, 0, 16, mask);
  if (list->op_mods & MOD_CARET) {
    ENC_set(ir, LDM_USER);
    if (writeback && !(load && (mask & LDM_PC)))
      error(ir->line, "E0004", "Cannot specify both base write-back and S bit for this instruction");
  }
  if (mask & LDM_PC) br_type = 2;
}

// SWP, SWPB: Rd, Rm, [Rn].
void encode_swp(instruct *ir) {
  const operand *rd = ia_op(ir, 0);
  const operand *rm = ia_op(ir, 1);
  const operand *rn = ia_op(ir, 2);
  bool ok = check_dest_op_reg(ir, rd);
  if (rm->kind != OP_REGISTER) {
    error(ir->line, "E0004", "Second operand, Rm, must be a register");
    ok = false;
  }
  if (rn->kind != OP_INDIRECT) {
    error(ir->line, "E0004", "Third operand, [Rn], must be an register indirect");
    ok = false;
  }
  if (!ok) return;
  if (rd->op_reg == REG_PC || rm->op_reg == REG_PC || rn->op_reg == REG_PC)
    error(ir->line, "E0004", "R15 is an invalid operand");
  ENC_put(ir, 12, 4, rd->op_reg);
  ENC_put(ir, 0, 4, rm->op_reg);
  ENC_put(ir, 16, 4, rn->op_reg);
}
