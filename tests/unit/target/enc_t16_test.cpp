// 16-bit Thumb branches in the lengths that jump expansion gives them, on
// hand-built statements: a source reaches the 4- and 6-byte forms only once a
// target is out of reach. The leading halfwords go straight to the section
// (none here), so they are checked through the helpers that build them, and
// the statement's own last halfword through the encoder.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <deque>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/records.h"
#include "expr/int128.h"
#include "target/arm/arch.h"
#include "target/arm/enc_t16.h"
#include "target/arm/encode.h"
#include "target/arm/glue_pending.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

class Thumb16Branch : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_pass1_ = pass1;
    saved_pass2_ = pass2;
    pass1 = 0;
    pass2 = 1;
    arm_arch_types.set("5e");
    cur_state = encode_state = STATE_THUMB16;
    ::testing::internal::CaptureStderr();
  }
  void TearDown() override {
    ::testing::internal::GetCapturedStderr();
    clear_messages();
    arm_arch_types.set(nullptr);
    cur_state = encode_state = 0;
    instlen = 0;
    pass1 = saved_pass1_;
    pass2 = saved_pass2_;
  }

  // A plain-number target: the offset itself.
  operand *offset(int64_t v) {
    operand &o = ops_.emplace_back();
    o.kind = OP_SYMBOL;
    o.value.v_type = VT_ICON;
    o.value.v_val = xi_from_i64(v);
    o.op_lane = -2;
    o.op_shift = SHIFT_NONE;
    return &o;
  }

  // The statement's own halfword after encoding `name` at `length` bytes.
  uint32_t last_half(const char *name, unsigned length, int64_t target, uint8_t cond = COND_AL,
                     bool cond_written = false) {
    clear_messages();
    const mnemonic_row *row = trg_mnemonics;
    while (row->name && std::strcmp(row->name, name) != 0) ++row;
    EXPECT_NE(row->name, nullptr) << name;
    instruct ir{};
    ir.kind = IR_MNEMONIC;
    ir.record = row;
    ir.line = &line_;
    ir.ia_cond = cond;
    ir.ia_flags = cond != COND_AL || cond_written ? uint32_t{IF_COND} : 0u;
    ir.oprnds[0] = offset(target);
    instlen = length;
    encode_krv616_ins(&ir);
    EXPECT_EQ(ir.ior.ior_length, 16u) << name;
    return ENC_word(&ir);
  }

  std::string messages() const {
    std::string all;
    for (char *m : line_.messages)
      if (m) all += std::string(m) + "\n";
    return all;
  }
  void clear_messages() {
    for (char *&m : line_.messages) {
      std::free(m);
      m = nullptr;
    }
  }

  int16_t saved_pass1_ = 0, saved_pass2_ = 0;
  linebuf line_{};
  std::deque<operand> ops_;
};

TEST_F(Thumb16Branch, LeadingHalfwordsSkipOnTheInvertedCondition) {
  // 4 bytes: over one halfword (offset 0); 6 bytes: over two (offset 1).
  EXPECT_EQ(T16_skip_half(COND_EQ, 4), 0xD100u);
  EXPECT_EQ(T16_skip_half(COND_NE, 4), 0xD000u);
  EXPECT_EQ(T16_skip_half(COND_GT, 6), 0xDD01u);
  EXPECT_EQ(T16_skip_half(COND_LE, 6), 0xDC01u);
}

TEST_F(Thumb16Branch, BranchWithLinkSplitsItsOffset) {
  // Halfword offsets: 0x80 is bl #0x100; -2 is the addend of a relocated call.
  uint16_t h[2];
  T16_link_halves(0x80, false, h);
  EXPECT_EQ(h[0], 0xF000u);
  EXPECT_EQ(h[1], 0xF880u);
  T16_link_halves(-2, false, h);
  EXPECT_EQ(h[0], 0xF7FFu);
  EXPECT_EQ(h[1], 0xFFFEu);
  T16_link_halves(-2, true, h);
  EXPECT_EQ(h[1], 0xEFFEu);
  T16_link_halves(0x1FFFFF, false, h);   // the largest forward offset
  EXPECT_EQ(h[0], 0xF3FFu);
  EXPECT_EQ(h[1], 0xFFFFu);
}

TEST_F(Thumb16Branch, LastHalfwordByLength) {
  // 2 bytes: the condition in the branch itself, 8 or 11 bits.
  EXPECT_EQ(last_half("BR", 2, 0x100), 0xE080u);
  EXPECT_EQ(last_half("BR", 2, 0xFE, COND_NE), 0xD17Fu);
  EXPECT_EQ(last_half("BT", 2, -4, COND_MI), 0xD4FEu);
  // 4 bytes, conditional: an unconditional 11-bit branch behind the skip.
  EXPECT_EQ(last_half("BR", 4, 0x7FE, COND_EQ), 0xE3FFu);
  EXPECT_EQ(last_half("B", 4, -0x800, COND_CS), 0xE400u);
  // 4 bytes, unconditional pseudo-branch, and 6 bytes: a branch with link,
  // its low half last.
  EXPECT_EQ(last_half("BR", 4, 0x1002), 0xF801u);
  EXPECT_EQ(last_half("CRET", 4, 0x1002), 0xF801u);
  EXPECT_EQ(last_half("BT", 6, 0x3FFFFE, COND_GT), 0xFFFFu);
  EXPECT_EQ(messages(), "");
  // Out of reach of the long form's own field: its message, and the length stays.
  last_half("BR", 4, 0x1000, COND_EQ);
  EXPECT_NE(messages().find("Offset out of range, must be [-2048,2047]"), std::string::npos) << messages();
}

TEST_F(Thumb16Branch, WrittenAlwaysConditionBranchesAlways) {
  // AL or NV written: a warning, and the unconditional forms; a long form
  // that jump expansion made for a condition keeps its length.
  EXPECT_EQ(last_half("B", 2, 8, COND_AL, true), 0xE004u);
  EXPECT_NE(messages().find("W0004"), std::string::npos);
  EXPECT_EQ(last_half("BR", 2, 8, COND_NV), 0xE004u);
  EXPECT_NE(messages().find("W0004"), std::string::npos);
  EXPECT_EQ(last_half("BR", 4, 8, COND_AL, true), 0xE004u);
  EXPECT_EQ(last_half("BT", 6, 0x1002, COND_NV), 0xF801u);
}

}  // namespace
