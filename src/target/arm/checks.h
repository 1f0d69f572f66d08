#pragma once
// Small checks the encoders call: each reports one message and returns, so
// the instruction still takes its length.
#include "target/arm/instr.h"

// Architecture, "E0002".
void check_arch_v5(instruct *ir);
void check_arch_v6(instruct *ir);
void check_arch_v7(instruct *ir);
void check_arch_v7_or_m0(instruct *ir);
void check_arch_v8m33(instruct *ir);
void error_if_cortex_m(instruct *ir);
void error_if_cortex_m3(instruct *ir);
void error_if_cortex_m4(instruct *ir);
void check_arch_neon(instruct *ir);
void error_if_vfp_sp(instruct *ir);
void error_if_no_embedded_consts(instruct *ir);
void check_arch_vfp(instruct *ir);
void check_arch_neon_vfp(instruct *ir);

// Operands, "E0004". `text` is the role's letter ("d", "n", "m", "s"). True
// when the operand passes.
bool check_op_reg(instruct *ir, const operand *op, const char *text);
bool check_op_vfp_sreg(instruct *ir, const operand *op, const char *text);
bool check_op_vfp_dreg(instruct *ir, const operand *op, const char *text);
bool check_dest_op_reg(instruct *ir, const operand *op);
void error_pc_op(instruct *ir, unsigned reg);
// "W0000" when any of the three is R15.
void warn_pc_op(instruct *ir, unsigned a, unsigned b, unsigned c);

// Silicon errata, "W5369".
void check_m3_ldrd_errata(instruct *ir, const operand *rd, const operand *address);
void check_r4_strexd_errata(instruct *ir, const operand *rt, const operand *rt2);
void check_r4_stc_ldc_errata(instruct *ir, const operand *base);
