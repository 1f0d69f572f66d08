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

}  // namespace

void encode_t2_mul(instruct *ir) {
  check_arch_v7(ir);
  if (!OPR_row_is(ir, "MUL") && !OPR_row_is(ir, "MLA") && !OPR_row_is(ir, "MLS")) error_if_cortex_m3(ir);
  // No Thumb-2 multiply of these sets flags: the letter is dropped.
  if (ir->ia_flags & IF_S) warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
  const unsigned count = ia_class(ir) == &t2_mul2 ? 4 : 3;
  unsigned regs[MAX_REG_OPERANDS] = {};
  OPR_encode(ir, mul_regs, count, regs);
  if (count == 3) ENC_put(ir, RACC_FIELD, 4, REG_PC);
  OPR_error_pc_once(ir, regs, count);
}

void encode_t2_div(instruct *ir) {
  static constexpr reg_operand regs_of[] = {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}};
  check_arch_v7(ir);
  unsigned regs[3] = {};
  OPR_encode(ir, regs_of, 3, regs);
  if (regs[0] == REG_SP || regs[0] == REG_PC)
    error(ir->line, "W0000", "Using Rd == SP or PC will lead to unpredictable results");
  OPR_error_pc_once(ir, regs + 1, 2);
}
