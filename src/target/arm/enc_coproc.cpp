// Coprocessor instructions: data operations (CDP), loads and stores (LDC,
// STC) and register transfers (MRC, MCR, MRRC, MCRR), with their "2" forms.
// The Thumb-2 slot uses the same classes: its fields lie where ARM has them.
#include <cstdlib>

#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_ldst.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// The unconditional "2" classes are v5 instructions.
constexpr const inst_class *V5_CLASSES[] = {&arm_cdp2, &arm_cdp_xfer2, &arm_cpr_xfer2};

// Set in MRC, MCR (and their "2" forms), clear in MRRC, MCRR.
constexpr uint32_t SINGLE_REG_TRANSFER = 1u << 25;

constexpr uint32_t LONG_TRANSFER = 1u << 22;   // the L of LDCL, STCL

// An immediate field of an operation; a value wider than the field is cut
// with a warning.
struct imm_field {
  unsigned bit;
  unsigned width;
  const char *not_constant;
  const char *truncated;
};

constexpr const char CDP_OPCODE_NOT_CONSTANT[] = "Coprocessor operation code must be an absolute constant";
constexpr const char CDP_OPCODE_TRUNCATED[] = "Coprocessor operation code value truncated";
constexpr imm_field CDP_OPCODE{20, 4, CDP_OPCODE_NOT_CONSTANT, CDP_OPCODE_TRUNCATED};
constexpr imm_field MRC_OPCODE{21, 3, CDP_OPCODE_NOT_CONSTANT, CDP_OPCODE_TRUNCATED};
constexpr imm_field MCRR_OPCODE{4, 4, CDP_OPCODE_NOT_CONSTANT, CDP_OPCODE_TRUNCATED};
constexpr imm_field CDP_INFO{5, 3, "Coprocessor information field must be an absolute constant",
                             "Coprocessor information field value truncated"};

// A register operand of a given kind at a given place, with the words that
// refuse another kind.
struct reg_field {
  uint16_t kind;
  unsigned bit;
  const char *wrong_kind;
};

constexpr reg_field CDP_CD{OP_CPREG, 12, "Destination operand Cd must be a coprocessor register"};
constexpr reg_field CDP_CN{OP_CPREG, 16, "Fourth operand, Cn, must be a coprocessor register"};
constexpr reg_field CDP_CM{OP_CPREG, 0, "Fifth operand, Cm, must be a coprocessor register"};
constexpr reg_field MRC_RD{OP_REGISTER, 12, "Destination operand Rd must be a register"};
constexpr reg_field MCRR_RN{OP_REGISTER, 16, "Fourth operand, Rn, must be a core register"};
constexpr reg_field LDC_CD{OP_CPREG, 12, "Second operand, Cd, must be a coprocessor register"};

// Operand lists of the register-operand forms after the coprocessor number
// and the operation code.
constexpr reg_field CDP_REGS[] = {CDP_CD, CDP_CN, CDP_CM};
constexpr reg_field MRC_REGS[] = {MRC_RD, CDP_CN, CDP_CM};
constexpr reg_field MCRR_REGS[] = {MRC_RD, MCRR_RN, CDP_CM};

void check_arch(instruct *ir) {
  for (const inst_class *cls : V5_CLASSES)
    if (ia_class(ir) == cls) {
      check_arch_v5(ir);
      return;
    }
}

bool put_coprocessor(instruct *ir) {
  const operand *cp = ia_op(ir, 0);
  if (cp->kind != OP_CPID) {
    error(ir->line, "E0004", "First operand must be a valid coprocessor number");
    return false;
  }
  ENC_put(ir, 8, 4, static_cast<uint32_t>(ENC_value(cp)) & 0xF);
  return true;
}

void put_imm(instruct *ir, const operand *op, const imm_field &field) {
  if (op->kind != OP_ICON) {
    error(ir->line, "E0004", "%s", field.not_constant);
    return;
  }
  const uint64_t value = static_cast<uint64_t>(ENC_value(op));
  const uint64_t limit = (uint64_t{1} << field.width) - 1;
  if (value > limit) warn(ir->line, "W0002", "%s", field.truncated);
  ENC_put(ir, field.bit, field.width, static_cast<uint32_t>(value & limit));
}

// A coprocessor register keeps its number in the low four bits.
bool put_reg(instruct *ir, const operand *op, const reg_field &field) {
  if (op->kind != field.kind) {
    error(ir->line, "E0004", "%s", field.wrong_kind);
    return false;
  }
  ENC_put(ir, field.bit, 4, op->op_reg & 0xFu);
  return true;
}

// coprocessor, #opcode, three registers, and an optional #information.
void put_operation(instruct *ir, const imm_field &opcode, const reg_field (&regs)[3], bool has_info) {
  if (!put_coprocessor(ir)) return;
  put_imm(ir, ia_op(ir, 1), opcode);
  for (int i = 0; i < 3; ++i) put_reg(ir, ia_op(ir, 2 + i), regs[i]);
  if (const operand *info = ia_op(ir, 5)) {
    if (has_info)
      put_imm(ir, info, CDP_INFO);
    else
      error(ir->line, "E0003", "Unexpected trailing operand(s)");
  }
}

// [Rn, #e]{!} and [Rn], #e: a word offset in eight bits.
void put_imm_address(instruct *ir, const operand *addr) {
  const bool pre = addr->kind == OP_INDPREE;
  const bool writeback = LDST_writes_back(addr);
  // The post-indexed form always writes back; without W it would be another
  // instruction.
  ENC_set(ir, (pre ? LDST_P : 0) | (writeback ? LDST_W : 0));
  LDST_put_base(ir, addr, writeback);
  int32_t offset = LDST_imm_offset(ir, addr, 4095);
  if (offset % 4 != 0) warn(ir->line, "W0002", "Offset is not on a word boundary");
  if (std::abs(offset) > 1023) {
    error(ir->line, "E0200", "Offset out of range, must be [-1023,1023]");
    offset = 0;
  }
  LDST_put_sign(ir, addr, offset);
  ENC_put(ir, 0, 8, static_cast<uint32_t>(std::abs(offset) / 4));
}

void put_transfer_address(instruct *ir, operand *addr) {
  switch (addr->kind) {
    case OP_INDIRECT:
      if (addr->op_mods) warn(ir->line, "W0000", "Operand modifiers ignored");
      ENC_set(ir, LDST_P | LDST_U);
      LDST_put_base(ir, addr, false);
      break;
    case OP_INDPREE:
    case OP_INDPOSTE:
      put_imm_address(ir, addr);
      break;
    case OP_INDOPT: {
      // [Rn], {option}: unindexed, eight bits for the coprocessor.
      ENC_set(ir, LDST_U);
      LDST_put_base(ir, addr, false);
      const int64_t option = ENC_value(addr);
      if (option < 0 || option > 255)
        error(ir->line, "E0200", "Offset out of range, must be [0,255]");
      else
        ENC_put(ir, 0, 8, static_cast<uint32_t>(option));
      break;
    }
    case OP_SYMBOL:
    case OP_ICON: {
      bool up = false;
      const uint32_t words = compute_offset8pm(ir, addr, &up);
      ENC_set(ir, LDST_P | (up ? LDST_U : 0));
      ENC_put(ir, 16, 4, REG_PC);
      ENC_put(ir, 0, 8, words);
      operand pc_base{};
      pc_base.op_reg = REG_PC;
      check_r4_stc_ldc_errata(ir, &pc_base);
      return;
    }
    default:
      error(ir->line, "E0004", "Illegal operand");
      return;
  }
  check_r4_stc_ldc_errata(ir, addr);
}

}  // namespace

// CDP, CDP2: coprocessor, #opcode1, Cd, Cn, Cm{, #opcode2}.
void encode_cdp(instruct *ir) {
  check_arch(ir);
  put_operation(ir, CDP_OPCODE, CDP_REGS, true);
}

// LDC, STC and their L and 2 forms: coprocessor, Cd, address.
void encode_cdp_xfer(instruct *ir) {
  check_arch(ir);
  // The common modifier step writes L in ARM state only.
  if (encode_state == STATE_THUMB2 && (ir->ia_flags & IF_L)) ENC_set(ir, LONG_TRANSFER);
  if (!put_coprocessor(ir)) return;
  if (!put_reg(ir, ia_op(ir, 1), LDC_CD)) return;
  put_transfer_address(ir, ia_op(ir, 2));
}

// MRC, MCR: coprocessor, #opcode1, Rd, Cn, Cm{, #opcode2}.
// MRRC, MCRR: coprocessor, #opcode, Rd, Rn, Cm.
void encode_cpr_xfer(instruct *ir) {
  const bool single = (ia_opcode(ir) & SINGLE_REG_TRANSFER) != 0;
  if (single)
    check_arch(ir);
  else
    check_arch_v5(ir);
  if (single)
    put_operation(ir, MRC_OPCODE, MRC_REGS, true);
  else
    put_operation(ir, MCRR_OPCODE, MCRR_REGS, false);
}
