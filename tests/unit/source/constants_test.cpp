// Integer, character, string and floating constants.
#include <cstring>

#include "expr/fval.h"
#include "lexer_fixture.h"

using namespace lex_test;

namespace {

struct IntCase {
  const char *text;
  uint64_t value;
  const char *error;   // null: no message
  uint8_t u, l, ll;
  uint16_t length;     // source characters of the constant
};

TEST_F(LexerTest, IntegerConstantsInEveryRadixAndSuffix) {
  const IntCase cases[] = {
      {"0x", 0, nullptr, 0, 0, 0, 2},
      {"0X1f", 0x1f, nullptr, 0, 0, 0, 4},
      {"1fh", 0x1f, nullptr, 0, 0, 0, 3},
      {"1FH", 0x1f, nullptr, 0, 0, 0, 3},
      {"0ABCDh", 0xabcd, nullptr, 0, 0, 0, 6},
      {"77q", 077, nullptr, 0, 0, 0, 3},
      {"17Q", 017, nullptr, 0, 0, 0, 3},
      {"101b", 5, nullptr, 0, 0, 0, 4},
      {"0B", 0, nullptr, 0, 0, 0, 2},
      {"99d", 99, nullptr, 0, 0, 0, 3},
      {"0d", 0, nullptr, 0, 0, 0, 2},
      {"017", 15, nullptr, 0, 0, 0, 3},
      {"0", 0, nullptr, 0, 0, 0, 1},
      {"1234567890123", 1234567890123ull, nullptr, 0, 0, 0, 13},
      {"1f", 0, "Invalid constant specification", 0, 0, 0, 2},
      {"09", 0, "Invalid octal constant specified", 0, 0, 0, 2},
      {"0b101", 0, "Invalid octal constant specified", 0, 0, 0, 5},
      {"1e5", 0, "Invalid decimal constant specified", 0, 0, 0, 3},
      {"1AD", 0, "Invalid decimal constant specified", 0, 0, 0, 3},
      {"12x5", 0, "Invalid hex constant specified", 0, 0, 0, 4},
      {"102b", 0, "Invalid binary constant specified", 0, 0, 0, 4},
      {"1U", 1, nullptr, 1, 0, 0, 2},
      {"1l", 1, nullptr, 0, 1, 0, 2},
      {"1UL", 1, nullptr, 1, 1, 0, 3},
      {"1lu", 1, nullptr, 1, 1, 0, 3},
      {"1LL", 1, nullptr, 0, 0, 1, 3},
      {"1ULL", 1, nullptr, 1, 0, 1, 4},
      {"1llu", 1, nullptr, 1, 0, 1, 4},
      {"0x10UL", 16, nullptr, 1, 1, 0, 6},
  };
  for (const IntCase &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    EXPECT_EQ(tks[0]->kind, TK_ICON);
    EXPECT_EQ(low64(tks[0]->value.ival), c.value);
    EXPECT_EQ(tks[0]->column, 1);
    EXPECT_EQ(tks[0]->length, c.length);
    EXPECT_EQ(tks[0]->usuffix, c.u);
    EXPECT_EQ(tks[0]->lsuffix, c.l);
    EXPECT_EQ(tks[0]->llsuffix, c.ll);
    EXPECT_EQ(tks[1]->kind, TK_EOL);
    if (c.error) {
      EXPECT_EQ(num_errors, 1u);
      EXPECT_TRUE(has_message(messages(), "E0003", c.error));
    } else {
      EXPECT_EQ(num_errors, 0u);
    }
    drop(tks);
  }
}

TEST_F(LexerTest, SuffixAutomatonLeavesWhatItRefuses) {
  const struct { const char *text; const char *rest; } cases[] = {
      {"1UU", "U"}, {"1LLL", "L"}, {"1ULU", "U"}, {"1LUL", "L"}, {"1ULLU", "U"}, {"1LLUL", "L"},
  };
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
  ASSERT_EQ(tks[0]->kind, TK_ICON);
  for (uint8_t b : tks[0]->value.ival.b) EXPECT_EQ(b, 0xFF);
  drop(tks);

  tks = line_tokens(" 18446744073709551616");  // 2^64
  ASSERT_EQ(tks[0]->kind, TK_ICON);
  EXPECT_EQ(tks[0]->value.ival.b[7], 1);
  EXPECT_EQ(low64(tks[0]->value.ival), 0u);
  drop(tks);
}

TEST_F(LexerTest, CharacterConstants) {
  const struct { const char *text; uint32_t value; uint16_t length; } cases[] = {
      {"'A'", 0x41, 1}, {"'AB'", 0x4241, 2}, {"''", 0, 0}, {"''''", 0x27, 1},
      {"'abcde'", 0x64636261, 4}, {"' '", 0x20, 1},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    EXPECT_EQ(tks[0]->kind, TK_CCON);
    EXPECT_EQ(low64(tks[0]->value.ival), c.value);
    EXPECT_EQ(tks[0]->length, c.length);
    EXPECT_EQ(num_errors, 0u);
    drop(tks);
  }
}

TEST_F(LexerTest, StringsWithDoubledQuotesAndNoEscapes) {
  const struct { const char *text; const char *value; } cases[] = {
      {"\"abc\"", "abc"}, {"\"a\"\"b\"", "a\"b"}, {"\"\"", ""}, {"\"a;b\"", "a;b"},
      {"\"a\\n\"", "a\\n"}, {"\"it's\"", "it's"}, {"\"\t x\"", "\t x"},
  };
  for (const auto &c : cases) {
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

TEST_F(LexerTest, OpenStringEndsAtLineEnd) {
  auto tks = line_tokens(" \"abc ");
  ASSERT_EQ(tks.size(), 2u);
  ASSERT_EQ(tks[0]->kind, TK_SCON);
  EXPECT_STREQ(tks[0]->value.sval, "abc ");
  EXPECT_EQ(tks[1]->kind, TK_EOL);
  EXPECT_TRUE(has_message(messages(), "E0000", "Missing right quote of string constant"));
  drop(tks);
}

TEST_F(LexerTest, FloatingConstants) {
  const struct { const char *text; const char *value; uint16_t length; } cases[] = {
      {"1.5e3", "1.5E3", 5}, {"1.5", "1.5", 3}, {"2.5E-3", "2.5E-3", 6}, {"0.", "0.", 2},
      {"3.25f", "3.25", 5}, {"7.L", "7.", 3}, {"1.0e+2", "1.0E+2", 6},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    ASSERT_EQ(tks[0]->kind, TK_FCON);
    simul_fval expect{};
    ASSERT_EQ(f_atof(c.value, &expect), 0);
    EXPECT_EQ(std::memcmp(tks[0]->value.fval, &expect, sizeof expect), 0);
    EXPECT_EQ(tks[0]->length, c.length);
    EXPECT_EQ(num_errors, 0u);
    drop(tks);
  }
}

TEST_F(LexerTest, BadFloatingConstants) {
  const struct { const char *text; const char *id; } cases[] = {
      {"1.5e", "E0003"}, {"1.5e+", "E0003"}, {"1A.5", "E0003"}, {"1.0e600", "E0004"}, {"1.0e-600", "E0004"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string(" ") + c.text);
    ASSERT_EQ(tks.size(), 2u);
    EXPECT_EQ(tks[0]->kind, TK_FCON);
    EXPECT_EQ(num_errors, 1u);
    EXPECT_TRUE(has_message(messages(), c.id, "Invalid float constant specified"));
    drop(tks);
  }
}

TEST_F(LexerTest, DotBeforeDigitIsNoFloat) {
  auto tks = line_tokens(" .5");
  ASSERT_EQ(tks.size(), 3u);
  EXPECT_EQ(tks[0]->kind, TK_DOT);
  EXPECT_EQ(tks[1]->kind, TK_ICON);
  EXPECT_EQ(low64(tks[1]->value.ival), 5u);
  drop(tks);
}

}  // namespace
