// Register operands of the data-processing, multiply and media encoders.
#include "target/arm/enc_regs.h"

#include <cstdio>
#include <cstring>

#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/encode.h"

namespace {

// Reports an operand that is no core register in its role's words.
void report_not_reg(instruct *ir, const operand *op, reg_role role) {
  switch (role) {
    case reg_role::RD: check_dest_op_reg(ir, op); break;
    case reg_role::RN: check_op_reg(ir, op, "n"); break;
    case reg_role::RM: check_op_reg(ir, op, "m"); break;
    case reg_role::RS: check_op_reg(ir, op, "s"); break;
    case reg_role::RACC: error(ir->line, "E0004", "Operand Racc must be a register"); break;
    case reg_role::RDLO: error(ir->line, "E0004", "Destination operand RdLo must be a register"); break;
    case reg_role::RDHI: error(ir->line, "E0004", "Destination operand RdHi must be a register"); break;
    case reg_role::RDLO_V6: error(ir->line, "E0004", "Destination operand Rdlo must be a register"); break;
    case reg_role::RDHI_V6: error(ir->line, "E0004", "Destination operand Rdhi must be a register"); break;
  }
}

}  // namespace

bool OPR_read(instruct *ir, const reg_operand *ops, unsigned count, unsigned first, unsigned regs[]) {
  bool ok = true;
  for (unsigned i = 0; i < count; ++i) {
    const operand *op = ia_op(ir, static_cast<int>(first + i));
    if (OPR_is_reg(op)) {
      regs[i] = op->op_reg;
    } else {
      regs[i] = 0;
      report_not_reg(ir, op, ops[i].role);
      ok = false;
    }
  }
  return ok;
}

void OPR_put(instruct *ir, const reg_operand *ops, unsigned count, const unsigned regs[]) {
  const bool t2 = OPR_thumb2();
  for (unsigned i = 0; i < count; ++i) {
    const uint8_t bit = t2 ? ops[i].t2_bit : ops[i].arm_bit;
    if (bit != NO_FIELD) ENC_put(ir, bit, 4, regs[i]);
  }
}

bool OPR_encode(instruct *ir, const reg_operand *ops, unsigned count, unsigned regs[]) {
  const bool ok = OPR_read(ir, ops, count, 0, regs);
  const bool t2 = OPR_thumb2();
  for (unsigned i = 0; i < count; ++i) {
    const uint8_t bit = t2 ? ops[i].t2_bit : ops[i].arm_bit;
    if (bit != NO_FIELD && OPR_is_reg(ia_op(ir, static_cast<int>(i)))) ENC_put(ir, bit, 4, regs[i]);
  }
  return ok;
}

bool OPR_reject_pc(instruct *ir, const unsigned regs[], unsigned count) {
  for (unsigned i = 0; i < count; ++i) {
    if (regs[i] == REG_PC) {
      error(ir->line, "E0004", "R15 is an invalid operand");
      return false;
    }
  }
  return true;
}

void OPR_error_pc_once(instruct *ir, const unsigned regs[], unsigned count) {
  for (unsigned i = 0; i < count; ++i) {
    if (regs[i] == REG_PC) {
      error_pc_op(ir, REG_PC);
      return;
    }
  }
}

unsigned OPR_shift_reg(const operand *op) { return static_cast<unsigned>(ENC_value(op)) & 0xFu; }

void OPR_shape_fault() { std::fputs(">> Internal Error: invalid operand combination.\n", stderr); }

const mnemonic_row *OPR_find_row(const char *name) {
  for (const mnemonic_row *row = trg_mnemonics; row->name; ++row)
    if (std::strcmp(row->name, name) == 0) return row;
  return nullptr;
}

bool OPR_row_is(const instruct *ir, const char *name) { return std::strcmp(ia_row(ir)->name, name) == 0; }
