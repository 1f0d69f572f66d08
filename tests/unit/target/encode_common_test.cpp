// The operations every class encoder relies on: a wrong rotation, a range
// boundary off by one or a shift count taken modulo 32 would corrupt many
// instructions at once.
#include <gtest/gtest.h>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "target/arm/arch.h"
#include "target/arm/checks.h"
#include "target/arm/encode.h"
#include "target/arm/tables.h"

namespace {

const mnemonic_row *row_named(const char *name) {
  for (const mnemonic_row *r = trg_mnemonics; r->name; ++r)
    if (std::string(r->name) == name) return r;
  return nullptr;
}

class EncodeCommon : public ::testing::Test {
 protected:
  void SetUp() override {
    encode_state = STATE_ARM;
    ir = IR_alloc(IR_MNEMONIC, row_named("ADD"), nullptr);
    errors = num_errors;
  }
  void TearDown() override {
    IR_free(ir);
    arm_arch_types.set(nullptr);
  }
  uint32_t new_errors() const { return num_errors - errors; }
  operand *icon(int64_t v) {
    operand *op = new_operand(OP_ICON);
    XI_llitox(v, op->value.v_val.b);
    ir->oprnds[slot++] = op;
    return op;
  }
  operand *shifted(uint8_t rm, uint8_t type, int64_t amount) {
    operand *op = icon(amount);
    op->kind = OP_SHIFTREGI;
    op->op_reg = op->op_reg2 = rm;
    op->op_shift = type;
    return op;
  }
  instruct *ir = nullptr;
  uint32_t errors = 0;
  int slot = 0;
};

TEST_F(EncodeCommon, RotatedImmediatesTakeTheSmallestRotation) {
  uint32_t f = 0;
  EXPECT_TRUE(ENC_rotated_imm(0, &f));
  EXPECT_EQ(f, 0u);
  EXPECT_TRUE(ENC_rotated_imm(0xFF, &f));
  EXPECT_EQ(f, 0xFFu);
  EXPECT_TRUE(ENC_rotated_imm(0x3FC, &f));     // 0xFF ror 30
  EXPECT_EQ(f, 0xFFu | 15u << 8);
  EXPECT_TRUE(ENC_rotated_imm(0xFF000000, &f));
  EXPECT_EQ(f, 0xFFu | 4u << 8);
  EXPECT_TRUE(ENC_rotated_imm(0xF000000F, &f));  // wraps around bit 0
  EXPECT_EQ(f, 0xFFu | 2u << 8);
  EXPECT_TRUE(ENC_rotated_imm(0x104, &f));       // even rotation of 0x41
  EXPECT_EQ(f, 0x41u | 15u << 8);
  EXPECT_FALSE(ENC_rotated_imm(0x102, &f));      // needs an odd rotation
  EXPECT_FALSE(ENC_rotated_imm(0xFFFFFFFF, &f));
  EXPECT_FALSE(ENC_rotated_imm(0x1FE00000 | 1, &f));
}

TEST_F(EncodeCommon, FieldsGoInThroughOneCheckedInserter) {
  ENC_put(ir, 28, 4, 0xE);
  ENC_put(ir, 12, 4, 3);
  ENC_set(ir, 1u << 25);
  EXPECT_EQ(ENC_word(ir), 0xE2003000u);
  ENC_clear(ir, 0xFu << 28);
  EXPECT_EQ(ENC_word(ir), 0x02003000u);
  EXPECT_EQ(new_errors(), 0u);
}

TEST_F(EncodeCommon, RangeChecksAtTheirBoundaries) {
  operand *op = icon(-(1 << 25));
  EXPECT_EQ(ENC_range(ir, op, 2, 24, true), -(1 << 23));
  op = icon((1 << 25) - 4);
  EXPECT_EQ(ENC_range(ir, op, 2, 24, true), (1 << 23) - 1);
  EXPECT_EQ(new_errors(), 0u);
  op = icon(1 << 25);
  EXPECT_EQ(ENC_range(ir, op, 2, 24, true), 0);
  EXPECT_EQ(ENC_value(op), 0);
  EXPECT_EQ(new_errors(), 1u);
  op = icon(6);  // not on a 4-byte boundary
  EXPECT_EQ(ENC_range(ir, op, 2, 24, true), 0);
  EXPECT_EQ(new_errors(), 2u);
  op = icon(255);
  EXPECT_EQ(ENC_range(ir, op, 0, 8, false), 255);
  op = icon(-1);
  EXPECT_EQ(ENC_range(ir, op, 0, 8, false), 0);
  EXPECT_EQ(new_errors(), 3u);
}

TEST_F(EncodeCommon, ShiftedRegisterFields) {
  EXPECT_EQ(ENC_shifted_reg_imm(ir, shifted(3, SHIFT_LSL, 31)), 3u | 31u << 7);
  EXPECT_EQ(ENC_shifted_reg_imm(ir, shifted(3, SHIFT_LSR, 32)), 3u | 1u << 5);   // 32 is written as 0
  EXPECT_EQ(ENC_shifted_reg_imm(ir, shifted(3, SHIFT_ASR, 1)), 3u | 2u << 5 | 1u << 7);
  EXPECT_EQ(ENC_shifted_reg_imm(ir, shifted(4, SHIFT_RRX, 0)), 4u + 96u);
  EXPECT_EQ(ENC_shifted_reg_imm(ir, shifted(5, SHIFT_NONE, 0)), 5u);
  EXPECT_EQ(new_errors(), 0u);
  ENC_shifted_reg_imm(ir, shifted(3, SHIFT_ROR, 32));
  ENC_shifted_reg_imm(ir, shifted(3, SHIFT_LSL, 32));
  ENC_shifted_reg_imm(ir, shifted(3, SHIFT_LSR, 0));
  EXPECT_EQ(new_errors(), 3u);
}

TEST_F(EncodeCommon, ArchitectureChecksFollowTheSelectedArchitecture) {
  arm_arch_types.set("4");
  check_arch_v5(ir);
  check_arch_v7_or_m0(ir);
  EXPECT_EQ(new_errors(), 2u);
  arm_arch_types.set("6M0");
  check_arch_v7_or_m0(ir);
  check_arch_v6(ir);
  EXPECT_EQ(new_errors(), 2u);
  error_if_cortex_m(ir);
  EXPECT_EQ(new_errors(), 3u);
  arm_arch_types.set("7M3");
  error_if_cortex_m3(ir);
  error_if_cortex_m4(ir);
  check_arch_v8m33(ir);
  EXPECT_EQ(new_errors(), 5u);
}

}  // namespace
