// v6 media multiplies: the SMLAD, SMUAD and SMMLA families, UMAAL and the
// SMLALD family, USAD8 and USADA8, in ARM state and Thumb-2.
#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encoders.h"

namespace {

using R = reg_role;

// What an R15 in the operands means for a class.
enum class pc_rule : uint8_t {
  NONE,
  ACCUMULATOR,   // the accumulator (operand 3) may not be R15: that would be the form without it
  BOTH_PAIRS,    // warn_pc_op on the destination pair and on the source pair
};

struct media_mul_rule {
  const inst_class *cls;
  pc_rule pc;
  unsigned count;
  reg_operand regs[MAX_REG_OPERANDS];
};

constexpr media_mul_rule media_mul_rules[] = {
    // SMLAD family, SMMLA family: Rd, Rn, Rm, Ra
    {&arm_v6_sml, pc_rule::ACCUMULATOR, 4, {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}, {R::RN, 12, NO_FIELD}}},
    {&t2_v6_sml, pc_rule::ACCUMULATOR, 4, {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}, {R::RACC, NO_FIELD, 12}}},
    // SMUAD family, SMMUL: Rd, Rn, Rm
    {&arm_v6_smu, pc_rule::NONE, 3, {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    {&t2_v6_smu, pc_rule::NONE, 3, {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}}},
    // UMAAL, SMLALD family: RdLo, RdHi, Rn, Rm
    {&arm_v6_umaal, pc_rule::BOTH_PAIRS, 4,
     {{R::RDLO_V6, 12, NO_FIELD}, {R::RDHI_V6, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    {&arm_v6_smlal, pc_rule::BOTH_PAIRS, 4,
     {{R::RDLO_V6, 12, NO_FIELD}, {R::RDHI_V6, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    {&t2_v6_umaal, pc_rule::BOTH_PAIRS, 4,
     {{R::RDLO_V6, NO_FIELD, 12}, {R::RDHI_V6, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}}},
    {&t2_v6_smlal, pc_rule::BOTH_PAIRS, 4,
     {{R::RDLO_V6, NO_FIELD, 12}, {R::RDHI_V6, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}}},
    // USAD8 Rd, Rn, Rm and USADA8 Rd, Rn, Rm, Ra
    {&arm_v6_usad8, pc_rule::NONE, 3, {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    {&arm_v6_usada8, pc_rule::NONE, 4, {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}, {R::RN, 12, NO_FIELD}}},
    {&t2_v6_usad8, pc_rule::NONE, 3, {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}}},
    // In Thumb-2 an R15 accumulator would be the encoding of USAD8.
    {&t2_v6_usada8, pc_rule::ACCUMULATOR, 4, {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}, {R::RACC, NO_FIELD, 12}}},
};

void encode_media_mul(instruct *ir) {
  const inst_class *cls = ia_class(ir);
  const media_mul_rule *rule = nullptr;
  for (const media_mul_rule &row : media_mul_rules)
    if (row.cls == cls) rule = &row;
  if (!rule) {
    OPR_shape_fault();
    return;
  }
  check_arch_v6(ir);
  error_if_cortex_m3(ir);
  unsigned regs[MAX_REG_OPERANDS] = {};
  if (!OPR_encode(ir, rule->regs, rule->count, regs)) return;
  if (rule->pc == pc_rule::ACCUMULATOR && regs[3] == REG_PC)
    error(ir->line, "E0004", OPR_thumb2() ? "Operand Racc cannot be R15" : "Operand Rn cannot be R15");
  if (rule->pc == pc_rule::BOTH_PAIRS) {
    warn_pc_op(ir, regs[0], regs[1], regs[1]);
    warn_pc_op(ir, regs[2], regs[3], regs[3]);
  }
}

}  // namespace

void encode_v6_mul(instruct *ir) { encode_media_mul(ir); }
void encode_v6_mull(instruct *ir) { encode_media_mul(ir); }
void encode_usad(instruct *ir) { encode_media_mul(ir); }
