// Widths of Thumb statements: which classes are 32 bits, which lengths wait
// for jump expansion, what pass 1 records for them, and the width marks and
// counters of the listing.
#include <cstdlib>
#include <cstring>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "target/arm/arch.h"
#include "target/arm/glue_pending.h"
#include "target/arm/state.h"
#include "target/arm/thumb2_hooks.h"
#include "target/arm/trg.h"

uint8_t suppress_output = 0;
int64_t num_thumb2_keep = 0;
int64_t num_thumb2_conv = 0;
int64_t num_orig_thumb = 0;
int64_t num_2opnd_conv = 0;

namespace {

constexpr unsigned IC_T_B = 105, IC_T_BR = 114, IC_T_BT = 117, IC_T_BQ = 118;
constexpr unsigned IC_T2_B = 132;

// ic_id ranges of the 32-bit classes of the Thumb-2 slots. CDP (12) is
// among them: its Thumb-2 form is a whole word like every coprocessor one.
struct id_range {
  uint16_t first, last;
};
constexpr id_range wide_classes[] = {
    {3, 6},     {12, 14},   {17, 17},   {19, 24},   {29, 32},   {35, 38},   {40, 47},
    {49, 50},   {123, 135}, {138, 146}, {148, 149}, {201, 227},
};

constexpr bool wide_class_id(unsigned id) {
  for (const id_range &r : wide_classes)
    if (id >= r.first && id <= r.last) return true;
  return false;
}

const operand *op_of_kind(const instruct *ir, int n, uint16_t kind) {
  const operand *op = ia_op(ir, n);
  return op && op->kind == kind ? op : nullptr;
}

// The operand that decides a Thumb-2 length: the second, else the first.
const operand *length_operand(const instruct *ir) {
  const operand *x = ia_op(ir, 1);
  return x ? x : ia_op(ir, 0);
}

bool starts_with(const char *name, const char *prefix) { return std::strncmp(name, prefix, std::strlen(prefix)) == 0; }

// A jump record for the statement's target, then its first length (2).
void record_jump(const instruct *ir, JUMP_LIST_TYPE kind, const operand *target, int32_t chain_limit) {
  const auto index = static_cast<uint32_t>(isize_list.size());
  VLI_addjump_cond(kind, SCN_address(), const_cast<value_record *>(&target->value), index, nullptr, nullptr, 0,
                   ir->ia_cond, chain_limit);
  VLI_push(instlen);
}

// BT and BQ may name their longest chain; the option gives the default.
// The class reads its operands as expressions, so a plain number comes as a
// symbol operand with an integer value.
int32_t chain_limit_of(const instruct *ir) {
  const operand *limit = ia_op(ir, 1);
  if (!limit || (limit->kind != OP_ICON && limit->kind != OP_SYMBOL) || !is_int_type(limit->value.v_type) ||
      is_relocatable(limit->value))
    return max_branch_chain_length;
  return limit->value.v_val.to_i32();
}

// The 16-bit branches of both Thumb states whose first operand is a label.
void record_thumb_branch(const instruct *ir, const operand *target) {
  const inst_class *cls = ia_class(ir);
  if (!cls) return;
  const uint32_t f = ir->ia_flags;
  const bool cond = (f & IF_COND) != 0;
  switch (cls->ic_id) {
    case IC_T_B:
      if (cond && !(f & IF_LINK)) record_jump(ir, JUMP_COND, target, 0);
      break;
    case IC_T_BR:
      record_jump(ir, cond ? JUMP_COND_FAR : JUMP_UNCOND, target, 0);
      break;
    case IC_T_BT:
      record_jump(ir, cond ? JUMP_COND_FAR : JUMP_UNCOND, target, chain_limit_of(ir));
      break;
    case IC_T_BQ:
      if (cond && !(f & IF_LINK)) record_jump(ir, JUMP_COND, target, chain_limit_of(ir));
      else VLI_push(instlen);
      break;
    default:
      break;
  }
}

// The width mark that the listing shows behind the source line; it takes
// the place of the line's newline.
void mark_line(linebuf *line, const char *tail) {
  if (!line || !line->text) return;
  size_t keep = std::strlen(line->text);
  if (keep && line->text[keep - 1] == '\n') --keep;
  const size_t tail_len = std::strlen(tail);
  char *text = static_cast<char *>(std::malloc(keep + tail_len + 1));
  if (!text) return;
  std::memcpy(text, line->text, keep);
  std::memcpy(text + keep, tail, tail_len + 1);
  if (line->text != line->source_text) std::free(line->text);
  line->text = text;
}

bool has_wide_qualifier(const linebuf *line) {
  if (!line || !line->text) return false;
  for (const char *p = line->text; p[0] && p[1]; ++p)
    if (p[0] == '.' && (p[1] == 'W' || p[1] == 'w')) return true;
  return false;
}

}  // namespace

bool thumb_2_state_32bit_insn(const instruct *ir) {
  if (cur_state != STATE_THUMB2 || encode_state < STATE_THUMB2) return false;
  const inst_class *cls = ia_class(ir);
  return cls && wide_class_id(cls->ic_id);
}

bool is_thumb2_32bit_dp_ins(const inst_class *cls) {
  if (!cls) return false;
  switch (cls->ic_id) {
    case 123: case 126: case 127: case 128: case 134: return true;
    default: return false;
  }
}

bool in_it_block() { return cur_it_string[0] == 'T' || cur_it_string[0] == 'E'; }

// A target written as a plain number is the offset itself: its length is
// known at once and the trial decides it. Anything naming a symbol waits for
// jump expansion, in both passes alike.
bool names_a_symbol(const operand *op) {
  const value_record &v = op->value;
  return v.v_symbol || v.v_rel || !is_int_type(v.v_type);
}

bool variable_length_t2_ins(const instruct *ir, JUMP_LIST_TYPE *kind) {
  if (!thumb_2_state_32bit_insn(ir) || (ir->ia_flags & IF_WIDE)) return false;
  if (const operand *x = length_operand(ir); !x || !names_a_symbol(x)) return false;
  const mnemonic_row *row = ia_row(ir);
  // Only the word load and ADR have a 16-bit form that reaches a label.
  const inst_class *narrow = row->slot[STATE_THUMB16].cls;
  const bool load_or_adr = (starts_with(row->name, "LDR") || starts_with(row->name, "ADR")) && narrow &&
                           (narrow->ic_id == 109 || narrow->ic_id == 115);
  if (load_or_adr && op_of_kind(ir, 1, OP_SYMBOL)) {
    const operand *rd = op_of_kind(ir, 0, OP_REGISTER);
    if (!rd || rd->op_reg > 7) return false;
    if (kind) *kind = JUMP_LOAD_ADDR;
    return true;
  }
  if (ia_class(ir)->ic_id == IC_T2_B && !(ir->ia_flags & IF_LINK)) {
    if (kind) *kind = (ir->ia_flags & IF_COND) ? JUMP_COND : JUMP_UNCOND;
    return true;
  }
  return false;
}

void modify_t2_instr(instruct *ir, uint32_t length) {
  encode_state = length == 2 && ia_row(ir)->slot[STATE_THUMB16].cls ? STATE_THUMB16 : STATE_THUMB2;
}

uint32_t instlen_by_class(const instruct *ir) {
  if (encode_state == STATE_ARM || thumb_2_state_32bit_insn(ir)) return 4;
  const inst_class *cls = ia_class(ir);
  if (!cls) return encode_state == STATE_THUMB16 ? 2 : 4;
  // Thumb BL and BLX to a label are two halfwords.
  const operand *target = ia_op(ir, 0);
  if (cls->ic_id == IC_T_B && (ir->ia_flags & IF_LINK) && target && target->kind != OP_REGISTER) return 4;
  return 2;
}

void TRG_encode_pass1(instruct *ir) {
  if (cur_state == STATE_ARM) return;
  const bool thumb2 = cur_state == STATE_THUMB2 && arm_arch_types.is_t2_capable();
  if (thumb2 && conv_32t2_to_16t(ir)) encode_state = STATE_THUMB16;
  if (const operand *target = op_of_kind(ir, 0, OP_SYMBOL)) record_thumb_branch(ir, target);
  if (cur_state != STATE_THUMB2) return;
  const operand *x = length_operand(ir);
  JUMP_LIST_TYPE kind = JUMP_LABEL;
  if (!x || x->kind != OP_SYMBOL || !variable_length_t2_ins(ir, &kind)) return;
  instlen = 2;
  record_jump(ir, kind, x, 0);
  encode_state = STATE_THUMB16;
}

void update_thumb2_lst(instruct *ir) {
  if (pass1 || !output_error || cur_state != STATE_THUMB2 || !arm_arch_types.is_t2_capable()) return;
  if (!opt_on(OPT_ASM_LISTING) || !ASSY_LST) return;
  if (thumb_2_state_32bit_insn(ir)) {
    ++num_thumb2_keep;
    mark_line(ir->line, " ; [KEEP 32-BIT INS]\n");
  } else if (has_wide_qualifier(ir->line)) {
    ++num_thumb2_conv;
    mark_line(ir->line, " ; [CONV 16-BIT INS]\n");
  } else {
    mark_line(ir->line, " ; [ORIG 16-BIT INS]\n");
  }
}
