// Thumb-2 multiplies of the MUL, MLA, MLS and SMUL/SMLA halfword classes, and
// the divides.
#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

using R = reg_role;

// Rd, Rn, Rm and the optional accumulator; without one Racc is 15.
constexpr reg_operand mul_regs[] = {
    {R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}, {R::RACC, NO_FIELD, 12}};
constexpr unsigned RACC_FIELD = 12;

// The first of regs[] that is PC gets the message.
void reject_pc(instruct *ir, const unsigned regs[], unsigned count, const bool read[]) {
  for (unsigned i = 0; i < count; ++i) {
    if (read[i] && regs[i] == REG_PC) {
      error_pc_op(ir, REG_PC);
      return;
    }
  }
}

// Reads and places the registers; read[i] tells which operands were registers.
void put_regs(instruct *ir, const reg_operand *ops, unsigned count, unsigned regs[], bool read[]) {
  OPR_encode(ir, ops, count, regs);
  for (unsigned i = 0; i < count; ++i) read[i] = OPR_is_reg(ia_op(ir, static_cast<int>(i)));
}

}  // namespace

void encode_t2_mul(instruct *ir) {
  check_arch_v7(ir);
  if (!OPR_row_is(ir, "MUL") && !OPR_row_is(ir, "MLA") && !OPR_row_is(ir, "MLS")) error_if_cortex_m3(ir);
  if (ir->ia_flags & IF_S) {
    warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
    ir->ia_flags &= ~IF_S;
  }
  const unsigned count = ia_class(ir) == &t2_mul2 ? 4 : 3;
  unsigned regs[MAX_REG_OPERANDS] = {};
  bool read[MAX_REG_OPERANDS] = {};
  put_regs(ir, mul_regs, count, regs, read);
  if (count == 3) ENC_put(ir, RACC_FIELD, 4, REG_PC);
  reject_pc(ir, regs, count, read);
}

void encode_t2_div(instruct *ir) {
  static constexpr reg_operand regs_of[] = {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}};
  check_arch_v7(ir);
  unsigned regs[3] = {};
  bool read[3] = {};
  put_regs(ir, regs_of, 3, regs, read);
  if (read[0] && (regs[0] == REG_SP || regs[0] == REG_PC))
    error(ir->line, "W0000", "Using Rd == SP or PC will lead to unpredictable results");
  reject_pc(ir, regs + 1, 2, read + 1);
}
