// Thumb-2 single transfers: LDR and STR of every size, their user-mode T
// forms, LDRD and STRD; the table branches TBB, TBH and the preloads PLD, PLI.
#include <cstdlib>

#include "driver/diag.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_ldst.h"
#include "target/arm/enc_t2_ldst.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// The short form of a word, byte or halfword transfer: an eight-bit offset
// with its own P, U and W bits; without bit 11 the offset is a register.
constexpr uint32_t SHORT_FORM = 1u << 11;
constexpr uint32_t SHORT_P = 1u << 10;
constexpr uint32_t SHORT_U = 1u << 9;
constexpr uint32_t SHORT_W = 1u << 8;
// The long form: twelve bits of offset, added.
constexpr uint32_t LONG_FORM = 1u << 23;
constexpr uint32_t LOAD = 1u << 20;

// PLD, PLI with a negative offset: the short form with P set and U clear.
constexpr uint32_t PRELOAD_NEGATIVE = 3u << 10;

constexpr int32_t T2_LOW_OFFSET = -255;
constexpr int32_t T2_HIGH_OFFSET = 4095;
constexpr int32_t DUAL_LIMIT = 1020;

// Read from the word written so far, which a rewritten LDM has replaced.
bool is_store(const instruct *ir) { return (ENC_word(ir) & LOAD) == 0; }

// The user-mode forms (LDRT ...) carry bits 11 to 9 in their base word and
// take only [Rn] or [Rn, #0..255].
bool is_t_form(const instruct *ir) {
  return ia_class(ir) == &t2_ldr_t || (ir->ia_flags & IF_T) != 0;
}

// [Rn, Rm{, LSL #0..3}]: Rm and the amount in six bits at 0.
void put_scaled_index(instruct *ir, const operand *addr, const char *bad_amount) {
  uint32_t amount = 0;
  if (addr->op_shift != SHIFT_NONE) {
    if (addr->op_shift != SHIFT_LSL) {
      error(ir->line, "E0004", "Illegal shift type");
      return;
    }
    const int64_t value = ENC_value(addr);
    if (value < 0 || value > 3) {
      error(ir->line, "E0004", "%s", bad_amount);
      return;
    }
    amount = static_cast<uint32_t>(value);
  }
  ENC_put(ir, 4, 2, amount);
  ENC_put(ir, 0, 4, addr->op_reg2);
}

// A register offset can't be subtracted or written back in Thumb-2.
bool plain_register_offset(instruct *ir, const operand *addr) {
  if (addr->op_neg || (addr->op_mods & MOD_WRITEBACK)) {
    error(ir->line, "E0004", "Invalid addressing mode");
    return false;
  }
  return true;
}

// The pc-relative form of a label or a plain offset: U at 23, twelve bits.
void put_literal(instruct *ir, operand *addr) {
  error_if_no_embedded_consts(ir);
  int32_t offset = 0;
  if (!LDST_pcrel_offset(ir, addr, T2_HIGH_OFFSET, &offset)) return;
  ENC_put(ir, 16, 4, REG_PC);
  if (offset >= 0) ENC_set(ir, LONG_FORM);
  ENC_put(ir, 0, 12, static_cast<uint32_t>(std::abs(offset)));
}

// [Rn, #e]{!} and [Rn], #e of the word, byte and halfword transfers.
void put_imm_address(instruct *ir, const operand *addr, bool t_form) {
  const bool pre = addr->kind == OP_INDPREE;
  const bool writeback = LDST_writes_back(addr);
  LDST_put_base(ir, addr, writeback);
  if (addr->op_reg == REG_PC) error_if_no_embedded_consts(ir);
  const int64_t offset = ENC_value(addr);
  if (offset < T2_LOW_OFFSET || offset > T2_HIGH_OFFSET) {
    error(ir->line, "E0200", "Offset out of range, must be [%d,%d]", T2_LOW_OFFSET, T2_HIGH_OFFSET);
    return;
  }
  if (t_form) {
    // The base word holds the short form with P and U; nothing else fits.
    if (!pre || writeback) {
      error(ir->line, "E0004", "Invalid addressing mode");
      return;
    }
    if (offset < 0 || offset > 255) {
      error(ir->line, "E0200", "Offset out of range, must be [0,255]");
      return;
    }
    ENC_put(ir, 0, 8, static_cast<uint32_t>(offset));
    return;
  }
  if (pre && !writeback && (offset >= 0 || addr->op_reg == REG_PC)) {
    if (offset >= 0) ENC_set(ir, LONG_FORM);
    ENC_put(ir, 0, 12, static_cast<uint32_t>(std::llabs(offset)));
    return;
  }
  if (offset > 255) {
    error(ir->line, "E0200", "Offset out of range, must be [%d,%d]", T2_LOW_OFFSET, 255);
    return;
  }
  ENC_set(ir, SHORT_FORM | (pre ? SHORT_P : 0) | (offset >= 0 ? SHORT_U : 0) | (writeback ? SHORT_W : 0));
  ENC_put(ir, 0, 8, static_cast<uint32_t>(std::llabs(offset)));
}

void put_single_address(instruct *ir, operand *addr, bool t_form) {
  switch (addr->kind) {
    case OP_INDIRECT:
      // The T forms keep their short form with offset 0.
      if (!t_form) ENC_set(ir, LONG_FORM);
      LDST_put_base(ir, addr, false);
      return;
    case OP_INDPREE:
    case OP_INDPOSTE:
      put_imm_address(ir, addr, t_form);
      return;
    case OP_INDPRES:
      if (t_form) break;
      if (!plain_register_offset(ir, addr)) return;
      error_pc_op(ir, addr->op_reg);
      ENC_put(ir, 16, 4, addr->op_reg);
      put_scaled_index(ir, addr, "Illegal shift amount");
      return;
    case OP_SYMBOL:
    case OP_ICON:
      if (t_form) break;
      if (is_store(ir)) {
        error_if_no_embedded_consts(ir);
        error(ir->line, "E0004", "Illegal addressing mode for store instruction");
        return;
      }
      put_literal(ir, addr);
      return;
    default:
      break;
  }
  error(ir->line, "E0004", "Invalid addressing mode");
}

// LDRD, STRD: the offset in words, eight bits, with P at 24, U at 23 and W at 21.
void put_dual_offset(instruct *ir, int64_t offset, bool pre, bool writeback) {
  if (offset < -DUAL_LIMIT || offset > DUAL_LIMIT) {
    error(ir->line, "E0200", "Offset out of range, must be [%d,%d]", -DUAL_LIMIT, DUAL_LIMIT);
    return;
  }
  if (offset % 4) {
    error(ir->line, "E0200", "Offset must be word aligned");
    return;
  }
  ENC_set(ir, (pre ? LDST_P : 0) | (writeback ? LDST_W : 0) | (offset >= 0 ? LDST_U : 0));
  ENC_put(ir, 0, 8, static_cast<uint32_t>(std::llabs(offset) / 4));
}

void put_dual_address(instruct *ir, operand *addr) {
  switch (addr->kind) {
    case OP_INDIRECT:
      ENC_set(ir, LDST_P | LDST_U);
      LDST_put_base(ir, addr, false);
      return;
    case OP_INDPREE:
    case OP_INDPOSTE: {
      const bool writeback = LDST_writes_back(addr);
      LDST_put_base(ir, addr, writeback);
      if (addr->op_reg == REG_PC) error_if_no_embedded_consts(ir);
      put_dual_offset(ir, ENC_value(addr), addr->kind == OP_INDPREE, writeback);
      return;
    }
    case OP_SYMBOL:
    case OP_ICON: {
      error_if_no_embedded_consts(ir);
      if (is_store(ir)) {
        error(ir->line, "E0004", "Illegal addressing mode for store instruction");
        return;
      }
      int32_t offset = 0;
      if (!LDST_pcrel_offset(ir, addr, DUAL_LIMIT, &offset)) return;
      ENC_put(ir, 16, 4, REG_PC);
      put_dual_offset(ir, offset, true, false);
      return;
    }
    default:
      error(ir->line, "E0004", "Invalid addressing mode");
      return;
  }
}

}  // namespace

void T2_encode_transfer(instruct *ir, const operand *rd, operand *addr, const operand *rd2, bool check_pc) {
  check_arch_v7(ir);
  if (!check_dest_op_reg(ir, rd)) return;
  const bool load = !is_store(ir);
  const bool base_form = addr->kind == OP_INDIRECT || LDST_is_pre(addr) || LDST_is_post(addr);
  const bool writeback = base_form && LDST_writes_back(addr);
  if (check_pc && (!load || writeback)) error_pc_op(ir, rd->op_reg);
  if (load && writeback && addr->op_reg == rd->op_reg)
    warn(ir->line, "W0000",
         "Specifying the same register with write back in source and destination leads to unpredictable results");
  ENC_put(ir, 12, 4, rd->op_reg);
  if (rd2) {
    if (!check_op_reg(ir, rd2, "t2")) return;
    ENC_put(ir, 8, 4, rd2->op_reg);
    if (load && arm_arch() == ARCH_V7M3) check_m3_ldrd_errata(ir, rd, addr);
    put_dual_address(ir, addr);
    return;
  }
  if (load && rd->op_reg == REG_PC) br_type = 5;
  const bool t_form = is_t_form(ir);
  // A T letter on a plain row gives the user-mode form of the same size.
  if (t_form && ia_class(ir) != &t2_ldr_t) ENC_set(ir, SHORT_FORM | SHORT_P | SHORT_U);
  put_single_address(ir, addr, t_form);
}

// LDR, STR of every size, the T forms: Rt, address. LDRD, STRD: Rt, Rt2, address.
void encode_t2_ldr_str(instruct *ir) {
  if (ia_class(ir) == &t2_ldrd_strd) {
    T2_encode_transfer(ir, ia_op(ir, 0), ia_op(ir, 2), ia_op(ir, 1), true);
    return;
  }
  if (ia_op(ir, 2)) {
    error(ir->line, "E0004", "Invalid addressing mode");
    return;
  }
  T2_encode_transfer(ir, ia_op(ir, 0), ia_op(ir, 1), nullptr, true);
}

// TBB [Rn, Rm], TBH [Rn, Rm, LSL #1].
void encode_t2_table(instruct *ir) {
  check_arch_v7(ir);
  const operand *addr = ia_op(ir, 0);
  if (addr->kind != OP_INDPRES || !plain_register_offset(ir, addr)) {
    if (addr->kind != OP_INDPRES) error(ir->line, "E0004", "Invalid addressing mode");
    return;
  }
  error_pc_op(ir, addr->op_reg2);
  const bool halfword = (ia_opcode(ir) & 0x10u) != 0;
  const bool shifted = addr->op_shift != SHIFT_NONE;
  if (shifted != halfword || (shifted && (addr->op_shift != SHIFT_LSL || ENC_value(addr) != 1)))
    error(ir->line, "E0004", "Illegal shift amount");
  ENC_put(ir, 16, 4, addr->op_reg);
  ENC_put(ir, 0, 4, addr->op_reg2);
}

// PLD, PLI: [Rn], [Rn, #e], [Rn, Rm{, LSL #n}] or a label.
void encode_t2_prefetch(instruct *ir) {
  check_arch_v7(ir);
  operand *addr = ia_op(ir, 0);
  if ((addr->kind == OP_INDIRECT || LDST_is_pre(addr)) && (addr->op_mods & MOD_WRITEBACK))
    warn(ir->line, "W0000", "Write-back ignored in PLI/PLD instruction");
  switch (addr->kind) {
    case OP_INDIRECT:
      ENC_set(ir, LONG_FORM);
      ENC_put(ir, 16, 4, addr->op_reg);
      return;
    case OP_INDPREE: {
      ENC_put(ir, 16, 4, addr->op_reg);
      const int64_t offset = ENC_value(addr);
      if (offset < T2_LOW_OFFSET || offset > T2_HIGH_OFFSET) {
        error(ir->line, "E0200", "Offset out of range, must be [%d,%d]", T2_LOW_OFFSET, T2_HIGH_OFFSET);
        return;
      }
      if (offset < 0 && addr->op_reg != REG_PC) {
        ENC_set(ir, PRELOAD_NEGATIVE);
        ENC_put(ir, 0, 8, static_cast<uint32_t>(-offset));
        return;
      }
      if (offset >= 0) ENC_set(ir, LONG_FORM);
      ENC_put(ir, 0, 12, static_cast<uint32_t>(std::llabs(offset)));
      return;
    }
    case OP_INDPRES:
      if (addr->op_neg) {
        error(ir->line, "E0004", "Invalid addressing mode");
        return;
      }
      ENC_put(ir, 16, 4, addr->op_reg);
      put_scaled_index(ir, addr, "Illegal shift value: Must be between 0 and 3");
      return;
    case OP_SYMBOL:
    case OP_ICON:
      put_literal(ir, addr);
      return;
    default:
      error(ir->line, "E0004", "Illegal operand");
      return;
  }
}
