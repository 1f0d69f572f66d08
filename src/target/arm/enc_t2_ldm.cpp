// Thumb-2 multiple transfers: LDM, STM in their IA and DB forms, PUSH and
// POP. A list of one register has no multiple form and becomes LDR or STR.
#include <cstring>

#include "driver/diag.h"
#include "expr/expr.h"
#include "expr/int128.h"
#include "target/arm/checks.h"
#include "target/arm/enc_ldst.h"
#include "target/arm/enc_t2_ldst.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

constexpr uint32_t T2_LDR_WORD = 0xF8500000;
constexpr uint32_t T2_STR_WORD = 0xF8400000;

// Bits 24 and 23 of the base word: 01 increment after, 10 decrement before;
// the other two have no Thumb-2 encoding.
constexpr uint32_t MODE_BITS = 3u << 23;
constexpr uint32_t MODE_IA = 1u << 23;
constexpr uint32_t MODE_DB = 2u << 23;

constexpr uint32_t LIST_PC = 1u << REG_PC;
constexpr uint32_t LIST_LR = 1u << REG_LR;
constexpr uint32_t LIST_SP = 1u << REG_SP;

bool is_push_pop(const instruct *ir) {
  const char *name = ia_row(ir)->name;
  return std::strcmp(name, "PUSH") == 0 || std::strcmp(name, "POP") == 0;
}

// LDM, LDMDB and the like, and POP; the DB forms share one word with STMDB.
bool is_load(const instruct *ir) {
  const char *name = ia_row(ir)->name;
  return name[0] == 'L' || std::strcmp(name, "POP") == 0;
}

// The register of a one-register list, or -1.
int single_register(uint32_t mask) {
  if (mask == 0 || (mask & (mask - 1)) != 0) return -1;
  int reg = 0;
  while (!(mask & 1u)) {
    mask >>= 1;
    ++reg;
  }
  return reg;
}

// A one-register transfer as LDR or STR: the increment-after forms read or
// write [Rn] and step the base by 4 after it with '!'; the decrement-before
// forms use [Rn, #-4], written back with '!'. PUSH and POP always write SP back.
void convert_t2_lsm_to_lsw(instruct *ir, unsigned base, bool writeback, int reg) {
  const bool load = is_load(ir);
  const uint32_t mode = ia_opcode(ir) & MODE_BITS;
  if (mode != MODE_IA && mode != MODE_DB) {
    error_internal(0, ir->line, "Unexpected operand in LDM/STM conversion");
    return;
  }
  ENC_clear(ir, 0xFFFFFFFFu);
  ENC_set(ir, load ? T2_LDR_WORD : T2_STR_WORD);

  operand rd{};
  rd.kind = OP_REGISTER;
  rd.op_reg = static_cast<uint8_t>(reg);
  operand addr{};
  addr.op_reg = static_cast<uint8_t>(base);
  addr.op_shift = SHIFT_NONE;
  int offset = 0;
  if (mode == MODE_DB) {
    addr.kind = OP_INDPREE;
    offset = -4;
    if (writeback) addr.op_mods = MOD_WRITEBACK;
  } else if (writeback) {
    addr.kind = OP_INDPOSTE;
    offset = 4;
  } else {
    addr.kind = OP_INDIRECT;
  }
  E_clrval(&addr.value);
  XI_itox(offset, addr.value.v_val.b);
  // PC may stand in a load list; the store list was checked.
  T2_encode_transfer(ir, &rd, &addr, nullptr, false);
}

}  // namespace

// LDM, STM: Rn{!}, {list}. PUSH, POP: {list}.
void encode_t2_ldm(instruct *ir) {
  check_arch_v7(ir);
  const bool stack = is_push_pop(ir);
  const operand *list = ia_op(ir, stack ? 0 : 1);
  unsigned base = REG_SP;
  bool writeback = true;
  if (!stack) {
    const operand *rn = ia_op(ir, 0);
    if (!check_op_reg(ir, rn, "n")) return;
    error_pc_op(ir, rn->op_reg);
    base = rn->op_reg;
    writeback = (rn->op_mods & MOD_WRITEBACK) != 0;
  }
  const uint32_t mode = ia_opcode(ir) & MODE_BITS;
  if (mode != MODE_IA && mode != MODE_DB) {
    error(ir->line, "E0004", "Illegal addressing mode");
    return;
  }
  if (list->kind != OP_REGLIST || (ENC_value(list) & ~int64_t{0xFFFF}) != 0) {
    error(ir->line, "E0004", "Register list required");
    return;
  }
  if (list->op_mods & MOD_CARET) warn(ir->line, "W0000", "Invalid operand modifiers ignored");
  const uint32_t mask = static_cast<uint32_t>(ENC_value(list));
  const bool load = is_load(ir);

  if (!load && (mask & LIST_PC)) {
    if (stack)
      error(ir->line, "E0004", "PC cannot be pushed onto the stack");
    else
      error(ir->line, "E0004", "PC not allowed in STM/PUSH register list");
  }
  const int reg = single_register(mask);
  if (reg >= 0) {
    convert_t2_lsm_to_lsw(ir, base, writeback, reg);
    return;
  }
  if (load && (mask & LIST_PC) && (mask & LIST_LR))
    error(ir->line, "E0004", "Both PC and LR cannot be in the register list\n");
  if (mask & LIST_SP) error(ir->line, "E0004", "SP cannot be in the register list");

  if (load) ENC_set(ir, LDST_L);
  if (!stack) {
    if (writeback) ENC_set(ir, LDST_W);
    ENC_put(ir, 16, 4, base);
  }
  ENC_put(ir, 0, 16, mask);
  if (mask & LIST_PC) br_type = 2;
}
