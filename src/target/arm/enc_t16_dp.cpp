// 16-bit Thumb data processing: ADD, SUB, the ALU operations and shifts,
// CMP, MOV, CPY, the extends, the byte reversals, NOP, SWI, BKPT and CPS.
#include <cstdint>
#include <cstring>

#include "driver/diag.h"
#include "driver/records.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_t16.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"
#include "target/arm/trg.h"

namespace {

// Top bits of the forms, placed in the halfword.
constexpr uint32_t ADD_IMM8 = 6u << 11;       // ADD Rd, #imm8
constexpr uint32_t SUB_IMM8 = 7u << 11;       // SUB Rd, #imm8
constexpr uint32_t ADD_SP_IMM7 = 0xB000;      // ADD SP, #+-imm7*4
constexpr uint32_t ADD_HI = 0x4400;           // ADD Rd, Rs with high registers
constexpr uint32_t ADD_PC_SP = 0xA000;        // ADD Rd, PC/SP, #imm8*4; bit 11 for SP
constexpr uint32_t ADD_REG3 = 12u << 9;       // ADD Rd, Rs, Rn
constexpr uint32_t SUB_REG3 = 13u << 9;
constexpr uint32_t ADD_IMM3 = 14u << 9;       // ADD Rd, Rs, #imm3
constexpr uint32_t SUB_IMM3 = 15u << 9;
constexpr uint32_t CMP_LOW = 0x10Au << 6;     // CMP Rd, Rs
constexpr uint32_t CMP_HI = 0x4500;
constexpr uint32_t CMP_IMM8 = 5u << 11;
constexpr uint32_t MOV_LOW = 0x70u << 6;      // ADD Rd, Rs, #0: sets the flags
constexpr uint32_t MOV_HI = 0x4600;           // also CPY
constexpr uint32_t MOV_IMM8 = 4u << 11;
constexpr uint32_t NOP_HINT = 0xBF00;
constexpr uint32_t NOP_MOV_R8 = 0x46C0;

constexpr const char *RD_HI = "Register Rd cannot be a hi register";
constexpr const char *DEST_RD_HI = "Destination register Rd cannot be a hi register";
constexpr const char *RS_HI = "Register Rs cannot be a hi register";
constexpr const char *RN_HI = "Register Rn cannot be a hi register";

// Modifiers written on ADD and SUB operands are ignored with a warning; the
// field checks behind then see none.
void drop_modifiers(instruct *ir) {
  for (int i = 0; i < 3; ++i) {
    operand *op = ia_op(ir, i);
    if (!op || !op->op_mods) continue;
    warn(ir->line, "W0000", i < 2 ? "Operand modifiers ignored" : "Operand modifier(s) ignored");
    op->op_mods = 0;
  }
}

bool is_illegal_reg(instruct *ir, const operand *op) {
  if (T16_is_reg(op)) return false;
  error(ir->line, "E0004", "Illegal operand");
  return true;
}

// An immediate operand is an OP_ICON; the encoding of anything else would
// only add messages about the other operands.
bool is_illegal_imm(instruct *ir, const operand *op) {
  if (op->kind == OP_ICON) return false;
  error(ir->line, "E0004", "Illegal operand");
  return true;
}

// The high-register forms: Rd's low bits at 0 and high bit at 7, Rs's at 3 and 6.
void put_hi_pair(instruct *ir, uint32_t base, const operand *rd, const operand *rs) {
  ENC_set(ir, base);
  T16_put_split_reg(ir, rd->op_reg, 0, 7);
  T16_put_split_reg(ir, rs->op_reg, 3, 6);
}

// Rd, Rs, and Rn or a three-bit immediate: the three-operand ADD and SUB.
void put_three(instruct *ir, uint32_t reg_form, uint32_t imm_form, operand *rs, operand *x) {
  if (T16_low_reg(ir, rs, RS_HI)) ENC_put(ir, 3, 3, rs->op_reg);
  if (T16_is_reg(x)) {
    ENC_set(ir, reg_form);
    if (T16_low_reg(ir, x, RN_HI)) ENC_put(ir, 6, 3, x->op_reg);
  } else {
    ENC_set(ir, imm_form);
    T16_unsigned_field(ir, x, 6, 3);
  }
}

// ADD SP, #imm: the sign at bit 7 and the magnitude in words.
void add_sp_immediate(instruct *ir, const operand *x) {
  ENC_set(ir, ADD_SP_IMM7);
  if (x->kind != OP_ICON) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  const int64_t v = ENC_value(x);
  const int64_t magnitude = v < 0 ? -v : v;
  if (magnitude % 4) {
    error(ir->line, "E0200", "Immediate value must be word aligned");
    return;
  }
  if (magnitude >= 512) {
    error(ir->line, "E0200", "Offset out of range, must be |offset|<512");
    return;
  }
  ENC_put(ir, 7, 1, v < 0 ? 1 : 0);
  ENC_put(ir, 0, 7, static_cast<uint32_t>(magnitude / 4));
}

bool is_row(const instruct *ir, const char *name) { return std::strcmp(ia_row(ir)->name, name) == 0; }

// The shift type at 11 and the amount in five bits at 6; LSR and ASR take 1
// to 32, with 32 written as 0.
void put_shift(instruct *ir, uint32_t type, int64_t n, uint16_t mods) {
  ENC_put(ir, 11, 2, type);
  if (type != SHIFT_LSL) {
    if (n == 0) {
      error(ir->line, "E0004", "%s Shift count must lie between 1 and 32", type == SHIFT_LSR ? "LSR" : "ASR");
      return;
    }
    if (n == 32) n = 0;
  }
  T16_unsigned_field(ir, T16_icon(n, mods), 6, 5);
}

// LSL, LSR, ASR by an immediate: the register form's opcode (2, 3, 4 in
// bits 6 to 9) less 2 is the shift type of the immediate form. It is read
// from the row: a trial encoding writes no bits to read back.
void shift_immediate(instruct *ir, const operand *amount) {
  const uint32_t type = ((ia_opcode(ir) >> 6) & 0xF) - 2;
  ENC_clear(ir, 1u << 14);
  if (amount->kind != OP_ICON) {
    ENC_put(ir, 11, 2, type);
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  put_shift(ir, type, ENC_value(amount), amount->op_mods);
}

// MOV Rd, Rm, LSL/LSR/ASR #n: the unified shift names read as a MOV reach the
// 16-bit slot this way (with .N); it is the shift-by-immediate form.
void mov_shifted(instruct *ir, const operand *rd, const operand *rm) {
  if (T16_low_reg(ir, rd, DEST_RD_HI)) ENC_put(ir, 0, 3, rd->op_reg);
  if (rm->op_reg > 7)
    error(ir->line, "E0004", "%s", RS_HI);
  else
    ENC_put(ir, 3, 3, rm->op_reg);
  put_shift(ir, rm->op_shift, ENC_value(rm), rm->op_mods);
}

constexpr char CPS_LETTERS[] = "FIA";   // bits 0, 1, 2
constexpr unsigned CPS_MAX_FLAGS = 3;

}  // namespace

void encode_t_add(instruct *ir) {
  operand *rd = ia_op(ir, 0);
  operand *rs = ia_op(ir, 1);
  operand *x = ia_op(ir, 2);
  drop_modifiers(ir);
  if (is_illegal_reg(ir, rd)) return;
  if (!x) {
    if (T16_is_reg(rs)) {
      if (rd->op_reg < 8 && rs->op_reg < 8 && !arm_arch_types.is_t2_capable())
        error(ir->line, "E0004", "One of register Rd or Rs must be a hi register");
      put_hi_pair(ir, ADD_HI, rd, rs);
    } else if (rd->op_reg == REG_SP) {
      add_sp_immediate(ir, rs);
    } else if (!is_illegal_imm(ir, rs)) {
      ENC_set(ir, ADD_IMM8);
      if (T16_low_reg(ir, rd, RD_HI)) ENC_put(ir, 8, 3, rd->op_reg);
      T16_unsigned_field(ir, rs, 0, 8, true);
    }
    return;
  }
  if (is_illegal_reg(ir, rs)) return;
  if ((rs->op_reg == REG_PC || rs->op_reg == REG_SP) && !T16_is_reg(x)) {
    ENC_set(ir, ADD_PC_SP | (rs->op_reg == REG_SP ? 1u << 11 : 0u));
    if (T16_low_reg(ir, rd, DEST_RD_HI)) ENC_put(ir, 8, 3, rd->op_reg);
    T16_word_field(ir, x, 0, 8);
    return;
  }
  if (T16_low_reg(ir, rd, DEST_RD_HI)) ENC_put(ir, 0, 3, rd->op_reg);
  put_three(ir, ADD_REG3, ADD_IMM3, rs, x);
}

void encode_t_sub(instruct *ir) {
  operand *rd = ia_op(ir, 0);
  operand *rs = ia_op(ir, 1);
  operand *x = ia_op(ir, 2);
  drop_modifiers(ir);
  if (!x) {
    if (is_illegal_imm(ir, rs)) return;
    ENC_set(ir, SUB_IMM8);
    if (T16_low_reg(ir, rd, RD_HI)) ENC_put(ir, 8, 3, rd->op_reg);
    T16_unsigned_field(ir, rs, 0, 8, true);
    return;
  }
  if (T16_low_reg(ir, rd, DEST_RD_HI)) ENC_put(ir, 0, 3, rd->op_reg);
  put_three(ir, SUB_REG3, SUB_IMM3, rs, x);
}

void encode_t_alu(instruct *ir) {
  const inst_class *cls = ia_class(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rs = ia_op(ir, 1);
  const operand *x = cls->ic_max_ops > 2 ? ia_op(ir, 2) : nullptr;
  if (T16_low_reg(ir, rd, "Destination register Rd must be a lo register")) ENC_put(ir, 0, 3, rd->op_reg);
  if (T16_low_reg(ir, rs, "Register Rs must be a lo register")) ENC_put(ir, 3, 3, rs->op_reg);
  if (x && cls == &t_rsb) {
    if (x->kind != OP_ICON || ENC_value(x) != 0) error(ir->line, "E0004", "Third operand in 16-bit RSB must be 0.");
  } else if (x) {
    shift_immediate(ir, x);
  }
  if (is_row(ir, "MUL") && !arm_arch_types.is_v5e_or_higher() && T16_is_reg(rd) && T16_is_reg(rs) &&
      rd->op_reg == rs->op_reg)
    warn(ir->line, "W0000", "Destination register operand Rd should not be the same as operand Rs");
}

void encode_t_cmp(instruct *ir) {
  const operand *rd = ia_op(ir, 0);
  operand *rs = ia_op(ir, 1);
  if (is_illegal_reg(ir, rd)) return;
  if (T16_is_reg(rs)) {
    if (rd->op_reg < 8 && rs->op_reg < 8) {
      ENC_set(ir, CMP_LOW);
      ENC_put(ir, 0, 3, rd->op_reg);
      ENC_put(ir, 3, 3, rs->op_reg);
    } else {
      put_hi_pair(ir, CMP_HI, rd, rs);
    }
    return;
  }
  if (is_illegal_imm(ir, rs)) return;
  ENC_set(ir, CMP_IMM8);
  if (T16_low_reg(ir, rd, RD_HI)) ENC_put(ir, 8, 3, rd->op_reg);
  T16_unsigned_field(ir, rs, 0, 8);
}

void encode_t_mov(instruct *ir) {
  const operand *rd = ia_op(ir, 0);
  operand *rs = ia_op(ir, 1);
  if (is_illegal_reg(ir, rd)) return;
  if (T16_is_reg(rs)) {
    if (rd->op_reg < 8 && rs->op_reg < 8) {
      ENC_set(ir, MOV_LOW);
      ENC_put(ir, 0, 3, rd->op_reg);
      ENC_put(ir, 3, 3, rs->op_reg);
      return;
    }
    // The high-register form never sets the flags.
    if (ir->ia_flags & IF_S) {
      warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
      ir->ia_flags &= ~IF_S;
    }
    put_hi_pair(ir, MOV_HI, rd, rs);
    return;
  }
  if (rs && rs->kind == OP_SHIFTREGI && rs->op_shift <= SHIFT_ASR) {
    mov_shifted(ir, rd, rs);
    return;
  }
  if (is_illegal_imm(ir, rs)) return;
  ENC_set(ir, MOV_IMM8);
  if (T16_low_reg(ir, rd, RD_HI)) ENC_put(ir, 8, 3, rd->op_reg);
  T16_unsigned_field(ir, rs, 0, 8);
}

void encode_t_cpy(instruct *ir) {
  check_arch_v6(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rm = ia_op(ir, 1);
  if (is_illegal_reg(ir, rd) || is_illegal_reg(ir, rm)) return;
  put_hi_pair(ir, MOV_HI, rd, rm);
}

void encode_t_mext(instruct *ir) {
  check_arch_v6(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rm = ia_op(ir, 1);
  if (T16_low_reg(ir, rd, "Destination register Rd must be a low numbered register")) ENC_put(ir, 0, 3, rd->op_reg);
  if (T16_low_reg(ir, rm, "Registerd Rm must be a low numbered register")) ENC_put(ir, 3, 3, rm->op_reg);
}

void encode_t_dp(instruct *ir) {
  check_arch_v6(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rm = ia_op(ir, 1);
  if (T16_low_reg(ir, rd, RD_HI)) ENC_put(ir, 0, 3, rd->op_reg);
  if (T16_low_reg(ir, rm, "Register Rm cannot be a hi register")) ENC_put(ir, 3, 3, rm->op_reg);
}

void encode_t_nop(instruct *ir) {
  // The hint exists only where Thumb-2 does; elsewhere MOV R8, R8.
  const bool hint = arm_arch_types.is_t2_capable() && cur_state == STATE_THUMB2;
  ENC_set(ir, hint ? NOP_HINT : NOP_MOV_R8);
}

void encode_t_swi(instruct *ir) {
  if (is_row(ir, "BKPT")) check_arch_v5(ir);
  const operand *op = ia_op(ir, 0);
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "Comment field value must be an absolute constant");
    return;
  }
  auto value = static_cast<uint32_t>(ENC_value(op));
  if (value > 0xFF) {
    warn(ir->line, "W0002", "Comment field value truncated");
    value &= 0xFF;
  }
  ENC_put(ir, 0, 8, value);
}

void encode_t_cps(instruct *ir) {
  const operand *op = ia_op(ir, 0);
  if (op->kind != OP_CPSFLAGS) {
    error(ir->line, "E0004", "Invalid operand type for CPS.");
    return;
  }
  unsigned count = 0;
  for (const char *p = op->value.v_str ? op->value.v_str : ""; *p; ++p, ++count) {
    if (count == CPS_MAX_FLAGS) {
      error(ir->line, "E0003", "Unexpected trailing operand(s).");
      return;
    }
    const char upper = *p >= 'a' && *p <= 'z' ? static_cast<char>(*p - 'a' + 'A') : *p;
    const char *found = std::strchr(CPS_LETTERS, upper);
    if (!found || upper == '\0') {
      error(ir->line, "E0004", "Illegal flag specified: %c", *p);
      return;
    }
    if (upper == 'A' && arm_arch_types.is_cortex_m()) {
      error(ir->line, "E0004", "Flag 'A' is not allowed in Cortex-M.");
      continue;
    }
    ENC_put(ir, static_cast<unsigned>(found - CPS_LETTERS), 1, 1);
  }
}
