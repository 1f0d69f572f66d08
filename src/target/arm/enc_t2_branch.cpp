// Thumb-2 branches (B, BL, BLX, conditional B, CRET), ADR, IT, CBZ/CBNZ and
// BXJ. The 32-bit words are built with the first halfword in bits 16 to 31.
#include <cstdint>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/records.h"
#include "expr/value.h"
#include "ofe/of_reloc_type.h"
#include "target/arm/checks.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"
#include "target/arm/t2_branch.h"
#include "target/arm/trg.h"

namespace {

constexpr unsigned IC_T2_CRET = 135;
// br_type values.
constexpr uint32_t BR_CALL = 1, BR_CRET = 3, BR_PC_WRITE = 5;
// Bits of the 32-bit branch word: the second halfword's 1x form, the
// unconditional (T4) form and the link bit.
constexpr uint32_t BRANCH_BASE = 1u << 15, UNCONDITIONAL = 1u << 12, LINK = 1u << 14;
// SUBW Rd, PC, #imm: the word of an ADR with a negative offset.
constexpr uint32_t SUBW_WORD = 0xF2A00000;
// ADDW and SUBW read PC as Rn.
constexpr uint32_t RN_PC = 15u << 16;
// CBNZ: the bit that tells it from CBZ.
constexpr uint32_t CBNZ_BIT = 1u << 11;
// The 16-bit NOP that pads a narrow call in a 32-bit slot.
constexpr uint32_t T16_NOP = 0xBF00;
// The pc a Thumb instruction reads is its address plus 4.
constexpr int THUMB_PC_AHEAD = 4;

// A symbolic target (a relocatable value or an expression with a
// relocation): the target is relative to the pc; a plain number is the
// offset itself.
bool is_symbolic(const operand *op) { return is_relocatable(&op->value) || op->value.v_rel; }

// The 16-bit encoder serves BLX Rm. A statement sized as 32 bits (no
// narrowing ran) keeps its length: the call is followed by a NOP.
void encode_register_call(instruct *ir) {
  const uint8_t state = encode_state;
  encode_state = STATE_THUMB16;
  IOR_clear(&ir->ior);
  IOR_write(&ir->ior, 16, 0, ia_opcode(ir) & 0xFFFF);
  class_encoder_for(ia_class(ir)->ic_id)(ir);
  encode_state = state;
  if (instlen == 4) IOR_write(&ir->ior, 32, 0, ENC_word(ir) << 16 | T16_NOP);
}

void encode_conditional(instruct *ir, operand *op) {
  if (is_symbolic(op)) {
    op->value.v_val -= xi_from_int(THUMB_PC_AHEAD);
    if (!ENC_pcrel(ir, op, SCN_address(), OFE::OFR_ARM_THM_JUMP19, 20, 0)) return;
  }
  const uint32_t v = static_cast<uint32_t>(ENC_range(ir, op, 1, 20, true));
  ENC_put(ir, 22, 4, ir->ia_cond & 0xFu);
  ENC_put(ir, 26, 1, (v >> 19) & 1u);
  ENC_put(ir, 11, 1, (v >> 18) & 1u);
  ENC_put(ir, 13, 1, (v >> 17) & 1u);
  ENC_put(ir, 16, 6, (v >> 11) & 0x3Fu);
  ENC_put(ir, 0, 11, v & 0x7FFu);
}

void encode_unconditional(instruct *ir, operand *op) {
  const uint32_t flags = ir->ia_flags;
  const bool link = flags & IF_LINK;
  // BLX to a label is the T4 word without its bit 12: the target is ARM code.
  if (!(link && (flags & IF_X))) ENC_set(ir, UNCONDITIONAL);
  if (link) ENC_set(ir, LINK);
  if (is_symbolic(op)) {
    op->value.v_val -= xi_from_int(THUMB_PC_AHEAD);
    const uint32_t reloc = link ? OFE::OFR_ARM_THM_CALL : OFE::OFR_ARM_THM_JUMP24;
    if (!ENC_pcrel(ir, op, SCN_address(), reloc, 24, 0)) return;
  }
  ENC_put_t2_branch24(ir, static_cast<uint32_t>(ENC_range(ir, op, 1, 24, true)));
  if (link) br_type |= BR_CALL;
}

// An offset to a label of the section, for the forms without a relocation:
// the distance from `pc`, with the pipeline's 4 taken off. A plain number is
// the offset itself. False after a message.
bool local_offset(instruct *ir, operand *op, uint32_t pc) {
  if (!is_symbolic(op)) return true;
  op->value.v_val -= xi_from_int(THUMB_PC_AHEAD);
  return ENC_pcrel(ir, op, pc, 0, 0, 0);
}

}  // namespace

void ENC_put_t2_branch24(instruct *ir, uint32_t offset) {
  const uint32_t s = (offset >> 23) & 1u;
  const uint32_t i1 = (offset >> 22) & 1u;
  const uint32_t i2 = (offset >> 21) & 1u;
  ENC_put(ir, 26, 1, s);
  ENC_put(ir, 13, 1, (i1 ^ 1u) ^ s);
  ENC_put(ir, 11, 1, (i2 ^ 1u) ^ s);
  ENC_put(ir, 16, 10, (offset >> 11) & 0x3FFu);
  ENC_put(ir, 0, 11, offset & 0x7FFu);
}

unsigned it_letter_count(const instruct *ir) {
  unsigned letters = 0;
  for (uint32_t g = ir->ia_flags; g; g >>= 4) ++letters;
  return letters;
}

uint32_t thumb2_get_ifte_mask(const instruct *ir) {
  // One group of four bits per letter, the first letter highest; only the
  // first three have a place in the mask.
  unsigned letters = it_letter_count(ir);
  uint32_t groups = ir->ia_flags;
  if (letters > 3) {
    groups >>= 4 * (letters - 3);
    letters = 3;
  }
  const uint32_t cond_low = ir->ia_cond & 1u;
  uint32_t mask = 0;
  for (unsigned i = 0; i < letters; ++i) {
    const uint32_t group = (groups >> (4 * (letters - 1 - i))) & 0xFu;
    const uint32_t bit = group == 1 ? cond_low : cond_low ^ 1u;
    mask |= bit << (3 - i);
  }
  return mask | (1u << (3 - letters));
}

void encode_t2_branch(instruct *ir) {
  check_arch_v7(ir);
  if (ia_class(ir)->ic_id == IC_T2_CRET) br_type = BR_CRET;
  operand *op = ia_op(ir, 0);
  const uint32_t flags = ir->ia_flags;
  if (flags & IF_X) error_if_cortex_m(ir);
  if (op->kind == OP_REGISTER) {
    if ((flags & IF_LINK) && (flags & IF_X) && !(flags & IF_WIDE)) {
      encode_register_call(ir);
      return;
    }
    error(ir->line, "E0004", "Operand must be a label");
    return;
  }
  if (op->kind != OP_SYMBOL && op->kind != OP_ICON) {
    error(ir->line, "E0004", "Operand must be a label");
    return;
  }
  ENC_set(ir, BRANCH_BASE);
  // A call has no condition field, and AL or NV would make the conditional
  // word another instruction: the branch is unconditional.
  bool conditional = flags & IF_COND;
  if (conditional && ((flags & IF_LINK) || ir->ia_cond >= COND_AL)) {
    warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
    conditional = false;
  }
  if (conditional)
    encode_conditional(ir, op);
  else
    encode_unconditional(ir, op);
}

void encode_t2_adr(instruct *ir) {
  check_arch_v7(ir);
  const operand *rd = ia_op(ir, 0);
  operand *target = ia_op(ir, 1);
  if (check_dest_op_reg(ir, rd)) {
    error_pc_op(ir, rd->op_reg);
    ENC_put(ir, 8, 4, rd->op_reg);
  }
  ENC_set(ir, RN_PC);
  if (target->kind != OP_SYMBOL) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }
  // The pc of an address is the word of the instruction.
  if (!local_offset(ir, target, SCN_address() & ~3u)) return;
  const int64_t offset = ENC_range(ir, target, 0, 13, true);
  // SUBW holds a magnitude of twelve bits: -4096 passes the signed check
  // but has no word.
  if (offset == -4096) {
    error(ir->line, "E0200", "Offset out of range, must be [-4095,4095]");
    return;
  }
  if (offset < 0) {
    ENC_clear(ir, 0xFFFFFFFFu);
    ENC_set(ir, SUBW_WORD | RN_PC);
    if (rd->kind == OP_REGISTER) ENC_put(ir, 8, 4, rd->op_reg);
  }
  const uint32_t magnitude = static_cast<uint32_t>(offset < 0 ? -offset : offset);
  ENC_put(ir, 26, 1, (magnitude >> 11) & 1u);
  ENC_put(ir, 12, 3, (magnitude >> 8) & 7u);
  ENC_put(ir, 0, 8, magnitude & 0xFFu);
}

void encode_t2_it(instruct *ir) {
  check_arch_v7(ir);
  // A block holds at most four instructions: IT and three letters.
  if (it_letter_count(ir) > 3) error(ir->line, "E0003", "Invalid modifier in If-Then (IT) instruction");
  ENC_put(ir, 4, 4, ir->ia_cond & 0xFu);
  ENC_put(ir, 0, 4, thumb2_get_ifte_mask(ir));
}

void encode_t2_czb(instruct *ir) {
  check_arch_v7(ir);
  const operand *rn = ia_op(ir, 0);
  operand *target = ia_op(ir, 1);
  if (rn->kind != OP_REGISTER || rn->op_reg > 7)
    error(ir->line, "E0004", "Register out of range.  Must be R0-R7");
  else
    ENC_put(ir, 0, 3, rn->op_reg);
  if (ir->ia_cond == COND_NE)
    ENC_set(ir, CBNZ_BIT);
  else if (ir->ia_cond != COND_EQ)
    error(ir->line, "E0004", "The condition must be EQ or NE");
  if (target->kind != OP_SYMBOL) {
    error(ir->line, "E0004", "Illegal label: must be a symbol");
    return;
  }
  if (!local_offset(ir, target, SCN_address())) return;
  const int64_t offset = ENC_value(target);
  if (offset < 0 || offset > 126 || (offset & 1)) {
    error(ir->line, "E0200", "Offset to label must be an even number in the range 0 to 126");
    return;
  }
  ENC_put(ir, 3, 5, static_cast<uint32_t>(offset >> 1) & 0x1Fu);
  ENC_put(ir, 9, 1, static_cast<uint32_t>(offset >> 6) & 1u);
}

void encode_t2_bxj(instruct *ir) {
  check_arch_v7(ir);
  error_if_cortex_m(ir);
  const operand *rm = ia_op(ir, 0);
  if (!check_op_reg(ir, rm, "m")) return;
  ENC_put(ir, 16, 4, rm->op_reg);
  if (rm->op_reg != REG_PC) br_type = BR_PC_WRITE;
}
