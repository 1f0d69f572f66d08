// 16-bit Thumb branches: B, B<cond>, BL, BLX, BX, the pseudo-branches BR, BT,
// BQ and CRET, and the long forms that jump expansion gives a branch whose
// target is out of reach: a skip over the rest on the inverted condition, then
// an unconditional branch or a branch with link.
#include <cstdint>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/records.h"
#include "expr/reloc.h"
#include "ofe/of_reloc_type.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/enc_t16.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"
#include "target/arm/jumps.h"
#include "target/arm/trg.h"

namespace {

// Shapes of the classes: a branch to a label, and a register operand.
constexpr uint32_t SHAPE_LABEL = 0x280004;
constexpr uint32_t SHAPE_REGISTER = 0x40A142;

constexpr uint32_t B_COND = 0xD000;        // condition at 8, 8-bit offset
constexpr uint32_t B_UNCOND = 0xE000;      // 11-bit offset
constexpr uint32_t BLX_REG_TOP9 = 0x8F;    // BLX Rm, bits 7 to 15
constexpr uint32_t NS_BIT = 1u << 2;
constexpr uint16_t NOP_MOV_R8 = 0x46C0;
constexpr unsigned COND_FIELD_BITS = 8, UNCOND_FIELD_BITS = 11, LINK_FIELD_BITS = 22;

constexpr uint32_t BR_CALL = 1, BR_RETURN = 2, BR_CRET = 3, BR_LOAD_PC = 5;
constexpr unsigned IC_T_CRET = 116;

// How a statement reads: `conditional` when a condition was written (its
// length came from a conditional jump record), `cond_valid` when it is one of
// EQ to LE and can be encoded.
struct branch_kind {
  bool conditional;
  bool cond_valid;
};

branch_kind kind_of(instruct *ir) {
  branch_kind k{(ir->ia_flags & IF_COND) != 0, false};
  if (!k.conditional) return k;
  if (ir->ia_cond >= COND_AL) {
    // No 16-bit branch encodes AL or NV: the branch is taken always.
    warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
    ir->ia_cond = COND_AL;
    return k;
  }
  k.cond_valid = true;
  return k;
}

// The offset field of `width` bits for the part of the statement that lies
// `at` bytes after its start: the chained target when jump expansion chose
// one (counted from the start), else the branch field of the operand.
void put_offset(instruct *ir, operand *op, uint32_t start, unsigned at, unsigned width, const int *chained) {
  int32_t offset = 0;
  if (chained) {
    operand *shifted = T16_icon((static_cast<int64_t>(*chained) - at / 2) * 2);
    offset = static_cast<int32_t>(ENC_range(ir, shifted, 1, width, true));
  } else {
    offset = T16_branch_field(ir, op, start + at, width, 0);
  }
  ENC_put(ir, 0, width, static_cast<uint32_t>(offset) & ((1u << width) - 1));
}

// A branch with link in two halfwords `at` bytes after the start; the second
// halfword stays in the statement. The relocation goes on the first. A call
// is always relocated; the long form of a pseudo-branch (`jump`) only when its
// target lies outside the section: a local label isn't marked as Thumb code,
// and the linker would make the pair a call into ARM state.
void link_pair(instruct *ir, operand *op, uint32_t start, unsigned at, bool exchange, const int *chained,
               bool jump = false) {
  int32_t offset = 0;
  if (chained) {
    operand *shifted = T16_icon((static_cast<int64_t>(*chained) - at / 2) * 2);
    offset = static_cast<int32_t>(ENC_range(ir, shifted, 1, LINK_FIELD_BITS, true));
  } else {
    const bool relocated = !jump || OPND_requires_reloc(op);
    offset = T16_branch_field(ir, op, start + at, LINK_FIELD_BITS, relocated ? uint32_t{OFE::OFR_ARM_THM_CALL} : 0u);
  }
  uint16_t halves[2];
  T16_link_halves(offset, exchange, halves);
  T16_emit_leading_half(ir, halves[0]);
  ENC_set(ir, halves[1]);
}

// B, B<cond>, BQ and the pseudo-branches by their length. `link_forms`: the
// pseudo-branches, whose unconditional 4-byte form and 6-byte tail are a
// branch with link.
void branch_by_length(instruct *ir, operand *op, bool link_forms) {
  const branch_kind k = kind_of(ir);
  const uint32_t start = SCN_address();
  int chain = 0;
  const int *chained = chained_branch(ia_class(ir)->ic_id, &chain) ? &chain : nullptr;
  if (instlen <= 2) {
    if (k.cond_valid) {
      ENC_set(ir, B_COND);
      ENC_put(ir, 8, 4, ir->ia_cond);
      put_offset(ir, op, start, 0, COND_FIELD_BITS, chained);
    } else {
      ENC_set(ir, B_UNCOND);
      put_offset(ir, op, start, 0, UNCOND_FIELD_BITS, chained);
    }
    return;
  }
  if (link_forms && !k.conditional && instlen == 4) {
    link_pair(ir, op, start, 0, false, chained, true);
    return;
  }
  // The first halfword jumps over the rest on the inverted condition; with
  // AL written there is nothing to skip on, and it does nothing.
  T16_emit_leading_half(ir, k.cond_valid ? T16_skip_half(ir->ia_cond, instlen) : NOP_MOV_R8);
  if (link_forms && instlen >= 6) {
    link_pair(ir, op, start, 2, false, chained, true);
    return;
  }
  ENC_set(ir, B_UNCOND);
  put_offset(ir, op, start, 2, UNCOND_FIELD_BITS, chained);
}

// BX Rm, BLX Rm, BXNS, BLXNS.
void register_branch(instruct *ir, const operand *rm) {
  if (rm->op_mods) warn(ir->line, "W0000", "Operand modifiers ignored");
  if (ir->ia_flags & IF_COND) {
    warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
    ir->ia_flags &= ~IF_COND;
  }
  if (arm_arch_types.is_v5e_or_higher() && (ir->ia_flags & IF_X)) ENC_put(ir, 7, 9, BLX_REG_TOP9);
  ENC_put(ir, 3, 4, rm->op_reg);
  if (ir->ia_flags & IF_NS) ENC_set(ir, NS_BIT);
  if (rm->op_reg == REG_LR) br_type = BR_RETURN;
  else if (rm->op_reg != REG_PC) br_type = BR_LOAD_PC;
}

}  // namespace

void encode_t_b(instruct *ir) {
  operand *op = ia_op(ir, 0);
  const inst_class *cls = ia_class(ir);
  const uint32_t f = ir->ia_flags;
  if ((f & IF_X) && op->kind != OP_REGISTER) error_if_cortex_m(ir);
  if (op->kind == OP_REGISTER && (cls->ic_shape & SHAPE_REGISTER)) {
    // A register needs BX, or the exchange of BLX.
    if ((cls->ic_shape & SHAPE_LABEL) && !(f & IF_X)) {
      error(ir->line, "E0004", "Operand must be a label");
      return;
    }
    register_branch(ir, op);
    return;
  }
  if (!(cls->ic_shape & SHAPE_LABEL)) {
    error(ir->line, "E0004", "Operand must be a register");
    return;
  }
  if ((f & IF_LINK) && instlen >= 4) {
    if (f & IF_COND) {
      warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
      ir->ia_flags &= ~IF_COND;
    }
    link_pair(ir, op, SCN_address(), 0, (f & IF_X) != 0, nullptr);
    br_type |= BR_CALL;
    return;
  }
  branch_by_length(ir, op, false);
}

void encode_t_br(instruct *ir) {
  if (ia_class(ir)->ic_id == IC_T_CRET) br_type = BR_CRET;
  branch_by_length(ir, ia_op(ir, 0), true);
}
