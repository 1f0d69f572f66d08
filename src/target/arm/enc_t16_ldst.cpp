// 16-bit Thumb loads and stores: LDR/STR of words, bytes and halfwords, the
// signed loads, LDMIA/STMIA, PUSH/POP and ADR. The rows' base words carry
// the bits that tell the loads, stores and sizes apart.
#include <cstdint>

#include "driver/diag.h"
#include "driver/records.h"
#include "target/arm/classes.h"
#include "target/arm/enc_t16.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

namespace {

// Top bits of the address forms.
constexpr uint32_t TOP4_REG_OFFSET = 5;   // [Rb, Ro]
constexpr uint32_t TOP3_IMM_OFFSET = 3;   // [Rb, #imm], word and byte
constexpr uint32_t TOP4_HALF_IMM = 8;     // [Rb, #imm], halfword
constexpr uint32_t TOP4_SP = 9;           // [SP, #imm]
constexpr uint32_t TOP4_PC = 4;           // [PC, #imm] and a label
constexpr uint32_t HALF_OR_SIGNED = 1u << 9;   // of the register-offset form
constexpr uint32_t LOAD_BIT = 1u << 11;
constexpr uint32_t LIST_EXTRA_BIT = 1u << 8;   // LR in PUSH, PC in POP
constexpr uint32_t BR_RETURN = 2;

constexpr const char *RD_HI = "Destination register Rd cannot be a hi register";
constexpr const char *RB_HI = "Base register Rb cannot be a hi register";

enum class transfer { word, byte, half, signed_only };

bool is_load(const instruct *ir) { return (ia_opcode(ir) & LOAD_BIT) != 0; }

uint32_t list_mask(const operand *op) { return op->value.v_val.to_u32(); }

void put_low(instruct *ir, const operand *op, unsigned bit, const char *message) {
  if (T16_low_reg(ir, op, message)) ENC_put(ir, bit, 3, op->op_reg);
}

// The base of an address, at 3.
void put_base(instruct *ir, const operand *address) {
  if (address->op_reg > 7) error(ir->line, "E0004", "%s", RB_HI);
  else ENC_put(ir, 3, 3, address->op_reg);
}

// [Rb, Ro]: Rd at 0, Rb at 3, Ro at 6.
void register_offset(instruct *ir, transfer kind, const operand *address) {
  ENC_put(ir, 12, 4, TOP4_REG_OFFSET);
  if (kind == transfer::half || kind == transfer::signed_only) ENC_set(ir, HALF_OR_SIGNED);
  put_base(ir, address);
  if (address->op_reg2 > 7) error(ir->line, "E0004", "Offset register Ro cannot be a hi register");
  else ENC_put(ir, 6, 3, address->op_reg2);
  // Thumb has no subtracted register offset.
  if (address->op_neg) error(ir->line, "E0004", "Illegal operand");
  if (address->op_shift != SHIFT_NONE) warn(ir->line, "W0000", "Shift amount ignored");
}

// [Rb, #imm] and [Rb]: the offset of a word, byte or halfword from a low base.
void immediate_offset(instruct *ir, transfer kind, const operand *address, int64_t offset) {
  if (kind == transfer::half) {
    ENC_put(ir, 12, 4, TOP4_HALF_IMM);
    put_base(ir, address);
    if (offset % 2) warn(ir->line, "W0002", "Offset not halfword aligned");
    if (offset < 0 || offset >= 64) {
      error(ir->line, "E0200", "Offset out of range, must be %d bit immediate", 5);
      return;
    }
    ENC_put(ir, 6, 5, static_cast<uint32_t>(offset / 2));
    return;
  }
  ENC_put(ir, 13, 3, TOP3_IMM_OFFSET);
  put_base(ir, address);
  if (kind == transfer::byte) T16_unsigned_field(ir, T16_icon(offset), 6, 5);
  else T16_word_field(ir, T16_icon(offset), 6, 5);
}

// LDR and STR relative to SP, and LDR relative to PC: Rd at 8, eight bits of words.
void word_from_sp_or_pc(instruct *ir, const operand *rd, uint32_t top, int64_t offset) {
  ENC_put(ir, 12, 4, top);
  put_low(ir, rd, 8, RD_HI);
  T16_word_field(ir, T16_icon(offset), 0, 8);
}

void load_store(instruct *ir, transfer kind) {
  const operand *rd = ia_op(ir, 0);
  operand *address = ia_op(ir, 1);
  const uint16_t k = address->kind;
  if (k == OP_INDPRES || k == OP_INDPREE || k == OP_INDIRECT) {
    // Thumb transfers have no write-back.
    if (address->op_mods) warn(ir->line, "W0000", "Invalid operand modifier(s) ignored");
  }
  if (k == OP_INDPRES) {
    put_low(ir, rd, 0, RD_HI);
    register_offset(ir, kind, address);
    return;
  }
  if (kind != transfer::signed_only && (k == OP_INDPREE || k == OP_INDIRECT)) {
    const int64_t offset = k == OP_INDPREE ? ENC_value(address) : 0;
    if (kind == transfer::word && address->op_reg == REG_SP) {
      word_from_sp_or_pc(ir, rd, TOP4_SP, offset);
    } else if (kind == transfer::word && address->op_reg == REG_PC && is_load(ir)) {
      word_from_sp_or_pc(ir, rd, TOP4_PC, offset);
    } else {
      put_low(ir, rd, 0, RD_HI);
      immediate_offset(ir, kind, address, offset);
    }
    return;
  }
  if (kind == transfer::word && is_load(ir) && (k == OP_SYMBOL || k == OP_ICON)) {
    ENC_put(ir, 12, 4, TOP4_PC);
    put_low(ir, rd, 8, RD_HI);
    T16_address_field(ir, address);
    return;
  }
  error(ir->line, "E0004", "Illegal operand");
}

}  // namespace

void encode_t_lsb(instruct *ir) { load_store(ir, transfer::byte); }
void encode_t_lsh(instruct *ir) { load_store(ir, transfer::half); }
void encode_t_lss(instruct *ir) { load_store(ir, transfer::signed_only); }
void encode_t_lsw(instruct *ir) { load_store(ir, transfer::word); }

void encode_t_mls(instruct *ir) {
  if (ia_class(ir) == &t_mls1) {
    // PUSH {R0-R7, LR}, POP {R0-R7, PC}.
    const operand *list = ia_op(ir, 0);
    if (list->kind != OP_REGLIST) {
      error(ir->line, "E0004", "Register list required");
      return;
    }
    const bool pop = is_load(ir);
    const uint32_t mask = list_mask(list);
    const uint32_t extra = pop ? 1u << REG_PC : 1u << REG_LR;
    if (mask & ~0xC0FFu) error(ir->line, "E0004", "Register list must only contain lo registers or %s", pop ? "PC" : "LR");
    if (!pop && (mask & (1u << REG_PC))) error(ir->line, "E0004", "Register list of PUSH cannot contain PC");
    if (pop && (mask & (1u << REG_LR))) error(ir->line, "E0004", "Register list of POP cannot contain LR");
    ENC_put(ir, 0, 8, mask & 0xFF);
    if (mask & extra) ENC_set(ir, LIST_EXTRA_BIT);
    if (mask & (1u << REG_PC)) br_type = BR_RETURN;
    return;
  }
  // LDMIA, STMIA: Rb at 8, the list at 0.
  const operand *base = ia_op(ir, 0);
  const operand *list = ia_op(ir, 1);
  const bool based = T16_is_reg(base);
  if (!based) {
    error(ir->line, "E0004", "Base operand Rb must be a register");
  } else {
    if (base->op_reg > 7) error(ir->line, "E0004", "%s", RB_HI);
    else ENC_put(ir, 8, 3, base->op_reg);
    if (base->op_mods & ~MOD_WRITEBACK) warn(ir->line, "W0000", "Invalid operand modifiers ignored");
  }
  if (list->kind != OP_REGLIST) {
    error(ir->line, "E0004", "Register list required");
    return;
  }
  const uint32_t mask = list_mask(list);
  if (mask & ~0xFFu) error(ir->line, "E0004", "Register list must only contain lo registers");
  ENC_put(ir, 0, 8, mask & 0xFF);
  if (!based) return;
  const bool writeback = (base->op_mods & MOD_WRITEBACK) != 0;
  if (!is_load(ir)) {
    if (!writeback) error(ir->line, "W0000", "%s must always write back to Rn in Thumb mode", ia_row(ir)->name);
    return;
  }
  const bool base_in_list = base->op_reg < 16 && (mask & (1u << base->op_reg));
  if (base_in_list && writeback)
    error(ir->line, "W0000", "In thumb mode, this instruction can only write back to Rn if register list does not contain Rn");
  if (!base_in_list && !writeback)
    error(ir->line, "W0000", "In Thumb mode, this instruction must write back to Rn if register list does not contain Rn");
}

void encode_t_adr(instruct *ir) {
  put_low(ir, ia_op(ir, 0), 8, "Destination register Rd must be a lo register");
  T16_address_field(ir, ia_op(ir, 1));
}
