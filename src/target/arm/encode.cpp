// The target's entry for a machine instruction: its length in pass 1, its
// bits in pass 2, and what every class shares around its own encoder (operand
// counts, base word, modifier letters, condition field).
#include <cstring>

#include "debug/asm_debug.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "source/lexer.h"
#include "target/arm/arch.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"
#include "target/arm/thumb2_hooks.h"
#include "target/arm/trg.h"

uint32_t br_type = 0;
uint8_t ba_arm_isa_use = 0;
uint8_t ba_thumb_isa_use = 0;
uint8_t ba_thumb2_isa_use = 0;

namespace {

// ic_allowed bit: the class has a condition field.
constexpr uint32_t IC_COND_FIELD = IF_COND;
// Valid encode_state 2 classes on v6-M: barriers and status-register moves.
constexpr unsigned IC_PSR = 4, IC_SYNCH = 31;

// Two bits at 23 (P, U) by addressing mode: LDM and RFE read the stack names
// as a pop, the others as a push. An unnamed mode writes nothing.
constexpr uint8_t am_bits_load[9] = {0, 1, 3, 0, 2, 1, 3, 0, 2};
constexpr uint8_t am_bits_store[9] = {0, 2, 0, 3, 1, 1, 3, 0, 2};

void write_zeros(instruct *ir) {
  IOR_clear(&ir->ior);
  IOR_write(&ir->ior, instlen * 8 > 32 ? 32 : instlen * 8, 0, 0);
}

// One mistake gives one message: an operand the parser already refused needs
// no further word. A warning alone doesn't count, or a statement that lost its
// operands would pass with zeros for its bits.
bool statement_has_error(const instruct *ir) { return num_errors != ir->ia_errors; }

void write_base(instruct *ir) {
  const uint32_t base = ia_opcode(ir);
  if (encode_state == STATE_THUMB16)
    IOR_write(&ir->ior, 16, 0, base & 0xFFFF);
  else if (encode_state == STATE_ARM || instlen >= 4)
    IOR_write(&ir->ior, 32, 0, base);
  else
    IOR_write(&ir->ior, 16, 0, base & 0xFFFF);
}

bool is_ldm_or_rfe(const instruct *ir) {
  const char *name = ia_row(ir)->name;
  return std::strcmp(name, "LDM") == 0 || std::strcmp(name, "RFE") == 0;
}

// The letters of the suffix, the link bit, the addressing mode and the
// condition, in ARM state and in Thumb without Thumb-2.
void write_modifiers(instruct *ir) {
  const inst_class *cls = ia_class(ir);
  // Bits that are the parser's own marks, not letters the source wrote.
  constexpr uint32_t internal = IF_FLT_IMM | IF_FLT64_IMM;
  const uint32_t letters = ir->ia_flags & ~internal;
  if (letters & ~cls->ic_allowed) {
    warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
    ir->ia_flags &= cls->ic_allowed | internal;
  }
  const uint32_t f = ir->ia_flags;
  if (f & IF_B) ENC_set(ir, (f & IF_SX) ? 1u << 6 : 1u << 22);
  if (f & IF_H) ENC_set(ir, 1u << 5);
  if (f & IF_SX) ENC_set(ir, 1u << 6);
  if (f & IF_S) ENC_set(ir, 1u << 20);
  if (f & IF_T) ENC_set(ir, 1u << 21);
  if (f & IF_L) ENC_set(ir, 1u << 22);
  if (encode_state == STATE_ARM && (f & IF_LINK) && !(f & IF_X)) ENC_set(ir, 1u << 24);
  const uint32_t mode = if_am(f);
  if (mode != AM_NONE) {
    const uint32_t bits = (is_ldm_or_rfe(ir) ? am_bits_load : am_bits_store)[mode];
    if (bits) ENC_set(ir, bits << 23);
  }
  if (encode_state != STATE_ARM || !(cls->ic_allowed & IC_COND_FIELD)) return;
  if (f & IF_X) {
    const operand *target = ia_op(ir, 0);
    if (!target || target->kind != OP_REGISTER) {
      if (ir->ia_cond != COND_AL) error(ir->line, "E0800", "BLX with an immediate address must be unconditional");
      return;
    }
  }
  ENC_clear(ir, 0xFu << 28);
  ENC_put(ir, 28, 4, ir->ia_cond);
}

}  // namespace

void encode_krv616_ins(instruct *ir) {
  const inst_class *cls = ia_class(ir);
  if (!cls) {
    error_internal(0, ir->line, "Instruction row %s has no class in state %u", ia_row(ir)->name, encode_state);
    write_zeros(ir);
    return;
  }
  for (int i = 0; i < cls->ic_min_ops; ++i) {
    if (ia_op(ir, i)) continue;
    if (!statement_has_error(ir)) error(ir->line, "E0005", "Missing operand(s)");
    write_zeros(ir);
    return;
  }
  for (int i = 0; i < cls->ic_max_ops; ++i) {
    const operand *op = ia_op(ir, i);
    if (!op || op->kind != OP_NONE) continue;
    if (!output_error) ++errors_or_warn;
    write_zeros(ir);
    return;
  }

  const bool thumb2 = cur_state == STATE_THUMB2;
  if (thumb2 && conv_32t2_to_16t(ir)) {
    encode_state = STATE_THUMB16;
    cls = ia_class(ir);
  }
  if (arm_arch() == ARCH_V6M0 && encode_state == STATE_THUMB2 && cls->ic_id != IC_SYNCH && cls->ic_id != IC_PSR)
    error(ir->line, "E0002", "Unsupported Thumb-2 instruction for v6M0");
  if (thumb2) update_thumb2_lst(ir);

  write_base(ir);
  class_encoder_for(cls->ic_id)(ir);
  cls = ia_class(ir);   // an encoder may have moved the statement to another row

  if (thumb2 && encode_state != STATE_THUMB16 && ir->ior.ior_length == 32 && !(curseg && curseg->scn_big_endian)) {
    const uint32_t w = ENC_word(ir);
    IOR_write(&ir->ior, 32, 0, (w << 16) | (w >> 16));
  }

  const bool debug = opt_on(OPT_SYMDEBUG_DWARF) || opt_on(OPT_SYMDEBUG_SKELETAL);
  if (debug && br_type != 0 && output_error == 1) dw_mk_branch(br_type, curpc, ia_op(ir, 0));

  if (encode_state == STATE_ARM || cur_state == STATE_THUMB16) write_modifiers(ir);

  switch (encode_state) {
    case STATE_ARM: ba_arm_isa_use = 1; break;
    case STATE_THUMB16: ba_thumb_isa_use = 1; break;
    case STATE_THUMB2: ba_thumb2_isa_use = 1; break;
    default: break;
  }
  if (cls->ic_max_ops < IR_MAX_SLOTS && ia_op(ir, cls->ic_max_ops))
    error(ir->line, "E0003", "Unexpected trailing operand(s)");
  br_type = 0;
}

void TRG_encode(instruct *ir) {
  instlen = TRG_get_instlen(ir);
  if (curseg) curseg->scn_has_code = 1;
  if (pass1) {
    TRG_encode_pass1(ir);
  } else {
    // The parser has read ahead to the next line; whatever the encoding
    // reports belongs to the statement's own line.
    linebuf *const reading = curline;
    curline = ir->line;
    encode_krv616_ins(ir);
    curline = reading;
    SCN_dump_field();
    IOR_dump(&ir->ior, ir, 1);
    SCN_dump_field();
  }
  if (cur_it_string[0]) std::memmove(cur_it_string, cur_it_string + 1, std::strlen(cur_it_string));
}
