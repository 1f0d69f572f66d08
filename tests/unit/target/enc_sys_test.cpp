// Branch and system encoders on statements built by hand, for what a source
// can't reach yet: a call to Thumb code without its relocation, and an IT
// block without the Thumb-2 encoders. The word and the messages of the line.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <deque>
#include <initializer_list>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/records.h"
#include "expr/symbols.h"
#include "target/arm/arch.h"
#include "target/arm/encode.h"
#include "target/arm/instr.h"
#include "target/arm/opcodes.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

class SysEncoderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_pass1_ = pass1;
    saved_pass2_ = pass2;
    pass1 = 0;
    pass2 = 1;
    num_errors = num_warnings = 0;
    cur_it_string[0] = 0;
    arch("7A8");
    // The lines' message slots are what the tests read; the screen copy is noise.
    ::testing::internal::CaptureStderr();
  }
  void TearDown() override {
    ::testing::internal::GetCapturedStderr();
    clear_messages();
    arm_arch_types.set(nullptr);
    cur_state = encode_state = 0;
    cur_it_string[0] = 0;
    pass1 = saved_pass1_;
    pass2 = saved_pass2_;
  }

  static void arch(const char *text) { arm_arch_types.set(text); }
  // ARM state, or the Thumb-2 slot (2) or the Thumb-16 slot (1) of a Thumb-2 source.
  static void state(uint32_t s) {
    encode_state = s;
    cur_state = s == STATE_ARM ? STATE_ARM : STATE_THUMB2;
  }

  operand *op(uint16_t kind, int64_t value = 0) {
    operand &o = ops_.emplace_back();
    o.kind = kind;
    o.value.v_type = VT_ICON;
    o.value.v_val = xi_from_i64(value);
    o.op_lane = -2;
    o.op_shift = SHIFT_NONE;
    return &o;
  }
  operand *imm(int64_t v) { return op(OP_ICON, v); }

  // Encodes the row `name` with the operands. The word comes back with the
  // first Thumb halfword on top, as the encoders build it.
  uint32_t encode(const char *name, std::initializer_list<operand *> operands, uint32_t flags = 0,
                  uint8_t cond = COND_AL) {
    clear_messages();
    const mnemonic_row *row = trg_mnemonics;
    while (row->name && std::strcmp(row->name, name) != 0) ++row;
    EXPECT_NE(row->name, nullptr) << name;
    instruct ir{};
    ir.kind = IR_MNEMONIC;
    ir.record = row;
    ir.line = &line_;
    ir.ia_cond = cond;
    ir.ia_flags = flags | (cond != COND_AL ? uint32_t{IF_COND} : 0u);
    int i = 0;
    for (operand *o : operands) ir.oprnds[i++] = o;
    instlen = encode_state == STATE_THUMB16 ? 2 : 4;
    encode_krv616_ins(&ir);
    const uint32_t w = ENC_word(&ir);
    return encode_state == STATE_ARM ? w : (w << 16) | (w >> 16);
  }

  // The messages of the last statement, joined; "" when none.
  std::string messages() const {
    std::string all;
    for (char *m : line_.messages)
      if (m) all += std::string(m) + "\n";
    return all;
  }
  bool said(const char *id, const char *text) const {
    const std::string all = messages();
    return all.find(id) != std::string::npos && all.find(text) != std::string::npos;
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

TEST_F(SysEncoderTest, CallToThumbCodeOfThisFileBecomesBlx) {
  symbol_record thumb_fn{};
  thumb_fn.sym_state = 2;
  thumb_fn.sym_storage = SYM_STOR_GLOBAL;
  operand *target = op(OP_SYMBOL, 0x102);
  target->value.v_symbol = &thumb_fn;
  // Offset 0x102: word part 0x40, halfword bit at 24.
  EXPECT_EQ(encode("B", {target}, IF_LINK), 0xFB000040u);
  // A plain B, a conditional BL, an external symbol, ARM code, or below v5E:
  // no change. The encoder leaves the field's value in the operand, so each
  // statement gets its own.
  const auto to = [&](int64_t offset) {
    operand *o = op(OP_SYMBOL, offset);
    o->value.v_symbol = &thumb_fn;
    return o;
  };
  EXPECT_EQ(encode("B", {to(0x100)}), 0xEA000040u);
  EXPECT_EQ(encode("B", {to(0x100)}, IF_LINK, COND_NE), 0x1B000040u);
  thumb_fn.sym_storage = SYM_STOR_EXTERN;
  EXPECT_EQ(encode("B", {to(0x100)}, IF_LINK), 0xEB000040u);
  thumb_fn.sym_storage = SYM_STOR_LOCAL;
  thumb_fn.sym_state = 0;
  EXPECT_EQ(encode("B", {to(0x100)}, IF_LINK), 0xEB000040u);
  thumb_fn.sym_state = 1;
  EXPECT_EQ(encode("B", {to(0x100)}, IF_LINK), 0xFA000040u);
  EXPECT_EQ(messages(), "");
  arch("4");
  EXPECT_EQ(encode("B", {to(0x100)}, IF_LINK), 0xEB000040u);
}

// IT blocks come from the Thumb-2 encoders; the encoder only reads the state.
TEST_F(SysEncoderTest, UdfInsideAnItBlockIsDeprecated) {
  state(STATE_THUMB16);
  std::strcpy(cur_it_string, "TE");
  EXPECT_EQ(encode("UDF", {imm(0x12)}) >> 16, 0xDE12u);
  EXPECT_TRUE(said("W0005", "Deprecated use of UDF inside an IT block"));
  cur_it_string[0] = 0;
  encode("UDF", {imm(0x12)});
  EXPECT_EQ(messages(), "");
}

}  // namespace
