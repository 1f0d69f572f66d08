// Integer, character, string and floating constants, with their messages.
#include <cstring>

#include "expr/fval.h"
#include "lexer_fixture.h"

using namespace lex_test;

namespace {

TEST_F(LexerTest, IntegerConstantsInEveryRadixAndSuffix) {
  const struct {
    const char *text;
    uint64_t value;
    const char *error;  // null: no message
    uint8_t u, l, ll;
  } cases[] = {
      {"0x", 0, nullptr, 0, 0, 0},      {"0X1f", 0x1f, nullptr, 0, 0, 0},  {"1fh", 0x1f, nullptr, 0, 0, 0},
      {"1FH", 0x1f, nullptr, 0, 0, 0},  {"0ABCDh", 0xabcd, nullptr, 0, 0, 0}, {"77q", 077, nullptr, 0, 0, 0},
      {"17Q", 017, nullptr, 0, 0, 0},   {"101b", 5, nullptr, 0, 0, 0},     {"0B", 0, nullptr, 0, 0, 0},
      {"99d", 99, nullptr, 0, 0, 0},    {"0d", 0, nullptr, 0, 0, 0},       {"017", 15, nullptr, 0, 0, 0},
      {"0", 0, nullptr, 0, 0, 0},       {"1234567890123", 1234567890123ull, nullptr, 0, 0, 0},
      {"1f", 0, "Invalid constant", 0, 0, 0},
      {"09", 0, "Invalid octal constant specified", 0, 0, 0},
      {"0b101", 0, "Invalid octal constant specified", 0, 0, 0},
      {"1e5", 0, "Invalid decimal constant specified", 0, 0, 0},
      {"1AD", 0, "Invalid decimal constant specified", 0, 0, 0},
      {"12x5", 0, "Invalid hex constant specified", 0, 0, 0},
      {"102b", 0, "Invalid binary constant specified", 0, 0, 0},
      {"1U", 1, nullptr, 1, 0, 0},      {"1l", 1, nullptr, 0, 1, 0},       {"1UL", 1, nullptr, 1, 1, 0},
      {"1lu", 1, nullptr, 1, 1, 0},     {"1LL", 1, nullptr, 0, 0, 1},      {"1ULL", 1, nullptr, 1, 0, 1},
      {"1llu", 1, nullptr, 1, 0, 1},    {"0x10UL", 16, nullptr, 1, 1, 0},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    EXPECT_EQ(tks[0]->kind, TK_ICON);
    EXPECT_EQ(low64(tks[0]->value.ival), c.value);
    EXPECT_EQ(tks[0]->column, 1);
    EXPECT_EQ(tks[0]->length, std::strlen(c.text));
    EXPECT_EQ(tks[0]->usuffix, c.u);
    EXPECT_EQ(tks[0]->lsuffix, c.l);
    EXPECT_EQ(tks[0]->llsuffix, c.ll);
    EXPECT_EQ(num_errors, c.error ? 1u : 0u);
    if (c.error) {
      EXPECT_TRUE(has_message(messages(), "E0003", c.error));
    }
    drop(tks);
  }
}

TEST_F(LexerTest, SuffixAutomatonLeavesWhatItRefuses) {
  const struct { const char *text, *rest; } cases[] = {
      {"1UU", "U"}, {"1LLL", "L"}, {"1ULU", "U"}, {"1LUL", "L"}, {"1ULLU", "U"}, {"1LLUL", "L"}};
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(c.text + std::string(" "));
    ASSERT_EQ(tks.size(), 3u);
    EXPECT_EQ(tks[0]->kind, TK_ICON);
    ASSERT_EQ(tks[1]->kind, TK_IDENT);
    EXPECT_STREQ(tks[1]->value.sval, c.rest);
    drop(tks);
  }
}

TEST_F(LexerTest, WideConstantsKeep128BitsAndDropOverflow) {
  auto tks = line_tokens(" 0FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFh");
  for (uint8_t b : tks[0]->value.ival.b) EXPECT_EQ(b, 0xFF);
  drop(tks);
  tks = line_tokens(" 18446744073709551616");  // 2^64
  EXPECT_EQ(tks[0]->value.ival.b[7], 1);
  EXPECT_EQ(low64(tks[0]->value.ival), 0u);
  drop(tks);
}

TEST_F(LexerTest, CharacterAndStringConstants) {
  const struct { const char *text; uint32_t value; uint16_t length; } chars[] = {
      {"'A'", 0x41, 1}, {"'AB'", 0x4241, 2}, {"''", 0, 0}, {"''''", 0x27, 1}, {"'abcde'", 0x64636261, 4},
      {"' '", 0x20, 1}};
  for (const auto &c : chars) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    EXPECT_EQ(tks[0]->kind, TK_CCON);
    EXPECT_EQ(low64(tks[0]->value.ival), c.value);
    EXPECT_EQ(tks[0]->length, c.length);
    EXPECT_EQ(num_errors, 0u);
    drop(tks);
  }
  // Doubled quotes and no escapes.
  const struct { const char *text, *value; } strings[] = {
      {"\"abc\"", "abc"}, {"\"a\"\"b\"", "a\"b"}, {"\"\"", ""}, {"\"a;b\"", "a;b"},
      {"\"a\\n\"", "a\\n"}, {"\"it's\"", "it's"}, {"\"\t x\"", "\t x"}};
  for (const auto &c : strings) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text + " ; comment");
    ASSERT_EQ(tks.size(), 2u);
    ASSERT_EQ(tks[0]->kind, TK_SCON);
    EXPECT_STREQ(tks[0]->value.sval, c.value);
    EXPECT_EQ(tks[0]->length, std::strlen(c.value));
    EXPECT_EQ(num_errors, 0u);
    drop(tks);
  }
}

TEST_F(LexerTest, FloatingConstants) {
  const struct { const char *text, *value; } cases[] = {
      {"1.5e3", "1.5E3"}, {"1.5", "1.5"}, {"2.5E-3", "2.5E-3"}, {"0.", "0."},
      {"3.25f", "3.25"},  {"7.L", "7."},  {"1.0e+2", "1.0E+2"}};
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    ASSERT_EQ(tks[0]->kind, TK_FCON);
    simul_fval expect{};
    ASSERT_EQ(f_atof(c.value, &expect), 0);
    EXPECT_EQ(std::memcmp(tks[0]->value.fval, &expect, sizeof expect), 0);
    EXPECT_EQ(tks[0]->length, std::strlen(c.text));
    EXPECT_EQ(num_errors, 0u);
    drop(tks);
  }
}

TEST_F(LexerTest, BadFloatsAndOpenStrings) {
  const struct { const char *text; uint16_t kind; const char *id, *message; } cases[] = {
      {"1.5e", TK_FCON, "E0003", "Invalid float constant specified"},
      {"1.5e+", TK_FCON, "E0003", "Invalid float constant specified"},
      {"1A.5", TK_FCON, "E0003", "Invalid float constant specified"},
      {"1.0e600", TK_FCON, "E0004", "Invalid float constant specified"},
      {"1.0e-600", TK_FCON, "E0004", "Invalid float constant specified"},
      {"\"abc ", TK_SCON, "E0000", "Missing right quote of string constant"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    EXPECT_EQ(tks[0]->kind, c.kind);
    EXPECT_EQ(tks[1]->kind, TK_EOL);
    EXPECT_EQ(num_errors, 1u);
    EXPECT_TRUE(has_message(messages(), c.id, c.message));
    drop(tks);
  }
  auto tks = line_tokens(" \"abc ");
  EXPECT_STREQ(tks[0]->value.sval, "abc ");  // the string runs to the line end
  drop(tks);
}

}  // namespace
