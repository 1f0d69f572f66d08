// The 16-bit choice for a 32-bit Thumb-2 row. Where the flag rules allow a
// narrow form, the whole 16-bit encoder runs as a trial with output and
// messages off; it decides in both passes by the same test, so that both
// arrive at the same length. A failed trial leaves the statement as it was.
#include <cstring>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "target/arm/arch.h"
#include "target/arm/encode.h"
#include "target/arm/glue_pending.h"
#include "target/arm/parse.h"
#include "target/arm/thumb2_hooks.h"
#include "target/arm/trg.h"

namespace {

constexpr unsigned IC_T2_B = 132, IC_T2_ADR = 133, IC_T2_CRET = 135;

bool is_row(const instruct *ir, const char *name) { return std::strcmp(ia_row(ir)->name, name) == 0; }

const operand *reg_op(const instruct *ir, int n) {
  const operand *op = ia_op(ir, n);
  return op && op->kind == OP_REGISTER ? op : nullptr;
}

int count_operands(const instruct *ir) {
  int n = 0;
  while (n < IR_MAX_SLOTS && ir->oprnds[n]) ++n;
  return n;
}

// The first row of the name that has a 16-bit class.
const mnemonic_row *narrow_row(const char *name) {
  for (const mnemonic_row *r = trg_mnemonics; r->name; ++r)
    if (r->slot[STATE_THUMB16].cls && std::strcmp(r->name, name) == 0) return r;
  return nullptr;
}

struct narrow_rows {
  const mnemonic_row *cpy;
  const mnemonic_row *shift[3];   // LSL, LSR, ASR by SHIFT_*
};

const narrow_rows &rows() {
  static const narrow_rows found{narrow_row("CPY"), {narrow_row("LSL"), narrow_row("LSR"), narrow_row("ASR")}};
  return found;
}

void drop_operand(instruct *ir, int at) {
  IR_free_oprnd(ir->oprnds[at]);
  for (int i = at; i + 1 < IR_MAX_SLOTS; ++i) ir->oprnds[i] = ir->oprnds[i + 1];
  ir->oprnds[IR_MAX_SLOTS - 1] = nullptr;
}

// Everything a trial encoding may touch, by value: no allocation, and no
// owned string is copied (the operands' values are copied shallowly and put
// back before anyone frees them).
struct trial_state {
  uint32_t instlen, curpc, encode_state, ia_flags;
  const void *record;
  IOR_STRUCT ior;
  uint32_t field_word, field_bits, saved_pc;
  uint8_t has_code, full, thumb_isa_use;
  operand *slots[IR_MAX_SLOTS];
  operand contents[IR_MAX_SLOTS];
};

void save(const instruct *ir, trial_state &s) {
  s.instlen = instlen;
  s.curpc = curpc;
  s.encode_state = encode_state;
  s.ia_flags = ir->ia_flags;
  s.record = ir->record;
  s.ior = ir->ior;
  if (curseg) {
    s.field_word = curseg->scn_field_word;
    s.field_bits = curseg->scn_field_bits;
    s.saved_pc = curseg->scn_saved_pc;
    s.has_code = curseg->scn_has_code;
    s.full = curseg->scn_full;
  }
  s.thumb_isa_use = ba_thumb_isa_use;
  for (int i = 0; i < IR_MAX_SLOTS; ++i) {
    s.slots[i] = ir->oprnds[i];
    if (s.slots[i]) s.contents[i] = *s.slots[i];
  }
}

void restore_operand(instruct *ir, const trial_state &s, int to, int from) {
  ir->oprnds[to] = s.slots[from];
  if (s.slots[from]) *s.slots[from] = s.contents[from];
}

void restore_statement(instruct *ir, const trial_state &s) {
  for (int i = 0; i < IR_MAX_SLOTS; ++i) restore_operand(ir, s, i, i);
  ir->ia_flags = s.ia_flags;
  ir->record = s.record;
}

void restore_surroundings(instruct *ir, const trial_state &s) {
  encode_state = s.encode_state;
  curpc = s.curpc;
  ir->ior = s.ior;
  if (curseg) {
    curseg->scn_field_word = s.field_word;
    curseg->scn_field_bits = s.field_bits;
    curseg->scn_saved_pc = s.saved_pc;
    curseg->scn_has_code = s.has_code;
    curseg->scn_full = s.full;
  }
  ba_thumb_isa_use = s.thumb_isa_use;
}

// Rd and one source; the other source is left out of the operand slots (it
// stays owned by the saved state).
void two_operand_form(instruct *ir, const trial_state &s, int kept) {
  restore_operand(ir, s, 0, 0);
  restore_operand(ir, s, 1, kept);
  ir->oprnds[2] = nullptr;
}

void encode_narrow(instruct *ir) {
  encode_state = STATE_THUMB16;
  instlen = instlen_by_class(ir);
  reset_irec_flags(ir);
  encode_krv616_ins(ir);
}

// The 16-bit encoder on the statement, with nothing of it landing anywhere;
// true if it met nothing to report. Pass 2 keeps a two-operand form that
// only the retry could encode.
bool trial(instruct *ir) {
  trial_state s;
  save(ir, s);
  output_error = 0;
  errors_or_warn = 0;
  suppress_output = 1;

  encode_narrow(ir);
  int kept = 0;
  bool two_operands = false;
  if (errors_or_warn) {
    restore_statement(ir, s);
    if (try_2opnd_thumb_instr(ir, &kept)) {
      two_operand_form(ir, s, kept);
      errors_or_warn = 0;
      encode_narrow(ir);
      two_operands = errors_or_warn == 0;
    }
  }
  const bool narrow = errors_or_warn == 0;

  if (two_operands && !pass1) {
    two_operand_form(ir, s, kept);
    IR_free_oprnd(s.slots[kept == 1 ? 2 : 1]);
    for (int i = 3; i < IR_MAX_SLOTS; ++i) restore_operand(ir, s, i, i);
    ir->record = s.record;
    ++num_2opnd_conv;
  } else {
    restore_statement(ir, s);
  }
  restore_surroundings(ir, s);
  output_error = 1;
  suppress_output = 0;
  if (!narrow) instlen = s.instlen;
  return narrow;
}

}  // namespace

bool ok_to_convert_to_thumb(instruct *ir) {
  if (!is_thumb2_32bit_dp_ins(ia_class(ir))) return true;
  const operand *rd = reg_op(ir, 0);
  const operand *rs = reg_op(ir, 1);
  const int count = count_operands(ir);
  if (!(ir->ia_flags & IF_S)) {
    if (in_it_block()) return true;
    if (is_row(ir, "MOV") && count == 2 && rd && rs && rows().cpy) {
      ir->record = rows().cpy;
      return true;
    }
    if (is_row(ir, "ADD")) {
      if (count == 2 && rd && rs) return true;
      const operand *rn = reg_op(ir, 2);
      if (count == 3 && rd && rs && rn && (rd->op_reg == rs->op_reg || rd->op_reg == rn->op_reg)) return true;
      return (rd && rd->op_reg == REG_SP) || (rs && rs->op_reg == REG_SP);
    }
    if (is_row(ir, "SUB")) return rd && rd->op_reg == REG_SP;
    return is_row(ir, "CMP") || is_row(ir, "CMN") || is_row(ir, "TST");
  }
  if (in_it_block()) return false;
  if (!is_row(ir, "MOV") && !is_row(ir, "ADD") && !is_row(ir, "SUB")) return true;
  if (count < 2) return false;
  if (!rd || !rs) return true;
  const operand *rn = reg_op(ir, 2);
  return rd->op_reg < 8 && rs->op_reg < 8 && (!rn || rn->op_reg < 8);
}

bool handle_add(instruct *ir) {
  if (!is_row(ir, "ADD") || (ir->ia_flags & IF_S) || count_operands(ir) != 3) return false;
  const operand *rd = reg_op(ir, 0);
  const operand *rs = reg_op(ir, 1);
  const operand *rn = reg_op(ir, 2);
  if (!rd || !rs || !rn || (rd->op_reg != rs->op_reg && rd->op_reg != rn->op_reg)) return false;
  instlen = 2;
  // Only pass 2 encodes: pass 1 needs no more than the length.
  if (!pass1) drop_operand(ir, rd->op_reg == rs->op_reg ? 1 : 2);
  return true;
}

bool handle_movs_shift(instruct *ir) {
  if (!is_row(ir, "MOV") || count_operands(ir) != 2) return false;
  const operand *rd = reg_op(ir, 0);
  operand *shifted = ia_op(ir, 1);
  if (!rd || !shifted || shifted->kind != OP_SHIFTREGI || shifted->op_shift > SHIFT_ASR) return false;
  if (rd->op_reg > 7 || shifted->op_reg > 7) return false;
  const bool s = (ir->ia_flags & IF_S) != 0;
  if (s == in_it_block()) return false;
  const mnemonic_row *row = rows().shift[shifted->op_shift];
  if (!row) return false;
  instlen = 2;
  if (!pass1) {
    // Rm becomes a register operand of its own; the shifted operand, whose
    // value is the amount, becomes the immediate.
    ir->record = row;
    ir->oprnds[1] = PRS_core_register(shifted->op_reg);
    shifted->kind = OP_ICON;
    shifted->op_reg = shifted->op_reg2 = 0;
    shifted->op_shift = SHIFT_NONE;
    ir->oprnds[2] = shifted;
  }
  return true;
}

bool commutative_instr(const instruct *ir) {
  static constexpr const char *names[] = {"ADC", "ADD", "AND", "EOR", "ORR", "MUL", "SMULBB"};
  if (!reg_op(ir, 1) || !reg_op(ir, 2)) return false;
  for (const char *name : names)
    if (is_row(ir, name)) return true;
  return false;
}

bool try_2opnd_thumb_instr(const instruct *ir, int *kept) {
  if (count_operands(ir) != 3) return false;
  const operand *rd = reg_op(ir, 0);
  const operand *rs = reg_op(ir, 1);
  if (!rd || !rs) return false;
  if (rd->op_reg == rs->op_reg) {
    *kept = 2;
    return true;
  }
  const operand *rn = reg_op(ir, 2);
  if (!rn || rn->op_reg != rd->op_reg || !commutative_instr(ir)) return false;
  *kept = 1;
  return true;
}

void reset_irec_flags(instruct *ir) { ir->ia_flags &= ~(IF_S | IF_COND); }

bool conv_32t2_to_16t(instruct *ir) {
  if (cur_state != STATE_THUMB2 || !arm_arch_types.is_t2_capable()) return false;
  if (!thumb_2_state_32bit_insn(ir)) {
    // A statement of the input that is 16 bits by itself; not the trial's
    // own nested call.
    if (!pass1 && output_error) ++num_orig_thumb;
    return false;
  }
  const uint32_t f = ir->ia_flags;
  const unsigned id = ia_class(ir)->ic_id;
  if ((f & IF_WIDE) || (id == IC_T2_B && (f & IF_LINK) && !(f & IF_X)) || id == IC_T2_CRET || id == IC_T2_ADR)
    return false;
  if (variable_length_t2_ins(ir, nullptr) || !ia_row(ir)->slot[STATE_THUMB16].cls) return false;
  const void *row = ir->record;
  if (!ok_to_convert_to_thumb(ir)) return false;
  if (handle_add(ir) || handle_movs_shift(ir)) return true;
  if (trial(ir)) return true;
  ir->record = row;   // a MOV that was to become CPY stays MOV
  return false;
}
