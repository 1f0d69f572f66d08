// Single register transfers: LDR and STR with every size suffix and address
// form, and the preloads PLD, PLI; with the address operations the other
// transfer encoders share.
#include <cstdlib>

#include "driver/diag.h"
#include "target/arm/checks.h"
#include "target/arm/classes.h"
#include "target/arm/enc_ldst.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"

// ---- Shared address operations ---------------------------------------------------

void LDST_put_base(instruct *ir, const operand *addr, bool writeback) {
  if (writeback && addr->op_reg == REG_PC)
    error(ir->line, "E0004", "Base register (Rn) cannot be R15 (PC) when using write-back");
  ENC_put(ir, 16, 4, addr->op_reg);
}

int32_t LDST_imm_offset(instruct *ir, const operand *addr, int32_t limit) {
  int64_t value = ENC_value(addr);
  if (value < -limit || value > limit) {
    error(ir->line, "E0200", "Offset out of range, must be [%d,%d]", -limit, limit);
    return 0;
  }
  return static_cast<int32_t>(value);
}

void LDST_put_sign(instruct *ir, const operand *addr, int64_t offset) {
  if (offset >= 0 && !addr->op_neg) ENC_set(ir, LDST_U);
}

bool LDST_pcrel_offset(instruct *ir, operand *addr, int32_t limit, int32_t *offset) {
  int64_t value = 0;
  if (addr->kind == OP_ICON) {
    value = ENC_value(addr);
  } else {
    int32_t distance = 0;
    if (!ENC_label_offset(ir, addr, &distance)) {
      error(ir->line, "E0004", "Illegal operand");
      return false;
    }
    value = distance;
  }
  if (value < -limit || value > limit) {
    error(ir->line, "E0200", "Offset out of range, must be [%d,%d]", -limit, limit);
    value = 0;
  }
  *offset = static_cast<int32_t>(value);
  return true;
}

namespace {

// The two families of single transfers differ in where an offset goes.
struct transfer_form {
  uint32_t word;       // the kind bits of the form
  int32_t limit;       // largest immediate offset
  bool split;          // halfword family: the offset in 4 + 4 bits, bit 22 for an immediate
};

constexpr transfer_form WORD_TRANSFER{0x4000000, 4095, false};
constexpr transfer_form HALF_TRANSFER{0x90, 255, true};
constexpr transfer_form DOUBLE_TRANSFER{0xD0, 255, true};

constexpr uint32_t WORD_REG_OFFSET = 1u << 25;   // word family: a register offset
constexpr uint32_t HALF_IMM_OFFSET = 1u << 22;   // halfword family: an immediate offset
constexpr uint32_t STORE_DOUBLE = 1u << 5;       // STRD; LDRD and STRD have no load bit

void put_imm_offset(instruct *ir, const transfer_form &form, uint32_t magnitude) {
  if (form.split) {
    ENC_set(ir, HALF_IMM_OFFSET);
    ENC_put(ir, 0, 4, magnitude & 0xF);
    ENC_put(ir, 8, 4, magnitude >> 4);
  } else {
    ENC_put(ir, 0, 12, magnitude);
  }
}

void put_signed_offset(instruct *ir, const transfer_form &form, const operand *addr, int32_t offset) {
  LDST_put_sign(ir, addr, offset);
  put_imm_offset(ir, form, static_cast<uint32_t>(std::abs(offset)));
}

// The register offset: the shifted-register field in the word family, Rm
// alone in the halfword family, which has no shift.
void put_reg_offset(instruct *ir, const transfer_form &form, const operand *addr) {
  if (form.split) {
    if (addr->op_shift != SHIFT_NONE) warn(ir->line, "W0000", "Shift amount ignored");
    ENC_put(ir, 0, 4, addr->op_reg2);
  } else {
    // The shared field encoder reads a shifted-register operand: Rm and the
    // shift of the address, as such an operand would carry them.
    operand shifted = *addr;
    shifted.kind = OP_SHIFTREGI;
    shifted.op_reg = addr->op_reg2;
    ENC_set(ir, WORD_REG_OFFSET);
    ENC_put(ir, 0, 12, ENC_shifted_reg_imm(ir, &shifted));
  }
  LDST_put_sign(ir, addr, 0);
}

void put_transfer_address(instruct *ir, const transfer_form &form, operand *addr) {
  const bool writeback = LDST_writes_back(addr);
  switch (addr->kind) {
    case OP_INDIRECT:
      if (addr->op_mods) warn(ir->line, "W0000", "Operand modifiers ignored");
      ENC_set(ir, LDST_P | LDST_U);
      LDST_put_base(ir, addr, false);
      if (form.split) ENC_set(ir, HALF_IMM_OFFSET);
      return;
    case OP_INDPREE:
    case OP_INDPOSTE:
      ENC_set(ir, (addr->kind == OP_INDPREE ? LDST_P : 0) | (addr->kind == OP_INDPREE && writeback ? LDST_W : 0));
      LDST_put_base(ir, addr, writeback);
      put_signed_offset(ir, form, addr, LDST_imm_offset(ir, addr, form.limit));
      return;
    case OP_INDPRES:
    case OP_INDPOSTS:
      ENC_set(ir, (addr->kind == OP_INDPRES ? LDST_P : 0) | (addr->kind == OP_INDPRES && writeback ? LDST_W : 0));
      LDST_put_base(ir, addr, writeback);
      if (addr->kind == OP_INDPOSTS && addr->op_reg == addr->op_reg2)
        error(ir->line, "E0004", "Base register (Rn) and shifted register (Rm) cannot be the same");
      put_reg_offset(ir, form, addr);
      return;
    case OP_SYMBOL:
    case OP_ICON: {
      int32_t offset = 0;
      if (!LDST_pcrel_offset(ir, addr, form.limit, &offset)) return;
      ENC_set(ir, LDST_P);
      ENC_put(ir, 16, 4, REG_PC);
      put_signed_offset(ir, form, addr, offset);
      return;
    }
    default:
      error(ir->line, "E0004", "Illegal operand");
      return;
  }
}

constexpr bool is_base_form(const operand *addr) {
  return addr->kind == OP_INDIRECT || LDST_is_pre(addr) || LDST_is_post(addr);
}

}  // namespace

// LDR, STR: Rd, address; doublewords Rd, {Rd + 1,} address.
void encode_ldr_str(instruct *ir) {
  const bool load = ia_class(ir) == &arm_ldr;
  uint32_t flags = ir->ia_flags & ia_class(ir)->ic_allowed;
  operand *rd = ia_op(ir, 0);
  operand *addr = ia_op(ir, 1);

  if (flags & IF_D) {
    check_arch_v5(ir);
    if (operand *third = ia_op(ir, 2)) {
      if (addr->kind != OP_REGISTER || rd->kind != OP_REGISTER || addr->op_reg != rd->op_reg + 1)
        error(ir->line, "E0004", "DST registers must be consecutive");
      addr = third;
    }
  } else if (ia_op(ir, 2)) {
    error(ir->line, "E0004", "Illegal operand");
    return;
  }

  const bool word = !(flags & (IF_H | IF_SX | IF_D));
  if ((flags & IF_T) && !(word && LDST_is_post(addr))) {
    error(ir->line, "W0004", "Post write back 'T' ignored");
    ir->ia_flags &= ~IF_T;
  }
  if ((flags & IF_B) && (flags & IF_H)) {
    error(ir->line, "W0004", "Conflict in transfer size, halfword assumed");
    ir->ia_flags &= ~IF_B;
  }
  if (!check_dest_op_reg(ir, rd)) return;
  if (load && is_base_form(addr) && LDST_writes_back(addr) && addr->op_reg == rd->op_reg)
    warn(ir->line, "W0000",
         "Specifying the same register with write back in source and destination leads to unpredictable results");

  const transfer_form &form = (flags & IF_D) ? DOUBLE_TRANSFER : word ? WORD_TRANSFER : HALF_TRANSFER;
  ENC_set(ir, form.word);
  if (flags & IF_D) {
    if (!load) ENC_set(ir, STORE_DOUBLE);
    if ((rd->op_reg & 1) || rd->op_reg == REG_LR)
      error(ir->line, "E0004", "Destination must be even-numbered register && not R14");
  } else if (load) {
    ENC_set(ir, LDST_L);
  }
  ENC_put(ir, 12, 4, rd->op_reg);
  if (load && word && rd->op_reg == REG_PC) br_type = 5;
  put_transfer_address(ir, form, addr);
}

// PLD, PLI: a pre-indexed address or a label; the P bit is part of the row.
void encode_pld(instruct *ir) {
  check_arch_v5(ir);
  operand *addr = ia_op(ir, 0);
  if ((addr->kind == OP_INDIRECT || LDST_is_pre(addr)) && (addr->op_mods & MOD_WRITEBACK))
    warn(ir->line, "W0000", "Write-back ignored in PLD instruction");
  switch (addr->kind) {
    case OP_INDIRECT:
      ENC_set(ir, LDST_U);
      LDST_put_base(ir, addr, false);
      return;
    case OP_INDPREE:
      LDST_put_base(ir, addr, false);
      put_signed_offset(ir, WORD_TRANSFER, addr, LDST_imm_offset(ir, addr, WORD_TRANSFER.limit));
      return;
    case OP_INDPRES:
      LDST_put_base(ir, addr, false);
      put_reg_offset(ir, WORD_TRANSFER, addr);
      return;
    case OP_SYMBOL:
    case OP_ICON: {
      int32_t offset = 0;
      if (!LDST_pcrel_offset(ir, addr, WORD_TRANSFER.limit, &offset)) return;
      ENC_put(ir, 16, 4, REG_PC);
      put_signed_offset(ir, WORD_TRANSFER, addr, offset);
      return;
    }
    default:
      error(ir->line, "E0004", "Illegal operand");
      return;
  }
}
