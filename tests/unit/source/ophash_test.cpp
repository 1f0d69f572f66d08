// The hash, the opcode table and the classification of statement words.
#include "lexer_fixture.h"
#include "source/ophash.h"
#include "target/arm/opcodes.h"
#include "target/arm/trg.h"

using namespace lex_test;

namespace {

TEST(Hash, HandComputedValues) {
  // "" : 0xFFFFFFFF % 5003. "A": rotl(0xFFFFFFFF, 7) ^ 0x41 = 0xFFFFFFBE, % 5003.
  EXPECT_EQ(hash(""), 1861);
  EXPECT_EQ(hash("A"), 1796);
  EXPECT_EQ(hash("a"), 1764);
  EXPECT_EQ(hash(".TEXT"), 2687);
  EXPECT_EQ(hash("ADD"), 3774);
  EXPECT_EQ(hash("abc"), 930);
  EXPECT_EQ(hash("\xE9t\xE9"), 1768);  // bytes with the top bit set are sign-extended

  delete global_opts;
  global_opts = new option_obj(true);
  global_opts->setopt(OPT_SYMS_IGNORE_CASE);
  EXPECT_EQ(hash("a"), 1796);
  EXPECT_EQ(hash("abc"), 4031);
  EXPECT_EQ(hash("\xE9t\xE9"), 861);
  delete global_opts;
  global_opts = nullptr;
}

inst_class test_class{};
const mnemonic_row arm_only[] = {
    {"ADD", {{0xE0800000u, &test_class}, {0, nullptr}, {0, nullptr}, {0, nullptr}}},
    {"LDR", {{0xE5900000u, &test_class}, {0, nullptr}, {0, nullptr}, {0, nullptr}}},
    {"LDRH", {{0xE1D000B0u, &test_class}, {0, nullptr}, {0, nullptr}, {0, nullptr}}},
    {"B", {{0xEA000000u, &test_class}, {0, nullptr}, {0, nullptr}, {0, nullptr}}},
    {nullptr, {}},
};
const mnemonic_row thumb_add = {"ADD", {{0, nullptr}, {0x1800u, &test_class}, {0, nullptr}, {0, nullptr}}};

class OpcodeTest : public LexerTest {
 protected:
  std::vector<ophashtbl *> added;

  void SetUp() override {
    LexerTest::SetUp();
    if (!findop(".COPY")) init_ophash();
    for (const mnemonic_row *r = arm_only; r->name; ++r)
      added.push_back(new_ophash(r->name, OPTYPE_MNEMONIC, const_cast<mnemonic_row *>(r)));
    cur_state = 0;
    encode_state = 0;
  }
  void TearDown() override {
    for (ophashtbl *e : added) delophash(e);
    cur_state = 0;
    encode_state = 0;
    LexerTest::TearDown();
  }

  // Reads the first word of `text` and classifies it; returns the pushed-back rest.
  std::string classify(const std::string &text) {
    source(text + "\n");
    next_token();
    lookup_opcode();
    if (availtkn && availtkn->kind == TK_OPCODE_REST) return availtkn->value.sval;
    return "";
  }
};

TEST_F(OpcodeTest, DirectivesInAnyCaseAndUnknownWords) {
  const struct { const char *word; uint16_t kind; } rows[] = {
      {".copy", IR_DIRECTIVE}, {".COPY", IR_DIRECTIVE}, {".Include", IR_DIRECTIVE}, {".text", IR_DIRECTIVE},
      {"loop", TK_IDENT},      {"X", TK_IDENT},         {"label:", TK_IDENT},       {"$$symlen", TK_IDENT}};
  for (const auto &r : rows) {
    SCOPED_TRACE(r.word);
    EXPECT_EQ(classify(std::string(" ") + r.word), "");
    ASSERT_EQ(curtk->kind, r.kind);
    EXPECT_TRUE(r.kind == IR_DIRECTIVE ? curtk->value.op->kind == OPTYPE_DIRECTIVE : availtkn == nullptr);
  }
  EXPECT_STREQ(findop(".include")->dir()->name, ".INCLUDE");
  EXPECT_EQ(findop(".nosuchthing"), nullptr);
}

TEST_F(OpcodeTest, PrefixSearchSplitsConditionAndModifiers) {
  const struct { const char *word; const char *row; const char *rest; uint16_t column; } cases[] = {
      {"ADDEQS", "ADD", "EQS", 4},
      {"add", "ADD", "", 0},
      {"ldrhi", "LDR", "hi", 4},
      {"LDRHEQ", "LDRH", "EQ", 5},
      {"LDRH", "LDRH", "", 0},
      {"BLEQ", "B", "LEQ", 2},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.word);
    const std::string rest = classify(std::string(" ") + c.word);
    ASSERT_EQ(curtk->kind, IR_MNEMONIC);
    EXPECT_EQ(curtk->value.op->name, c.row);
    EXPECT_EQ(rest, c.rest);
    if (*c.rest) {
      EXPECT_EQ(availtkn->column, c.column);
    }
  }
}

TEST_F(OpcodeTest, MnemonicsCountOnlyInTheirState) {
  cur_state = 1;  // Thumb: the ARM-only rows are not there
  classify(" RSC");
  EXPECT_EQ(curtk->kind, TK_IDENT);

  ophashtbl *thumb = new_ophash("ADD", OPTYPE_MNEMONIC, const_cast<mnemonic_row *>(&thumb_add));
  classify(" ADD");
  ASSERT_EQ(curtk->kind, IR_MNEMONIC);
  EXPECT_EQ(curtk->value.op, thumb);
  EXPECT_EQ(encode_state, 1u);

  // The younger Thumb entry hides nothing in ARM state: the search goes on.
  cur_state = 0;
  classify(" ADD");
  ASSERT_EQ(curtk->kind, IR_MNEMONIC);
  EXPECT_EQ(curtk->value.op->mnemonic(), &arm_only[0]);
  delophash(thumb);
}

TEST_F(OpcodeTest, YoungestEntryWins) {
  int macro_record = 0;
  ophashtbl *m = new_ophash("add", OPTYPE_MACRO, &macro_record);
  EXPECT_EQ(m->name, "ADD");
  classify(" Add");
  EXPECT_EQ(curtk->kind, IR_MACRO);
  EXPECT_EQ(curtk->value.op, m);
  delophash(m);
  EXPECT_EQ(findop("ADD")->kind, OPTYPE_MNEMONIC);
}

}  // namespace
