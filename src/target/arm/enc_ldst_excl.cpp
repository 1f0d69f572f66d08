// Exclusive transfers: LDREX, STREX and their byte, halfword and doubleword
// forms, in ARM state and in the Thumb-2 slot.
#include <string_view>

#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/enc_ldst.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// Register places of one encoding; a negative place means the register is
// not encoded (the second of a pair in ARM state).
struct excl_layout {
  int8_t rd;    // status result of a store
  int8_t rt;
  int8_t rt2;
};

// Indexed by [thumb2][narrow]: ARM places first, then Thumb-2; the word
// form of Thumb-2 keeps an offset at 0 and so puts a store's Rd at 8.
constexpr excl_layout LOAD_LAYOUT[2] = {{-1, 12, -1}, {-1, 12, -1}};
constexpr excl_layout STORE_LAYOUT[2][2] = {{{12, 0, -1}, {12, 0, -1}}, {{8, 12, -1}, {0, 12, -1}}};
constexpr excl_layout LOAD_PAIR_LAYOUT[2] = {{-1, 12, -1}, {-1, 12, 8}};
constexpr excl_layout STORE_PAIR_LAYOUT[2] = {{12, 0, -1}, {0, 12, 8}};

bool in_thumb2() { return encode_state == STATE_THUMB2; }

// LDREXB, LDREXH, STREXB, STREXH: a later architecture and no offset.
bool narrow_form(const instruct *ir) {
  std::string_view name = ia_row(ir)->name;
  return name.back() == 'B' || name.back() == 'H';
}

void put_reg(instruct *ir, int place, const operand *op) {
  if (place >= 0) ENC_put(ir, static_cast<unsigned>(place), 4, op->op_reg);
}

// [Rn]: the base at 16. Only the Thumb-2 word forms take an offset, a
// multiple of 4 up to 1020, stored in words at 0.
bool put_address(instruct *ir, operand *addr, bool word_offset) {
  if (!in_thumb2()) {
    if (addr->kind != OP_INDIRECT) {
      error(ir->line, "E0004", "[Rn] must be a register indirect with no offset");
      return false;
    }
  } else if (addr->kind != OP_INDIRECT && addr->kind != OP_INDPREE) {
    error(ir->line, "E0004", "[Rn] must be a register indirect");
    return false;
  }
  ENC_put(ir, 16, 4, addr->op_reg);
  if (addr->kind != OP_INDPREE) return true;
  const int64_t offset = ENC_value(addr);
  if (!word_offset) {
    if (offset != 0) error(ir->line, "E0004", "[Rn] must be a register indirect");
    return true;
  }
  if (offset & 3)
    error(ir->line, "E0200", "Immediate value must be word aligned");
  else if (offset < 0 || offset > 1020)
    error(ir->line, "E0200", "Immediate value cannot be greater than 1020");
  else
    ENC_put(ir, 0, 8, static_cast<uint32_t>(offset >> 2));
  return true;
}

void check_exclusive_arch(instruct *ir) {
  if (narrow_form(ir))
    check_arch_v7(ir);
  else
    check_arch_v6(ir);
}

void check_pair_arch(instruct *ir) {
  check_arch_v7(ir);
  error_if_cortex_m(ir);
}

}  // namespace

// LDREX{B,H} Rt, [Rn].
void encode_ldrex(instruct *ir) {
  check_exclusive_arch(ir);
  const operand *rt = ia_op(ir, 0);
  if (!check_dest_op_reg(ir, rt)) return;
  if (!put_address(ir, ia_op(ir, 1), !narrow_form(ir))) return;
  put_reg(ir, LOAD_LAYOUT[in_thumb2()].rt, rt);
}

// LDREXD Rt, Rt2, [Rn].
void encode_ldrexd(instruct *ir) {
  check_pair_arch(ir);
  const operand *rt = ia_op(ir, 0);
  const operand *rt2 = ia_op(ir, 1);
  if (!check_dest_op_reg(ir, rt) || !check_op_reg(ir, rt2, "t2")) return;
  if (!put_address(ir, ia_op(ir, 2), false)) return;
  const excl_layout &layout = LOAD_PAIR_LAYOUT[in_thumb2()];
  put_reg(ir, layout.rt, rt);
  put_reg(ir, layout.rt2, rt2);
}

// STREX{B,H} Rd, Rt, [Rn].
void encode_strex(instruct *ir) {
  check_exclusive_arch(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rt = ia_op(ir, 1);
  operand *addr = ia_op(ir, 2);
  if (!check_dest_op_reg(ir, rd) || !check_op_reg(ir, rt, "t")) return;
  if (!put_address(ir, addr, !narrow_form(ir))) return;
  if (rd->op_reg == rt->op_reg || rd->op_reg == addr->op_reg)
    error(ir->line, "W0000", "Using Rd == Rt or Rn will lead to unpredictable results");
  if (in_thumb2() && rt->op_reg == REG_PC)
    error(ir->line, "E0004", "Cannot use PC for Rt register operand in a STREX instruction");
  const excl_layout &layout = STORE_LAYOUT[in_thumb2()][narrow_form(ir)];
  put_reg(ir, layout.rd, rd);
  put_reg(ir, layout.rt, rt);
}

// STREXD Rd, Rt, Rt2, [Rn].
void encode_strexd(instruct *ir) {
  check_pair_arch(ir);
  const operand *rd = ia_op(ir, 0);
  const operand *rt = ia_op(ir, 1);
  const operand *rt2 = ia_op(ir, 2);
  operand *addr = ia_op(ir, 3);
  if (!check_dest_op_reg(ir, rd) || !check_op_reg(ir, rt, "t") || !check_op_reg(ir, rt2, "t2")) return;
  if (!put_address(ir, addr, false)) return;
  if (rd->op_reg == rt->op_reg || rd->op_reg == rt2->op_reg || rd->op_reg == addr->op_reg)
    error(ir->line, "W0000", "Using Rd == Rt, Rt2,  or Rn will lead to unpredictable results");
  check_r4_strexd_errata(ir, rt, rt2);
  const excl_layout &layout = STORE_PAIR_LAYOUT[in_thumb2()];
  put_reg(ir, layout.rd, rd);
  put_reg(ir, layout.rt, rt);
  put_reg(ir, layout.rt2, rt2);
}
