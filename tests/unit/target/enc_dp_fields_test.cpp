// Field placement of the data-processing, multiply and media encoders, in
// ARM state and in the Thumb-2 slots: every register, immediate and shift of
// a row must land where the architecture puts it. Expected words are those of
// a reference assembler (Thumb-2 words with the first halfword on top).
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "target/arm/arch.h"
#include "target/arm/enc_regs.h"
#include "target/arm/encode.h"
#include "target/arm/encoders.h"
#include "target/arm/tables.h"

namespace {

// One operand as the parser leaves it.
struct op_spec {
  uint16_t kind;
  uint8_t reg;
  uint8_t shift;
  int64_t value;
};

constexpr op_spec R(uint8_t n) { return {OP_REGISTER, n, SHIFT_NONE, n}; }
constexpr op_spec I(int64_t v) { return {OP_ICON, 0, SHIFT_NONE, v}; }
constexpr op_spec SH(uint8_t n, uint8_t type, int64_t amount) { return {OP_SHIFTREGI, n, type, amount}; }
constexpr op_spec SR(uint8_t n, uint8_t type, uint8_t rs) { return {OP_SHIFTREGR, n, type, rs}; }

struct field_case {
  const char *row;
  uint32_t state;
  std::vector<op_spec> ops;
  uint32_t word;
};

class EncDpFields : public ::testing::Test {
 protected:
  // Encoders run in pass 2, where their messages are shown.
  void SetUp() override {
    saved_pass1 = pass1;
    pass1 = 0;
  }
  void TearDown() override {
    pass1 = saved_pass1;
    if (ir) IR_free(ir);
    encode_state = STATE_ARM;
    arm_arch_types.set(nullptr);
  }

  // Builds the statement, writes its base word and runs its class encoder
  // (MOVW and MOVT through their own); the messages are returned.
  std::string encode(const char *row, uint32_t state, const std::vector<op_spec> &ops, const char *prefix = "") {
    if (ir) IR_free(ir);
    encode_state = state;
    ir = IR_alloc(IR_MNEMONIC, OPR_find_row(row), nullptr);
    ir->ia_cond = COND_AL;
    std::snprintf(ir->ia_prefix, sizeof ir->ia_prefix, "%s", prefix);
    for (size_t i = 0; i < ops.size(); ++i) {
      operand *op = new_operand(ops[i].kind);
      op->op_reg = op->op_reg2 = ops[i].reg;
      op->op_shift = ops[i].shift;
      XI_llitox(ops[i].value, op->value.v_val.b);
      ir->oprnds[i] = op;
    }
    const uint32_t errors = num_errors + num_warnings;
    ::testing::internal::CaptureStderr();
    ENC_set(ir, ia_opcode(ir));
    if (ia_class(ir)->ic_id == 125)
      encode_movw_movt(ir);
    else
      class_encoder_for(ia_class(ir)->ic_id)(ir);
    std::string messages = ::testing::internal::GetCapturedStderr();
    if (num_errors + num_warnings == errors) messages.clear();
    return messages;
  }

  uint32_t word() const { return ENC_word(ir); }

  instruct *ir = nullptr;
  int16_t saved_pass1 = 0;
};

constexpr uint32_t ARM = STATE_ARM;
constexpr uint32_t T2 = STATE_THUMB2;

TEST_F(EncDpFields, RegistersAndImmediatesLandInPlace) {
  arm_arch_types.set("7A8");
  const std::vector<field_case> cases = {
      // ARM data processing: swaps, shifts, register shifts, MOVW substitution.
      {"ADD", ARM, {R(0), R(1), I(-1)}, 0x02410001},            // sub r0, r1, #1
      {"CMP", ARM, {R(0), I(-1)}, 0x03700001},                  // cmn r0, #1
      {"CMN", ARM, {R(2), I(-256)}, 0x03520C01},                // cmp r2, #256
      {"ADD", ARM, {R(0), R(1), SH(2, SHIFT_LSR, 32)}, 0x00810022},
      {"ADD", ARM, {R(0), R(1), SR(2, SHIFT_ASR, 3)}, 0x00810352},
      {"ADD", ARM, {R(0), R(1), SH(2, SHIFT_RRX, 0)}, 0x00810062},
      {"TEQ", ARM, {R(1), I(0xFF000000)}, 0x033104FF},
      {"MOV", ARM, {R(0), I(0x1234)}, 0x03010234},             // movw
      {"MOVT", ARM, {R(0), I(0xFFFF)}, 0x034F0FFF},
      {"CLZ", ARM, {R(0), R(1)}, 0x016F0F11},
      // Multiplies.
      {"MLA", ARM, {R(0), R(1), R(2), R(3)}, 0x00203291},
      {"SMLAWT", ARM, {R(0), R(1), R(2), R(3)}, 0x012032C1},
      {"UMULL", ARM, {R(0), R(1), R(2), R(3)}, 0x00810392},
      {"QDSUB", ARM, {R(0), R(1), R(2)}, 0x01620051},
      {"SMULTB", ARM, {R(0), R(1), R(2)}, 0x016002A1},
      // Media.
      {"BFC", ARM, {R(0), I(4), I(8)}, 0x07CB021F},
      {"UBFX", ARM, {R(0), R(1), I(0), I(32)}, 0x07FF0051},
      {"SSAT", ARM, {R(0), I(32), SH(1, SHIFT_ASR, 32)}, 0x06BF0051},
      {"USAT", ARM, {R(0), I(31), SH(1, SHIFT_LSL, 31)}, 0x06FF0F91},
      {"SXTAB", ARM, {R(0), R(1), SH(2, SHIFT_ROR, 8)}, 0x06A10472},
      {"SXTB", ARM, {R(0), SH(1, SHIFT_ROR, 24)}, 0x06AF0C71},
      {"SMMLSR", ARM, {R(0), R(1), R(2), R(3)}, 0x075032F1},
      {"SMLSLDX", ARM, {R(0), R(1), R(2), R(3)}, 0x07410372},
      {"USADA8", ARM, {R(0), R(1), R(2), R(3)}, 0x07803211},
      {"PKHBT", ARM, {R(0), R(1), SH(2, SHIFT_LSL, 5)}, 0x06810292},
      {"PKHTB", ARM, {R(0), R(1), SH(2, SHIFT_ASR, 32)}, 0x06810052},
      {"PKHTB", ARM, {R(0), R(1), R(2)}, 0x06820011},           // pkhbt r0, r2, r1
      // Thumb-2 slots of the same classes.
      {"CLZ", T2, {R(1), R(2)}, 0xFAB2F182},
      {"SMLAWB", T2, {R(0), R(1), R(2), R(3)}, 0xFB313002},
      {"SMLALBT", T2, {R(0), R(1), R(2), R(3)}, 0xFBC20193},
      {"UMULL", T2, {R(4), R(5), R(6), R(7)}, 0xFBA64507},
      {"QDADD", T2, {R(0), R(1), R(2)}, 0xFA82F091},
      {"BFI", T2, {R(0), R(1), I(5), I(9)}, 0xF361104D},
      {"BFC", T2, {R(3), I(30), I(2)}, 0xF36F739F},
      {"UBFX", T2, {R(0), R(1), I(3), I(29)}, 0xF3C100DC},
      {"SSAT", T2, {R(0), I(32), SH(1, SHIFT_ASR, 31)}, 0xF32170DF},
      {"USAT", T2, {R(2), I(0), SH(3, SHIFT_LSL, 7)}, 0xF38312C0},
      {"SSAT16", T2, {R(0), I(16), R(1)}, 0xF321000F},
      {"USAT16", T2, {R(0), I(15), R(1)}, 0xF3A1000F},
      {"SEL", T2, {R(0), R(1), R(2)}, 0xFAA1F082},
      {"SMLSDX", T2, {R(0), R(1), R(2), R(3)}, 0xFB413012},
      {"SMUAD", T2, {R(0), R(1), R(2)}, 0xFB21F002},
      {"UMAAL", T2, {R(0), R(1), R(2), R(3)}, 0xFBE20163},
      {"SMLALDX", T2, {R(4), R(5), R(6), R(7)}, 0xFBC645D7},
      {"USAD8", T2, {R(0), R(1), R(2)}, 0xFB71F002},
      {"USADA8", T2, {R(0), R(1), R(2), R(3)}, 0xFB713002},
      {"PKHBT", T2, {R(0), R(1), SH(2, SHIFT_LSL, 13)}, 0xEAC13042},
      {"PKHTB", T2, {R(0), R(1), SH(2, SHIFT_ASR, 5)}, 0xEAC11062},
      {"MOVW", T2, {R(9), I(0xF123)}, 0xF24F1923},
      {"MOVT", T2, {R(9), I(0x8765)}, 0xF2C87965},
  };
  for (const field_case &c : cases) {
    const std::string messages = encode(c.row, c.state, c.ops);
    EXPECT_EQ(messages, "") << c.row;
    EXPECT_EQ(word(), c.word) << c.row << " in state " << c.state << std::hex << ": got 0x" << word();
  }
}

TEST_F(EncDpFields, ParallelPrefixesPerState) {
  arm_arch_types.set("7A8");
  struct prefix_case {
    const char *prefix;
    field_case c;
  };
  const prefix_case cases[] = {
      {"S", {"ADD16", ARM, {R(0), R(1), R(2)}, 0x06110F12}},
      {"UH", {"SUB8", ARM, {R(0), R(1), R(2)}, 0x06710FF2}},
      {"Q", {"ADDSUBX", ARM, {R(0), R(1), R(2)}, 0x06210F32}},
      {"S", {"ADD16", T2, {R(0), R(1), R(2)}, 0xFA91F002}},
      {"UH", {"SUB8", T2, {R(3), R(4), R(5)}, 0xFAC4F365}},
  };
  for (const prefix_case &p : cases) {
    EXPECT_EQ(encode(p.c.row, p.c.state, p.c.ops, p.prefix), "") << p.prefix << p.c.row;
    EXPECT_EQ(word(), p.c.word) << p.prefix << p.c.row << std::hex << ": got 0x" << word();
  }
}

// Messages whose words differ in a Thumb-2 slot, and Thumb-2 ranges that
// the ARM-state sources cannot reach yet.
TEST_F(EncDpFields, Thumb2SlotMessages) {
  arm_arch_types.set("7A8");
  struct message_case {
    field_case c;
    const char *words;
  };
  const message_case cases[] = {
      {{"SMLAD", T2, {R(0), R(1), R(2), R(15)}, 0}, "Operand Racc cannot be R15"},
      {{"SMLAD", ARM, {R(0), R(1), R(2), R(15)}, 0}, "Operand Rn cannot be R15"},
      {{"SMLAWB", T2, {R(0), R(1), R(2), I(3)}, 0}, "Operand Racc must be a register"},
      {{"MOVW", T2, {R(0), I(0x10000)}, 0}, "Immediate cannot be greater than 16-bits"},
      {{"MOVT", T2, {R(15), I(1)}, 0}, "Specifying R15 as an operand is illegal"},
      {{"PKHTB", T2, {R(0), R(1), SH(2, SHIFT_LSL, 3)}, 0}, "Illegal shift type. Must be ASR"},
      {{"USAT", T2, {R(0), I(32), R(1)}, 0}, "Illegal operand for immediate"},
      {{"SXTAB", ARM, {R(0), R(15), R(1)}, 0}, "Operand Rn cannot be R15"},
  };
  for (const message_case &m : cases) {
    const std::string messages = encode(m.c.row, m.c.state, m.c.ops);
    EXPECT_NE(messages.find(m.words), std::string::npos) << m.c.row << ": " << messages;
  }
}

// A statement moved to another row keeps that row for the rest of its
// encoding (the condition and the modifier check read the row's class).
TEST_F(EncDpFields, RewrittenStatementsTakeTheirNewRow) {
  arm_arch_types.set("7A8");
  encode("MOV", ARM, {R(3), I(0xFFFF)});
  EXPECT_STREQ(ia_row(ir)->name, "MOVW");
  EXPECT_EQ(word(), 0x030F3FFFu);
  encode("MOV", ARM, {R(3), I(0xFF00)});
  EXPECT_STREQ(ia_row(ir)->name, "MOV");
  encode("PKHTB", T2, {R(0), R(1), R(2)});
  EXPECT_STREQ(ia_row(ir)->name, "PKHBT");
  EXPECT_EQ(word(), 0xEAC20001u);
  arm_arch_types.set("6");
  EXPECT_NE(encode("MOV", ARM, {R(3), I(0xFFFF)}).find("rotated 8 bit"), std::string::npos);
  EXPECT_STREQ(ia_row(ir)->name, "MOV");
}

}  // namespace
