// Transfer encoders on hand-built statements: the address forms whose fields
// are assembled from several operand parts (shifted register offsets, split
// halfword offsets, word-scaled coprocessor offsets) at their limits, and the
// Thumb-2 places of the exclusives.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "driver/diag.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "target/arm/arch.h"
#include "target/arm/encode.h"
#include "target/arm/state.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

const mnemonic_row *row_named(const char *name) {
  for (const mnemonic_row *r = trg_mnemonics; r->name; ++r)
    if (std::string(r->name) == name) return r;
  return nullptr;
}

class EncodeTransfer : public ::testing::Test {
 protected:
  void SetUp() override {
    encode_state = STATE_ARM;
    arm_arch_types.set(ARCH_V7A8);
  }
  void TearDown() override {
    IR_free(ir);
    encode_state = STATE_ARM;
    cur_state = 0;
    arm_arch_types.set(nullptr);
  }

  static operand *with_value(operand *op, int64_t v) {
    XI_llitox(v, op->value.v_val.b);
    return op;
  }
  static operand *reg(uint8_t n, uint16_t kind = OP_REGISTER) {
    operand *op = new_operand(kind);
    op->op_reg = n;
    return op;
  }
  static operand *icon(int64_t v) { return with_value(new_operand(OP_ICON), v); }
  static operand *cp(int64_t n) { return with_value(new_operand(OP_CPID), n); }
  // [Rn, #e] and the like.
  static operand *imm_addr(uint16_t kind, uint8_t base, int64_t offset, uint16_t mods = 0) {
    operand *op = with_value(reg(base, kind), offset);
    op->op_mods = mods;
    return op;
  }
  // [Rn, {-}Rm, shift #amount] and the like.
  static operand *reg_addr(uint16_t kind, uint8_t base, uint8_t rm, uint8_t shift, int64_t amount,
                           bool neg = false) {
    operand *op = with_value(reg(base, kind), amount);
    op->op_reg2 = rm;
    op->op_shift = shift;
    op->op_neg = neg;
    return op;
  }

  // The word of one statement, and the errors it raised.
  uint32_t encode(const char *row, uint32_t flags, std::initializer_list<operand *> ops) {
    IR_free(ir);
    ir = IR_alloc(IR_MNEMONIC, row_named(row), nullptr);
    ir->ia_cond = COND_AL;
    ir->ia_flags = flags;
    int slot = 0;
    for (operand *op : ops) ir->oprnds[slot++] = op;
    instlen = 4;
    const uint32_t before = num_errors;
    encode_krv616_ins(ir);
    errors = num_errors - before;
    return ENC_word(ir);
  }

  instruct *ir = nullptr;
  uint32_t errors = 0;
};

TEST_F(EncodeTransfer, ShiftedRegisterOffsetsTakeRmAndTheShiftFromTheAddress) {
  EXPECT_EQ(encode("LDR", 0, {reg(0), reg_addr(OP_INDPRES, 1, 2, SHIFT_LSL, 2)}), 0xE7910102u);
  EXPECT_EQ(encode("LDR", 0, {reg(0), reg_addr(OP_INDPRES, 1, 2, SHIFT_ASR, 32, true)}), 0xE7110042u);
  EXPECT_EQ(encode("LDR", 0, {reg(0), reg_addr(OP_INDPRES, 1, 2, SHIFT_RRX, 0)}), 0xE7910062u);
  EXPECT_EQ(encode("STR", IF_T, {reg(3), reg_addr(OP_INDPOSTS, 4, 5, SHIFT_LSL, 4, true)}), 0xE6243205u);
  EXPECT_EQ(encode("PLI", 0, {reg_addr(OP_INDPRES, 1, 2, SHIFT_ASR, 4)}), 0xF6D1F242u);
  EXPECT_EQ(errors, 0u);
  encode("LDR", 0, {reg(0), reg_addr(OP_INDPRES, 1, 2, SHIFT_ROR, 32)});
  EXPECT_EQ(errors, 1u);
}

TEST_F(EncodeTransfer, ImmediateOffsetsAtTheirLimits) {
  EXPECT_EQ(encode("LDR", 0, {reg(0), imm_addr(OP_INDPREE, 1, -4095)}), 0xE5110FFFu);
  EXPECT_EQ(encode("LDR", IF_H, {reg(0), imm_addr(OP_INDPREE, 1, 255, MOD_WRITEBACK)}), 0xE1F10FBFu);
  EXPECT_EQ(encode("STR", IF_H, {reg(0), imm_addr(OP_INDPOSTE, 1, -255)}), 0xE0410FBFu);
  EXPECT_EQ(encode("LDR", IF_D, {reg(4), reg(5), imm_addr(OP_INDPREE, 6, -8, MOD_WRITEBACK)}), 0xE16640D8u);
  EXPECT_EQ(errors, 0u);
  encode("LDR", 0, {reg(0), imm_addr(OP_INDPREE, 1, 4096)});
  EXPECT_EQ(errors, 1u);
  encode("LDR", IF_SX | IF_B, {reg(0), imm_addr(OP_INDPOSTE, 1, -256)});
  EXPECT_EQ(errors, 1u);
}

TEST_F(EncodeTransfer, SizeLettersThatCannotStandAreDroppedWithAnError) {
  // LDRBH is a halfword load; LDRT with a pre-indexed address a plain LDR.
  EXPECT_EQ(encode("LDR", IF_B | IF_H, {reg(0), imm_addr(OP_INDIRECT, 1, 0)}), 0xE1D100B0u);
  EXPECT_EQ(errors, 1u);
  EXPECT_EQ(encode("LDR", IF_T, {reg(0), imm_addr(OP_INDPREE, 1, 4)}), 0xE5910004u);
  EXPECT_EQ(errors, 1u);
}

TEST_F(EncodeTransfer, CoprocessorOffsetsAreWordsInEightBits) {
  EXPECT_EQ(encode("LDC", 0, {cp(1), reg(0x12, OP_CPREG), imm_addr(OP_INDPREE, 3, -1020)}), 0xED1321FFu);
  EXPECT_EQ(encode("STC", IF_L, {cp(1), reg(0x12, OP_CPREG), imm_addr(OP_INDPOSTE, 3, 4)}), 0xECE32101u);
  EXPECT_EQ(encode("LDC", 0, {cp(1), reg(0x12, OP_CPREG), imm_addr(OP_INDOPT, 3, 5)}), 0xEC932105u);
  EXPECT_EQ(errors, 0u);
  // 1024 passes the first range but not the eight bits.
  EXPECT_EQ(encode("LDC", 0, {cp(1), reg(0x12, OP_CPREG), imm_addr(OP_INDPREE, 3, 1024)}), 0xED932100u);
  EXPECT_EQ(errors, 1u);
  encode("LDC", 0, {cp(1), reg(0x12, OP_CPREG), imm_addr(OP_INDPREE, 3, -4096)});
  EXPECT_EQ(errors, 1u);
}

TEST_F(EncodeTransfer, CoprocessorFieldsAreCutWithAWarning) {
  const uint32_t warnings = num_warnings;
  EXPECT_EQ(encode("MCR", 0, {cp(15), icon(9), reg(2), reg(0x17, OP_CPREG), reg(0x1A, OP_CPREG), icon(13)}),
            0xEE272FBAu);
  EXPECT_EQ(encode("MCRR", 0, {cp(6), icon(31), reg(3), reg(4), reg(0x19, OP_CPREG)}), 0xEC4436F9u);
  EXPECT_EQ(errors, 0u);
  EXPECT_EQ(num_warnings - warnings, 3u);
}

TEST_F(EncodeTransfer, ExclusivesPlaceTheirRegistersByState) {
  EXPECT_EQ(encode("STREXD", 0, {reg(0), reg(2), reg(3), imm_addr(OP_INDIRECT, 4, 0)}), 0xE1A40F92u);
  cur_state = 2;
  encode_state = STATE_THUMB2;
  // Thumb-2 words are built with the first halfword high, before the swap.
  EXPECT_EQ(encode("LDREX", 0, {reg(0), imm_addr(OP_INDPREE, 1, 1020)}), 0x0FFFE851u);
  EXPECT_EQ(encode("STREX", 0, {reg(0), reg(1), imm_addr(OP_INDPREE, 2, 8)}), 0x1002E842u);
  EXPECT_EQ(encode("STREXB", 0, {reg(3), reg(4), imm_addr(OP_INDIRECT, 5, 0)}), 0x4F43E8C5u);
  EXPECT_EQ(encode("STREXD", 0, {reg(0), reg(2), reg(3), imm_addr(OP_INDIRECT, 4, 0)}), 0x2370E8C4u);
  EXPECT_EQ(errors, 0u);
  encode("LDREX", 0, {reg(0), imm_addr(OP_INDPREE, 1, 1024)});
  EXPECT_EQ(errors, 1u);
  encode("STREX", 0, {reg(0), reg(1), imm_addr(OP_INDPREE, 2, 6)});
  EXPECT_EQ(errors, 1u);
}

}  // namespace
