// Data-type suffixes and alignment read behind a mnemonic, as the opcode
// lookup sees a statement's first word.
#include "../source/lexer_fixture.h"
#include "source/lexer_internal.h"
#include "source/ophash.h"
#include "target/arm/opcodes.h"
#include "target/arm/simd_vfp.h"
#include "target/arm/trg.h"

using namespace lex_test;

namespace {

class SimdSuffix : public LexerTest {
 protected:
  void SetUp() override {
    LexerTest::SetUp();
    if (!findop(".COPY")) init_ophash();
    cur_state = 0;
    encode_state = 0;
    testing::internal::CaptureStderr();
  }
  void TearDown() override {
    testing::internal::GetCapturedStderr();
    LexerTest::TearDown();
  }

  // Classifies the first word of `text`; returns the texts of the tokens that
  // follow it up to the end of the line (the rest of the opcode word first).
  std::vector<std::string> statement(const std::string &text, bool look_ahead = false) {
    source(text + "\n");
    next_token();
    if (look_ahead) {
      // As after a word in the first column: one token is read ahead.
      token *next = get_a_token();
      unget_token(&next);
    }
    lookup_opcode();
    EXPECT_EQ(curtk->kind, IR_MNEMONIC) << text;
    std::vector<std::string> rest;
    for (;;) {
      token *t = get_a_token();
      const uint16_t kind = t->kind;
      if (kind == TK_IDENT || kind == TK_OPCODE_REST) rest.emplace_back(t->value.sval);
      else if (kind != TK_EOL) rest.emplace_back(1, static_cast<char>(kind < 128 ? kind : '?'));
      LEX_droptkn(t);
      if (kind == TK_EOL) break;
    }
    return rest;
  }

  static void expect_suffixes(std::initializer_list<simd_suffix> want, uint32_t align = 0) {
    simd_suffix all[3] = {{SIMD_T_ABSENT, 0}, {SIMD_T_ABSENT, 0}, {SIMD_T_ABSENT, 0}};
    int i = 0;
    for (const simd_suffix &s : want) all[i++] = s;
    for (i = 0; i < 3; ++i) {
      EXPECT_EQ(cur_suffixes.types[i].type, all[i].type) << "slot " << i;
      EXPECT_EQ(cur_suffixes.types[i].size, all[i].size) << "slot " << i;
    }
    EXPECT_EQ(cur_suffixes.align, align);
  }
};

using strings = std::vector<std::string>;

TEST_F(SimdSuffix, GoodSuffixesAndTheReaderBehindThem) {
  EXPECT_EQ(statement("\tVADD.F32 S0, S1"), (strings{"S0", ",", "S1"}));
  expect_suffixes({{SIMD_T_F, SIMD_SZ_32}});

  EXPECT_EQ(statement("\tvcvt.f64.s32 d0, s1"), (strings{"d0", ",", "s1"}));
  expect_suffixes({{SIMD_T_F, SIMD_SZ_64}, {SIMD_T_S, SIMD_SZ_32}});

  EXPECT_EQ(statement("\tVEXT.8 D0"), (strings{"D0"}));
  expect_suffixes({{SIMD_T_BARE, SIMD_SZ_8}});

  EXPECT_EQ(statement("\tVLD1.32@128 {D0}"), (strings{"{", "D0", "}"}));
  expect_suffixes({{SIMD_T_BARE, SIMD_SZ_32}}, 8);

  // Letters behind the name come first as the rest of the word.
  EXPECT_EQ(statement("\tVMOVL.U16 Q0"), (strings{"L", "Q0"}));
  expect_suffixes({{SIMD_T_U, SIMD_SZ_16}});
  EXPECT_EQ(statement("\tVADDEQ.F64 D0"), (strings{"EQ", "D0"}));
  expect_suffixes({{SIMD_T_F, SIMD_SZ_64}});

  // The same when the lookup has cut the word and pushed its rest back first.
  source("\tVMULL.P8 Q0\n");
  next_token();
  token *rest = LEX_newtkn(TK_OPCODE_REST, curtk->column + 4);
  LEX_set_text(rest, "L");
  curtk->length = 4;
  unget_token(&rest);
  parse_simd_suffix(findop("VMUL")->mnemonic());
  expect_suffixes({{SIMD_T_P, SIMD_SZ_8}});
  EXPECT_STREQ(next_token()->value.sval, "L");
  EXPECT_STREQ(next_token()->value.sval, "Q0");

  // Without a suffix every slot is absent again.
  EXPECT_EQ(statement("\tVMRS R0, FPSCR"), (strings{"R0", ",", "FPSCR"}));
  expect_suffixes({});

  // A token read ahead from the suffix text is not read twice.
  EXPECT_EQ(statement("VSUB.I16 Q0", true), (strings{"Q0"}));
  expect_suffixes({{SIMD_T_I, SIMD_SZ_16}});
  EXPECT_TRUE(messages().empty());
}

// Each case: the word is passed over whole, with at most one message.
TEST_F(SimdSuffix, BadSuffixesAndTheRuleOfTheClass) {
  const struct {
    const char *text;
    const char *id;       // null: accepted
    const char *message;
  } cases[] = {
      {"\tVADD.F7 S0", "E0004", "Illegal SIMD suffix"},
      {"\tVADD.Q32 S0", "E0004", "Illegal SIMD suffix"},
      {"\tVADD.F S0", "E0004", "Illegal SIMD suffix"},
      {"\tVADD.F32X S0", "E0004", "Illegal SIMD suffix"},
      {"\tVADD. S0", "E0004", "Illegal SIMD suffix"},
      {"\tVLD1.8@48 S0", "E0002", "Illegal Alignment"},
      {"\tVLD1.8@ S0", "E0002", "Illegal Alignment"},
      {"\tVLD1.8@25600000 S0", "E0002", "Illegal Alignment"},
      {"\tVADD.P8 S0", "E0004", "Illegal SIMD suffix type for this mnemonic"},  // F, I, S, U only
      {"\tVADD S0", "E0004", "Illegal SIMD suffix type for this mnemonic"},     // a type is required
      {"\tVCVT.F32.S8 S0", "E0004", "Illegal SIMD suffix size for this mnemonic"},
      {"\tVEOR.I32 S0", "E0004", "Illegal SIMD suffix type for this mnemonic"},  // no suffix at all
      {"\tVMOV.I16.I8 S0", "E0004", "Illegal SIMD suffix size for this mnemonic"},
      {"\tVMOV.I16.U32 S0", "E0004", "Illegal SIMD suffix type for this mnemonic"},
      {"\tVTBL.I8 S0", "E0004", "Illegal SIMD suffix type for this mnemonic"},
      {"\tVMRS.F64 S0", nullptr, nullptr},
      {"\tVBSL.P64 S0", nullptr, nullptr},  // any suffix, silently
      {"\tVMOV.I16.I32 S0", nullptr, nullptr},
      {"\tVTBL.8 S0", nullptr, nullptr},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    num_errors = 0;
    EXPECT_EQ(statement(c.text), (strings{"S0"}));
    EXPECT_EQ(num_errors, c.id ? 1u : 0u);
    if (c.id) {
      EXPECT_TRUE(has_message(messages(), c.id, c.message));
    }
  }

  // A fourth suffix has no place: the first three stay.
  EXPECT_EQ(statement("\tVEOR.I8.I16.I32.I64 D0"), (strings{"D0"}));
  EXPECT_TRUE(has_message(messages(), "E0004", "Illegal SIMD suffix"));
  EXPECT_EQ(cur_suffixes.types[2].size, SIMD_SZ_32);
}

}  // namespace
