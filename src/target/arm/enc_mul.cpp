// Multiplies (MUL, MLA, MLS, the halfword SMLA and SMUL forms, the long
// multiplies) and the saturating QADD family, in ARM state and Thumb-2.
#include <cstring>

#include "driver/diag.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encoders.h"

namespace {

// Which destination must not be the same register as Rm below v5E.
enum class rd_rm_rule : uint8_t {
  NONE,
  RD,      // operand 0 against operand 1
  LONG,    // RdLo and RdHi against operand 2
};

// One class of the family: its checks and its register operands.
struct mul_rule {
  const inst_class *cls;
  void (*arch)(instruct *);   // architecture check, or null
  bool cortex_m3;              // refused on Cortex-M3
  rd_rm_rule rd_rm;
  unsigned count;
  reg_operand regs[MAX_REG_OPERANDS];
};

using R = reg_role;

constexpr mul_rule mul_rules[] = {
    // MUL Rd, Rm, Rs
    {&arm_mul_1, nullptr, true, rd_rm_rule::RD, 3, {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    // MLA, MLS Rd, Rm, Rs, Rn
    {&arm_mul_2, nullptr, true, rd_rm_rule::RD, 4,
     {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}, {R::RN, 12, NO_FIELD}}},
    // SMLA<x><y>, SMLAW<y> Rd, Rm, Rs, Rn
    {&arm_smla, check_arch_v5, true, rd_rm_rule::RD, 4,
     {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}, {R::RN, 12, NO_FIELD}}},
    // Thumb-2 SMLAW<y> Rd, Rn, Rm, Racc
    {&t2_smla, check_arch_v5, true, rd_rm_rule::RD, 4,
     {{R::RD, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}, {R::RACC, NO_FIELD, 12}}},
    // UMULL, UMLAL, SMULL, SMLAL RdLo, RdHi, Rm, Rs
    {&arm_mla, nullptr, true, rd_rm_rule::LONG, 4,
     {{R::RDLO, 12, NO_FIELD}, {R::RDHI, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    // SMLAL<x><y> RdLo, RdHi, Rm, Rs
    {&arm_smlal, check_arch_v5, true, rd_rm_rule::LONG, 4,
     {{R::RDLO, 12, NO_FIELD}, {R::RDHI, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
    // Thumb-2 SMLAL<x><y> RdLo, RdHi, Rn, Rm
    {&t2_smlal, check_arch_v5, true, rd_rm_rule::LONG, 4,
     {{R::RDLO, NO_FIELD, 12}, {R::RDHI, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}}},
    // Thumb-2 UMULL family: available on Cortex-M3
    {&t2_mla, nullptr, false, rd_rm_rule::LONG, 4,
     {{R::RDLO, NO_FIELD, 12}, {R::RDHI, NO_FIELD, 8}, {R::RN, NO_FIELD, 16}, {R::RM, NO_FIELD, 0}}},
    // QADD, QSUB, QDADD, QDSUB Rd, Rm, Rn
    {&arm_fixpt, check_arch_v5, true, rd_rm_rule::NONE, 3, {{R::RD, 12, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RN, 16, NO_FIELD}}},
    {&t2_fixpt, check_arch_v5, true, rd_rm_rule::NONE, 3, {{R::RD, NO_FIELD, 8}, {R::RM, NO_FIELD, 0}, {R::RN, NO_FIELD, 16}}},
    // SMUL<x><y>, SMULW<y> Rd, Rm, Rs
    {&arm_smul, check_arch_v5, false, rd_rm_rule::RD, 3, {{R::RD, 16, NO_FIELD}, {R::RM, 0, NO_FIELD}, {R::RS, 8, NO_FIELD}}},
};

const mul_rule *find_rule(const inst_class *cls) {
  for (const mul_rule &rule : mul_rules)
    if (rule.cls == cls) return &rule;
  return nullptr;
}

void warn_rd_rm(instruct *ir, rd_rm_rule rule, const unsigned regs[]) {
  if (arm_arch_types.is_v5e_or_higher()) return;
  if (rule == rd_rm_rule::RD && regs[0] == regs[1])
    warn(ir->line, "W0000", "Destination register operand Rd should not be the same as operand Rm");
  if (rule != rd_rm_rule::LONG) return;
  if (regs[0] == regs[2])
    warn(ir->line, "W0000", "Destination register operand Rdlo should not be the same as operand Rm");
  if (regs[1] == regs[2])
    warn(ir->line, "W0000", "Destination register operand Rdhi should not be the same as operand Rm");
}

void encode_by_rule(instruct *ir) {
  const mul_rule *rule = find_rule(ia_class(ir));
  if (!rule) {
    OPR_shape_fault();
    return;
  }
  if (rule->cortex_m3) error_if_cortex_m3(ir);
  if (rule->arch) rule->arch(ir);
  if (std::strcmp(ia_row(ir)->name, "MLS") == 0) check_arch_v7(ir);

  unsigned regs[MAX_REG_OPERANDS] = {};
  if (!OPR_encode(ir, rule->regs, rule->count, regs)) return;
  OPR_reject_pc(ir, regs, rule->count);
  if (rule->rd_rm == rd_rm_rule::LONG && regs[0] == regs[1])
    warn(ir->line, "W0000", "Destination register operands RdLo and RdHi should not be the same");
  warn_rd_rm(ir, rule->rd_rm, regs);
}

}  // namespace

void encode_mul(instruct *ir) { encode_by_rule(ir); }
void encode_mull(instruct *ir) { encode_by_rule(ir); }
void encode_fixpt(instruct *ir) { encode_by_rule(ir); }
void encode_smul(instruct *ir) { encode_by_rule(ir); }
