// The checks the encoders call: architecture, float and NEON options, operand
// kinds, R15 rules and the named silicon errata. Each reports and returns.
#include "target/arm/checks.h"

#include <cstring>
#include <initializer_list>

#include "driver/diag.h"
#include "driver/options.h"
#include "target/arm/arch.h"
#include "target/arm/glue_pending.h"
#include "target/arm/state.h"
#include "target/arm/trg.h"

namespace {

void arch_error(instruct *ir, bool passes, const char *text) {
  if (!passes) error(ir->line, "E0002", "%s", text);
}

bool float_is_one_of(std::initializer_list<long> units) {
  const long unit = arm_float_support();
  for (long u : units)
    if (u == unit) return true;
  return false;
}

// VFPv3 instructions: the class says so in ic_allowed.
constexpr uint32_t IC_VFPV3 = 0x400000;

bool class_is_vfpv3(const instruct *ir) {
  const inst_class *cls = ia_class(ir);
  return cls && (cls->ic_allowed & IC_VFPV3);
}

}  // namespace

void check_arch_v5(instruct *ir) {
  arch_error(ir, arm_arch_types.is_v5e_or_higher(), "Instruction is only available in V5 and higher");
}
void check_arch_v6(instruct *ir) {
  arch_error(ir, arm_arch_types.is_v6_or_higher(), "Instruction is only available in V6 and higher");
}
void check_arch_v7(instruct *ir) {
  arch_error(ir, arm_arch_types.is_v7_or_higher(), "Instruction only available in V7 and higher");
}
void check_arch_v7_or_m0(instruct *ir) {
  arch_error(ir, arm_arch_types.is_v7_or_higher() || arm_arch() == ARCH_V6M0,
             "Instruction only available in V6M0 and V7 and higher");
}
void check_arch_v8m33(instruct *ir) {
  arch_error(ir, arm_arch() == ARCH_V8M33, "Instruction only available in V8M33");
}
void error_if_cortex_m(instruct *ir) {
  arch_error(ir, !arm_arch_types.is_cortex_m(), "Illegal Cortex-M instruction/directive");
}
void error_if_cortex_m3(instruct *ir) {
  arch_error(ir, arm_arch() != ARCH_V7M3, "Illegal Cortex-M3 instruction/directive");
}
void error_if_cortex_m4(instruct *ir) {
  arch_error(ir, arm_arch() != ARCH_V7M4, "Illegal Cortex-M4 instruction/directive");
}
void check_arch_neon(instruct *ir) {
  arch_error(ir, arm_neon(), "Neon instructions only available with Neon enabled");
}
void error_if_vfp_sp(instruct *ir) {
  arch_error(ir, arm_float_support() != FLOAT_FPV4SPD16, "Instruction requires double precision VFP support");
}
void error_if_no_embedded_consts(instruct *ir) {
  const bool disabled = opt_on(OPT_EMBEDDED_CONSTANTS) && global_opts->getnumarg(OPT_EMBEDDED_CONSTANTS, 0) == 12;
  arch_error(ir, !disabled, "PC-relative access violates disabling of embedded constants");
}

void check_arch_vfp(instruct *ir) {
  if (class_is_vfpv3(ir)) {
    arch_error(ir, float_is_one_of({FLOAT_VFPV3, FLOAT_VFPV3D16, FLOAT_FPV4SPD16}), "Instruction requires VFPv3 support");
    return;
  }
  const char *name = ia_row(ir)->name;
  const bool any_vfp = float_is_one_of({FLOAT_VFPV3, FLOAT_VFPV3D16, FLOAT_FPV4SPD16, FLOAT_VFPV2});
  if (std::strcmp(name, "FMXR") == 0 || std::strcmp(name, "FMRX") == 0)
    arch_error(ir, any_vfp, "Instruction requires VFP support");
  else
    arch_error(ir, any_vfp || arm_neon(), "Instruction requires VFP or NEON support");
}

void check_arch_neon_vfp(instruct *ir) {
  const bool v3 = class_is_vfpv3(ir);
  const bool ok = v3 ? float_is_one_of({FLOAT_VFPV3, FLOAT_VFPV3D16, FLOAT_FPV4SPD16})
                     : float_is_one_of({FLOAT_VFPV3, FLOAT_VFPV3D16, FLOAT_FPV4SPD16, FLOAT_VFPV2});
  if (!ok && !arm_neon()) error(ir->line, "E0002", "Instruction requires VFP%c or NEON support", v3 ? '3' : '2');
}

bool check_op_reg(instruct *ir, const operand *op, const char *text) {
  if (op && op->kind == OP_REGISTER) return true;
  error(ir->line, "E0004", "Operand R%s must be a register", text);
  return false;
}

bool check_op_vfp_sreg(instruct *ir, const operand *op, const char *text) {
  if (op && op->kind == OP_SREG) return true;
  error(ir->line, "E0004", "Operand S%s must be a single-precision VFP register", text);
  return false;
}

bool check_op_vfp_dreg(instruct *ir, const operand *op, const char *text) {
  if (!op || op->kind != OP_DREG) {
    error(ir->line, "E0004", "Operand D%s must be a double-precision VFP register", text);
    return false;
  }
  if (op->op_reg >= 16 && arm_float_support() != FLOAT_VFPV3 && !arm_neon()) {
    error(ir->line, "E0004", "Registers D16 and above only available in VFPv3");
    return false;
  }
  return true;
}

bool check_dest_op_reg(instruct *ir, const operand *op) {
  if (op && op->kind == OP_REGISTER) return true;
  error(ir->line, "E0004", "Destination operand Rd must be a register");
  return false;
}

void error_pc_op(instruct *ir, unsigned reg) {
  if (reg == REG_PC) error(ir->line, "E0004", "Specifying R15 as an operand is illegal");
}

void warn_pc_op(instruct *ir, unsigned a, unsigned b, unsigned c) {
  if (a == REG_PC || b == REG_PC || c == REG_PC)
    warn(ir->line, "W0000", "Specifying R15 as one of the operands will lead to unpredictable results");
}

void check_m3_ldrd_errata(instruct *ir, const operand *rd, const operand *address) {
  if (arm_arch() != ARCH_V7M3 || !rd || !address) return;
  if (address->kind == OP_INDPREE && !(address->op_mods & MOD_WRITEBACK) && rd->op_reg == address->op_reg)
    warn(ir->line, "W5369",
         "Cortex-M3 Errata 602117: LDRD with base in list may result in incorrect base register when "
         "interrupted or faulted");
}

void check_r4_strexd_errata(instruct *ir, const operand *rt, const operand *rt2) {
  if (arm_arch() != ARCH_V7R4 || !rt || !rt2) return;
  if (rt->op_reg == rt2->op_reg)
    warn(ir->line, "W5369",
         "Cortex-R4 Errata 577077: Thumb STREXD treated as NOP if same register used for both source operands");
}

void check_r4_stc_ldc_errata(instruct *ir, const operand *base) {
  if (arm_arch() != ARCH_V7R4 || !base || base->op_reg != REG_PC || cur_state != 2) return;
  warn(ir->line, "W5369",
       "Cortex-R4 Errata 437965: Thumb STC/LDC instruction using base register (Rn) of R15/PC must be placed at "
       "word-aligned address; processor will not force alignment");
}
