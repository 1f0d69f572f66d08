// What the parser does to a statement after its operands: the forms that
// unified syntax writes differently from the rows (shifts as statements,
// PUSH and POP, two operands for three, 16-bit folds and flag rules).
#include <cstring>
#include <string_view>

#include "driver/diag.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "source/ophash.h"
#include "target/arm/arch.h"
#include "target/arm/classes.h"
#include "target/arm/parse.h"
#include "target/arm/trg.h"

namespace {

// ic_allowed: the two sources of a Thumb operation commute.
constexpr uint32_t IC_COMMUTES = 0x80000;

constexpr const char *shift_rows[] = {"LSL", "LSR", "ASR", "ROR"};

uint16_t kind_of(const operand *op) { return op ? op->kind : uint16_t{OP_NONE}; }

bool is_named(const mnemonic_row *row, std::string_view name) { return row && name == row->name; }

void insert_operand(instruct *ir, int at, operand *op) {
  IR_free_oprnd(ir->oprnds[IR_MAX_SLOTS - 1]);
  for (int i = IR_MAX_SLOTS - 1; i > at; --i) ir->oprnds[i] = ir->oprnds[i - 1];
  ir->oprnds[at] = op;
}

void remove_operand(instruct *ir, int at) {
  IR_free_oprnd(ir->oprnds[at]);
  for (int i = at; i + 1 < IR_MAX_SLOTS; ++i) ir->oprnds[i] = ir->oprnds[i + 1];
  ir->oprnds[IR_MAX_SLOTS - 1] = nullptr;
}

// A plain core register in place of whatever the operand held.
void make_register(operand *op, uint32_t number) {
  E_freeparts(&op->value);
  E_clrval(&op->value);
  op->value.v_type = VT_REG;
  op->value.v_val = xi_from_uint(number);
  op->kind = OP_REGISTER;
  op->op_reg = op->op_reg2 = static_cast<uint8_t>(number);
  op->op_shift = SHIFT_NONE;
}

bool any_failed(const instruct *ir) {
  for (const operand *op : ir->oprnds)
    if (op && op->kind == OP_NONE) return true;
  return false;
}

// MOV Rd, Rm, <shift> Rs in the Thumb-2 slot is the shift's own statement.
void register_shift_row(instruct *ir) {
  operand *shifted = ir->oprnds[1];
  if (shifted->op_shift > SHIFT_ROR) {
    error_internal(0, ir->line, "Encountered unexpected SHIFT type");
    return;
  }
  const mnemonic_row *row = PRS_row(shift_rows[shifted->op_shift]);
  if (!row) return;
  ir->record = row;
  const uint32_t rs = shifted->value.v_val.to_u32();
  make_register(shifted, shifted->op_reg);
  IR_free_oprnd(ir->oprnds[2]);
  ir->oprnds[2] = PRS_core_register(rs);
}

// ASR, LSL, LSR, ROR, RRX written as statements reach the parser as MOV.
void shift_statement(instruct *ir, std::string_view name) {
  if (any_failed(ir)) return;  // the operand has had its message
  operand **ops = ir->oprnds;
  int count = PRS_count_operands(ir);
  if (name == "RRX") {
    if (count < 2) {
      error(ir->line, "E0003", "Insufficient number of operands");
      return;
    }
    if (ops[1]->kind != OP_REGISTER) {
      error(ir->line, "E0003", "Invalid operand");
      return;
    }
    ops[1]->kind = OP_SHIFTREGI;
    ops[1]->op_shift = SHIFT_RRX;
    E_freeparts(&ops[1]->value);
    E_clrval(&ops[1]->value);
    return;
  }
  if (count == 2) {
    insert_operand(ir, 1, duplicate_operand(ops[0]));
    count = 3;
  }
  if (count < 3) return;  // the encoder reports the missing operand
  if (ops[2]->kind == OP_REGISTER && cur_state == 2) {
    // Thumb-2 has no MOV with a register-shifted register.
    const mnemonic_row *row = PRS_row(name);
    if (!row && encode_state != STATE_THUMB2) {
      encode_state = STATE_THUMB2;
      row = PRS_row(name);
    }
    if (row) ir->record = row;
    return;
  }
  uint8_t type = SHIFT_LSL;
  for (uint8_t t = 0; t < 4; ++t)
    if (name == shift_rows[t]) type = t;
  if (ops[1]->kind != OP_REGISTER || (ops[2]->kind != OP_REGISTER && ops[2]->kind != OP_ICON)) {
    error(ir->line, "E0003", "Invalid operand");
    return;
  }
  operand *amount = ops[2];
  operand *shifted = ops[1];
  shifted->op_shift = type;
  shifted->kind = amount->kind == OP_REGISTER ? OP_SHIFTREGR : OP_SHIFTREGI;
  E_freeparts(&shifted->value);
  shifted->value = amount->value;
  amount->value = value_record{};
  remove_operand(ir, 2);
}

bool low_register_operands(const instruct *ir) {
  for (const operand *op : ir->oprnds) {
    if (!op) break;
    if (op->kind == OP_REGISTER || op->kind == OP_SHIFTREGI || op->kind == OP_SHIFTREGR) {
      if (op->op_reg > 7) return false;
      if (op->kind == OP_SHIFTREGR && op->value.v_val > 7) return false;
    }
  }
  return true;
}

bool in_it_block() { return cur_it_string[0] == 'T' || cur_it_string[0] == 'E'; }

// Three operands folded to the two of a 16-bit form.
void fold_three(instruct *ir, const inst_class *cls) {
  operand **ops = ir->oprnds;
  const bool registers = kind_of(ops[0]) == OP_REGISTER && kind_of(ops[1]) == OP_REGISTER &&
                         kind_of(ops[2]) == OP_REGISTER;
  if (cls->ic_id == 102 && ops[2]->kind != OP_REGISTER) return;
  if (cls == &t_sub && ops[2]->kind == OP_REGISTER) return;
  if (cls == &t_add && registers && (ir->ia_flags & IF_S)) return;
  if (ops[0]->kind != OP_REGISTER) return;
  if (ops[1]->kind == OP_REGISTER && ops[1]->op_reg == ops[0]->op_reg) {
    remove_operand(ir, 1);
  } else if ((cls->ic_allowed & IC_COMMUTES) && ops[2]->kind == OP_REGISTER && ops[2]->op_reg == ops[0]->op_reg) {
    remove_operand(ir, 2);
  }
}

// 16-bit data processing outside an IT block sets the flags, and inside one doesn't.
void thumb16_flag_rule(instruct *ir, const inst_class *cls) {
  const int count = PRS_count_operands(ir);
  const bool add_registers = cls == &t_add && count == 2 && kind_of(ir->oprnds[0]) == OP_REGISTER &&
                             kind_of(ir->oprnds[1]) == OP_REGISTER;
  if (cur_it_string[0] == '\0' && low_register_operands(ir) &&
      !(add_registers && arm_arch_types.is_t2_capable())) {
    const char *name = ia_row(ir)->name;
    if (!(ir->ia_flags & IF_S) && std::strncmp(name, "CMN", 3) != 0 && std::strncmp(name, "TST", 3) != 0)
      error(ir->line, "E0002", "Instruction must set status");
    ir->ia_flags &= ~IF_S;
  } else if (in_it_block() && (ir->ia_flags & IF_S)) {
    error(ir->line, "E0002", "Instruction cannot set status inside IT");
  }
}

}  // namespace

int PRS_count_operands(const instruct *ir) {
  int n = 0;
  while (n < IR_MAX_SLOTS && ir->oprnds[n]) ++n;
  return n;
}

const mnemonic_row *PRS_row(std::string_view name) {
  const ophashtbl *e = findop(name);
  return e && e->kind == OPTYPE_MNEMONIC ? e->mnemonic() : nullptr;
}

void PRS_rewrites(instruct *ir) {
  operand **ops = ir->oprnds;
  if (ual_mode && encode_state == STATE_THUMB2 && is_named(ia_row(ir), "MOV") && kind_of(ops[0]) == OP_REGISTER &&
      kind_of(ops[1]) == OP_SHIFTREGR)
    register_shift_row(ir);

  const inst_class *cls = ia_class(ir);
  if (ual_mode && arm_arch_types.is_v6_or_higher() && cls == &t_mov && !(ir->ia_flags & IF_S) &&
      kind_of(ops[0]) == OP_REGISTER && kind_of(ops[1]) == OP_REGISTER) {
    if (const mnemonic_row *cpy = PRS_row("CPY")) ir->record = cpy;
  }
  if (cls == &t_add && !ops[2] && kind_of(ops[0]) == OP_REGISTER && kind_of(ops[1]) == OP_REGISTER &&
      ops[0]->op_reg < 8 && ops[1]->op_reg < 8 && (!ual_mode || (ir->ia_flags & IF_S)))
    insert_operand(ir, 1, duplicate_operand(ops[0]));
  if (PRS_has_type_suffixes(cls)) simd_to_vfp_rewrite(ir);

  if (ual_mode && cur_ual_translation && cur_ual_translation->old_name &&
      std::strcmp(cur_ual_translation->old_name, "MOV") == 0)
    shift_statement(ir, cur_ual_translation->ual_name);
}

void PRS_unified_forms(instruct *ir) {
  operand **ops = ir->oprnds;
  if (ual_mode) {
    int count = PRS_count_operands(ir);
    if (cur_ual_translation && count == 1 &&
        (std::strcmp(cur_ual_translation->ual_name, "PUSH") == 0 ||
         std::strcmp(cur_ual_translation->ual_name, "POP") == 0)) {
      operand *sp = PRS_core_register(REG_SP);
      sp->op_mods = MOD_WRITEBACK;
      insert_operand(ir, 0, sp);
      ++count;
    }
    const inst_class *cls = ia_class(ir);
    if (cls->ic_min_ops == 3 && count == 2 &&
        (cls == &t2_dp || cls == &t2_shift || (cls == &t2_mul1 && is_named(ia_row(ir), "MUL")))) {
      insert_operand(ir, 1, duplicate_operand(ops[0]));
      ++count;
    }
    if (count == 3 && (cls == &t_alu1 || cls == &t_alu2 || cls == &t_alu3 || cls == &t_rsb || cls == &t_add ||
                       cls == &t_sub))
      fold_three(ir, cls);
    cls = ia_class(ir);
    if (encode_state == STATE_THUMB16 && (cls->ic_id == 102 || cls == &t_mov || cls == &t_add || cls == &t_sub))
      thumb16_flag_rule(ir, cls);
  }

  // Thumb-2 data processing with a register operand takes the second form.
  const inst_class *cls = ia_class(ir);
  if (cur_state == 2 && encode_state == STATE_THUMB2 && (cls->ic_id == 123 || cls->ic_id == 126)) {
    const operand *last = ops[2] ? ops[2] : ops[1];
    const inst_class *second = ia_row(ir)->slot[STATE_THUMB2_REG].cls;
    if (kind_of(last) != OP_ICON && second && second->ic_id == 127) encode_state = STATE_THUMB2_REG;
  }
}
