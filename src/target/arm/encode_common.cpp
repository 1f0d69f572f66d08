// Operations the class encoders share: the checked field inserter, rotated
// immediates, shifted registers, pc-relative targets and range checks.
#include <cstdlib>

#include "directives/sections.h"
#include "driver/diag.h"
#include "expr/int128.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "target/arm/encode.h"
#include "target/arm/glue_pending.h"
#include "target/arm/trg.h"

namespace {

uint32_t word_of(const IOR_STRUCT &ior) {
  return static_cast<uint32_t>(ior.ior_data[0]) | static_cast<uint32_t>(ior.ior_data[1]) << 8 |
         static_cast<uint32_t>(ior.ior_data[2]) << 16 | static_cast<uint32_t>(ior.ior_data[3]) << 24;
}

void set_value(operand *op, int64_t v) { XI_llitox(v, op->value.v_val.b); }

// Ids of the classes whose target state decides a cross-state call.
constexpr unsigned IC_T_CRET = 116;
constexpr unsigned IC_ARM_CRET = 25;

bool needs_cross_state_reloc(const instruct *ir, const operand *op) {
  const inst_class *cls = ia_class(ir);
  const bool call = (ir->ia_flags & IF_LINK) || (cls && (cls->ic_id == IC_T_CRET || cls->ic_id == IC_ARM_CRET));
  const symbol_record *sym = op->value.v_symbol;
  if (!call || !sym) return false;
  const bool target_thumb = sym->sym_state == 1 || sym->sym_state == 2;
  return encode_state == STATE_ARM ? target_thumb : !target_thumb;
}

}  // namespace

void ENC_put(instruct *ir, unsigned bit, unsigned width, uint32_t value) {
  const uint32_t limit = width >= 32 ? 0xFFFFFFFFu : (1u << width) - 1;
  if (bit + width > 32 || value > limit) {
    error_internal(0, ir->line, "Field of %u bits at bit %u cannot hold 0x%X", width, bit, value);
    value &= limit;
    if (bit + width > 32) return;
  }
  IOR_write(&ir->ior, width, bit, value);
}

namespace {

// A 16-bit Thumb record stays 16 bits: a whole-word write would make it 32.
void write_word(instruct *ir, uint32_t word) {
  const unsigned length = ir->ior.ior_length == 16 ? 16 : 32;
  if (length == 16 && (word >> 16)) {
    error_internal(0, ir->line, "Bits 0x%X outside a 16-bit instruction", word >> 16);
    word &= 0xFFFF;
  }
  IOR_write(&ir->ior, length, 0, word);
}

}  // namespace

void ENC_set(instruct *ir, uint32_t bits) { write_word(ir, word_of(ir->ior) | bits); }

void ENC_clear(instruct *ir, uint32_t bits) { write_word(ir, word_of(ir->ior) & ~bits); }

uint32_t ENC_word(const instruct *ir) { return word_of(ir->ior); }

int64_t ENC_value(const operand *op) {
  int64_t v = 0;
  XI_xtolli(op->value.v_val.b, &v);
  return v;
}

bool ENC_rotated_imm(uint32_t value, uint32_t *field) {
  for (uint32_t k = 0; k < 16; ++k) {
    // Rotating left by 2k undoes the instruction's rotation right by 2k.
    const uint32_t rot = 2 * k;
    const uint32_t byte = rot == 0 ? value : (value << rot) | (value >> (32 - rot));
    if (byte <= 0xFF) {
      *field = (k << 8) | byte;
      return true;
    }
  }
  return false;
}

uint32_t ENC_shifted_reg_imm(instruct *ir, const operand *op) {
  // An address with a register offset carries Rm beside its base.
  const bool address = op->kind == OP_INDPRES || op->kind == OP_INDPOSTS;
  const uint32_t rm = address ? op->op_reg2 : op->op_reg;
  if ((op->kind != OP_SHIFTREGI && !address) || op->op_shift == SHIFT_NONE) return rm;
  if (op->op_shift == SHIFT_RRX) return rm + (SHIFT_ROR << 5);
  int64_t amount = ENC_value(op);
  const uint32_t type = op->op_shift;
  if (type == SHIFT_LSR || type == SHIFT_ASR) {
    if (amount == 0) {
      error(ir->line, "E0004", "Shift count must lie between 1 and 32");
      return rm + (type << 5);
    }
    if (amount == 32) amount = 0;
  } else if (type == SHIFT_ROR && (amount < 1 || amount > 31)) {
    error(ir->line, "E0004", "Rotate count must lie between 1 and 31");
    return rm + (type << 5);
  }
  if (amount < 0 || amount > 31) {
    error(ir->line, "E0004", "Shift amount exceeds its maximum value");
    return rm + (type << 5);
  }
  return rm + (type << 5) + (static_cast<uint32_t>(amount) << 7);
}

bool ENC_pcrel(instruct *ir, operand *op, uint32_t pc, uint32_t reloc, short field_size, unsigned field_offset) {
  const bool needed = needs_cross_state_reloc(ir, op) || OPND_requires_reloc(op);
  if (reloc) {
    if (const OFE::OF_RELOC_TYPE *type = ARM_reloc_type(reloc)) {
      if (!suppress_output) RELOC_emit(&ir->ior, &op->value, pc, type, field_size, field_offset, field_offset);
      return true;
    }
  }
  if (needed) {
    error(ir->line, "E0001", "Address must be defined in the current section");
    set_value(op, 0);
    return false;
  }
  set_value(op, ENC_value(op) - static_cast<int64_t>(pc));
  return true;
}

int64_t ENC_range(instruct *ir, operand *op, unsigned shift, unsigned width, bool is_signed) {
  int64_t v = ENC_value(op);
  if (shift && (v & ((int64_t{1} << shift) - 1))) {
    error(ir->line, "E0200", "Destination must be on a %d byte boundary", 1 << shift);
    set_value(op, 0);
    return 0;
  }
  if (is_signed) {
    const int64_t lo = -(int64_t{1} << (shift + width - 1));
    const int64_t hi = (int64_t{1} << (shift + width - 1)) - 1;
    if (v < lo || v > hi) {
      error(ir->line, "E0200", "Offset out of range, must be [%ld,%ld]", static_cast<long>(lo), static_cast<long>(hi));
      set_value(op, 0);
      return 0;
    }
  } else if (v < 0 || v >= (int64_t{1} << (shift + width))) {
    error(ir->line, "E0200", "Offset out of range, must be [0,%ld]", static_cast<long>((int64_t{1} << (shift + width)) - 1));
    set_value(op, 0);
    return 0;
  }
  v >>= shift;
  set_value(op, v);
  return v;
}

bool ENC_label_offset(instruct *ir, const operand *op, int32_t *offset) {
  const value_record &v = op->value;
  if (!is_relocatable(v) || v.v_rel || v.v_section != curseg) {
    error(ir->line, "E0001", "Address must be defined in the current section");
    *offset = 0;
    return false;
  }
  const uint32_t pc = SCN_address();
  uint32_t base = pc + 8;
  if (encode_state == STATE_THUMB16) base = pc + 4;
  else if (encode_state != STATE_ARM) base = (pc + 4) & ~3u;
  *offset = static_cast<int32_t>(static_cast<uint32_t>(ENC_value(op)) - base);
  return true;
}

uint32_t compute_offset8pm(instruct *ir, operand *op, bool *up) {
  int64_t off = 0;
  if (op->kind == OP_ICON) {
    off = ENC_value(op);
    if (off < -1023 || off > 1023) {
      error(ir->line, "E0200", "Offset out of range, must be [-1023,1023]");
      *up = true;
      return 0;
    }
  } else {
    int32_t rel = 0;
    if (!ENC_label_offset(ir, op, &rel)) {
      error(ir->line, "E0004", "Illegal operand");
      *up = true;
      return 0;
    }
    off = rel;
    if (off < -1023 || off > 1023) {
      error(ir->line, "E0200", "Offset out of range, must be [-1023,1023]");
      *up = true;
      return 0;
    }
  }
  if (off % 4) warn(ir->line, "W0002", "Offset not on a word boundary");
  *up = off >= 0;
  return static_cast<uint32_t>(std::llabs(off) / 4);
}
