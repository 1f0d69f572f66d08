// Unified floating-point statements that are scalar VFP operations take the
// older VFP row and its encoder; the rest stay with the NEON encoder.
#include "target/arm/simd_vfp.h"

#include <cstring>

#include "driver/diag.h"
#include "driver/pipeline.h"
#include "driver/records.h"
#include "expr/fval.h"
#include "expr/value.h"
#include "target/arm/instr.h"

std::multimap<std::string_view, simd_vfp_entry> simd_name_table;

namespace {

const mnemonic_row *mnemonic_by_name(const char *name) {
  for (const mnemonic_row *row = trg_mnemonics; row->name; ++row)
    if (std::strcmp(row->name, name) == 0) return row;
  return nullptr;
}

// A suffix lies in a row's slot, or both have no size (an absent suffix
// against a slot that wants none).
bool slot_matches(const simd_suffix &suffix, const simd_type_slot &slot) {
  if ((suffix.type & slot.types) && (suffix.size & slot.sizes)) return true;
  return suffix.size == 0 && slot.sizes == 0;
}

bool row_matches(const simd_name_translation &row, const uint16_t kinds[4]) {
  for (int i = 0; i < 4; ++i)
    if (row.op_kinds[i] != kinds[i]) return false;
  for (int i = 0; i < 3; ++i)
    if (!slot_matches(cur_suffixes.types[i], row.slot[i])) return false;
  return true;
}

// Removes operand n; the operands behind it move up one place.
void drop_operand(instruct *ir, int n) {
  IR_free_oprnd(ir->oprnds[n]);
  for (int i = n; i + 1 < IR_MAX_SLOTS; ++i) ir->oprnds[i] = ir->oprnds[i + 1];
  ir->oprnds[IR_MAX_SLOTS - 1] = nullptr;
}

bool is_vfp_register(const operand *op) { return op && (op->kind == OP_SREG || op->kind == OP_DREG); }

}  // namespace

void simd_vfp_init() {
  if (!simd_name_table.empty()) return;
  // multimap keeps equal keys in insertion order, so a name's rows stay in
  // table order.
  for (const simd_name_translation *row = simd_to_vfp_mnemonics; row->simd_name; ++row)
    simd_name_table.emplace(row->simd_name, simd_vfp_entry{row, mnemonic_by_name(row->vfp_name)});
}

bool simd_to_vfp_rewrite(instruct *ir) {
  const mnemonic_row *row = ia_row(ir);
  if (!row || !row->name) return false;
  if (simd_name_table.empty()) simd_vfp_init();  // a tool that skipped the start-up
  auto [first, last] = simd_name_table.equal_range(row->name);
  if (first == last) return false;

  uint16_t kinds[4] = {};
  for (int i = 0; i < IR_MAX_SLOTS; ++i) {
    const operand *op = ir->oprnds[i];
    if (!op) continue;
    if (i >= 4) return false;
    // A scalar (D0[1]) is no VFP register operand: NEON judges it.
    if (op->kind == OP_DREG && op->op_lane != -2) return false;
    kinds[i] = op->kind;
  }
  for (auto it = first; it != last; ++it) {
    const simd_vfp_entry &entry = it->second;
    if (!row_matches(*entry.row, kinds)) continue;
    if (!entry.vfp_row || !entry.vfp_row->slot[encode_state].cls) continue;
    ir->record = entry.vfp_row;
    if (entry.row->fixup) entry.row->fixup(ir);
    return true;
  }
  return false;
}

void simd_vfp_fix_reg_pair(instruct *ir) {
  // The two S registers are the first two operands (FMSRR) or the last two
  // (FMRRS); they become one list, as the VFP row takes them.
  const int n = ir->oprnds[0] && ir->oprnds[0]->kind == OP_SREG ? 0 : 2;
  operand *a = ir->oprnds[n];
  operand *b = ir->oprnds[n + 1];
  if (!a || !b) return;
  if (a->op_reg > b->op_reg) error(ir->line, "E0004", "Illegal SIMD operands");
  const uint32_t mask = (1u << (a->op_reg & 31)) | (1u << (b->op_reg & 31));
  a->kind = OP_REGLIST;
  a->value.v_type = VT_ICON;
  a->value.v_val = xi_from_uint(mask);
  a->op_reg2 = b->op_reg;
  a->op_lane = -2;
  drop_operand(ir, n + 1);
}

void simd_vfp_fix_copy(instruct *ir) { ir->ia_flags &= ~(IF_FLT_IMM | IF_FLT64_IMM); }

void simd_vfp_fix_compare(instruct *ir) {
  operand *op = ir->oprnds[1];
  if (!op) return;
  if (is_vfp_register(op)) {
    ir->ia_flags &= ~IF_FLT_IMM;
    return;
  }
  bool zero = false;
  if (op->kind == OP_ICON) zero = op->value.v_val.is_zero();
  else if (op->kind == OP_FCON) zero = op->value.v_fval && f_iszero(op->value.v_fval);
  if (!zero) error(ir->line, "E0004", "Immediate value must be #0.0");
  drop_operand(ir, 1);
}

void simd_vfp_fix_fixed_point(instruct *ir) {
  const operand *a = ir->oprnds[0];
  const operand *b = ir->oprnds[1];
  if (!a || !b) return;
  if (a->kind != b->kind || a->op_reg != b->op_reg)
    error(ir->line, "E0004", "Illegal operands, must be the same register");
  drop_operand(ir, 1);
}
