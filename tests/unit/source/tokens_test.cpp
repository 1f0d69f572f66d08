// Operators, identifiers, comments and the token stream.
#include "lexer_fixture.h"
#include "source/macro.h"
#include "source/subsym.h"

using namespace lex_test;

namespace {

std::vector<uint16_t> kinds(const std::vector<token *> &tks) {
  std::vector<uint16_t> k;
  for (token *t : tks) k.push_back(t->kind);
  return k;
}

TEST_F(LexerTest, TokenKindsCommentsAndBarIdentifiers) {
  const struct {
    const char *text;
    std::vector<uint16_t> kinds;
    const char *ident = nullptr;  // every identifier's text, when given
    int mac_lvl = -1;
    bool unrecognized = false;
  } cases[] = {
      {" ! != # % & ( ) * + , - / : @ [ ] ^ { } ~",
       {TK_NOT, TK_NE, TK_POUND, TK_PERCENT, TK_AND, TK_LPAREN, TK_RPAREN, TK_MULT, TK_PLUS, TK_COMMA,
        TK_MINUS, TK_DIV, TK_COLON, TK_ATSIGN, TK_LBRACKET, TK_RBRACKET, TK_XOR, TK_LBRACE, TK_RBRACE,
        TK_NOTB, TK_EOL}},
      {" < <= << <> > >= >> = ==", {TK_LT, TK_LE, TK_ASHLEFT, TK_NE, TK_GT, TK_GE, TK_ASHRIGHT, TK_EQ, TK_EQ, TK_EOL}},
      {" && | ||", {TK_AND, TK_AND, TK_OR, TK_PARALLEL, TK_EOL}},
      {" a<<=b", {TK_IDENT, TK_ASHLEFT, TK_EQ, TK_IDENT, TK_EOL}},
      {" !!=", {TK_NOT, TK_NE, TK_EOL}},
      {" (1+2)*3", {TK_LPAREN, TK_ICON, TK_PLUS, TK_ICON, TK_RPAREN, TK_MULT, TK_ICON, TK_EOL}},
      {" $", {TK_SPC, TK_EOL}},
      {" . .a", {TK_DOT, TK_IDENT, TK_EOL}},
      {" .5", {TK_DOT, TK_ICON, TK_EOL}},  // a dot before a digit makes no float
      // An unrecognised character drops the rest of the line.
      {" a ? b", {TK_IDENT, TK_EOL}, "a", -1, true},
      {" a \\ b", {TK_IDENT, TK_EOL}, "a", -1, true},
      {" a ` b", {TK_IDENT, TK_EOL}, "a", -1, true},
      {" a \xC3\xA9 b", {TK_IDENT, TK_EOL}, "a", -1, true},
      {" ||abc||", {TK_IDENT, TK_EOL}, "||abc||"},
      {" ||a.b1||+1", {TK_IDENT, TK_PLUS, TK_ICON, TK_EOL}, "||a.b1||"},
      {" ||.x||", {TK_IDENT, TK_EOL}, "||.x||"},
      {" ||abc", {TK_PARALLEL, TK_IDENT, TK_EOL}, "abc"},
      {" ||ab|", {TK_PARALLEL, TK_IDENT, TK_OR, TK_EOL}, "ab"},
      {" ||_x||", {TK_PARALLEL, TK_IDENT, TK_PARALLEL, TK_EOL}, "_x"},
      {"* a comment line", {TK_EOL}},
      {" * x", {TK_MULT, TK_IDENT, TK_EOL}},
      {"; all comment", {TK_EOL}},
      {"lbl ; comment \"x", {TK_IDENT, TK_EOL}, "lbl"},
      {"lbl;x", {TK_IDENT, TK_EOL}, "lbl"},
      {"!x", {TK_NOT, TK_IDENT, TK_EOL}},
      {"!x", {TK_EOL}, nullptr, 0},  // a comment in a macro
      {" !x", {TK_NOT, TK_IDENT, TK_EOL}, nullptr, 0},
      {"", {TK_EOL}},
      {" \t ", {TK_EOL}},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    MAC_lvl = static_cast<int16_t>(c.mac_lvl);
    auto tks = line_tokens(c.text);
    EXPECT_EQ(kinds(tks), c.kinds);
    for (token *t : tks)
      if (t->kind == TK_IDENT && c.ident) {
        EXPECT_STREQ(t->value.sval, c.ident);
      }
    if (c.unrecognized) {
      EXPECT_TRUE(has_message(messages(), "E0000", "Unrecognized special character"));
    } else {
      EXPECT_EQ(num_errors, 0u);
    }
    drop(tks);
  }
  MAC_lvl = -1;
}

TEST_F(LexerTest, IdentifiersAndScopedNames) {
  file_loclbl_cnt = 3;
  const struct { const char *text; uint16_t kind; const char *name; uint16_t length; } cases[] = {
      {"abc", TK_IDENT, "abc", 3},
      {"Mixed_Case$9", TK_IDENT, "Mixed_Case$9", 12},
      {"it's", TK_IDENT, "it's", 4},
      {".text", TK_IDENT, ".text", 5},
      {"loop?", TK_IDENT, "loop$3", 6},
      {"$1", TK_IDENT, "$1_$3", 5},
      {"$12", TK_IDENT, "$12", 3},
      {"$abc", TK_IDENT, "$abc", 4},
      {"$$symlen", TK_IDENT, "$$symlen", 8},  // no built-in functions yet
      {"_x", TK_IDENT, "_x", 2},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    auto tks = line_tokens(std::string("  ") + c.text + ";x");
    ASSERT_EQ(tks.size(), 2u);
    ASSERT_EQ(tks[0]->kind, c.kind);
    EXPECT_STREQ(tks[0]->value.sval, c.name);
    EXPECT_EQ(tks[0]->length, c.length);
    EXPECT_EQ(tks[0]->column, 2);
    drop(tks);
  }
  file_loclbl_cnt = 0;
}

TEST_F(LexerTest, ScopedNamesInsideAMacro) {
  MAC_lvl = 0;
  mac_loclbl_cnt = 7;
  const int16_t saved = subsym_expand;
  subsym_expand = 0;
  auto tks = line_tokens(" x? $2");
  ASSERT_EQ(tks.size(), 3u);
  EXPECT_STREQ(tks[0]->value.sval, "x$7$");
  EXPECT_STREQ(tks[1]->value.sval, "$2_$7$");
  drop(tks);

  // With substitution on, the scoped names are written into the line and read from there.
  subsym_expand = 1;
  tks = line_tokens(" x? $2 y");
  ASSERT_EQ(tks.size(), 4u);
  EXPECT_STREQ(tks[0]->value.sval, "x$7$");
  EXPECT_STREQ(tks[1]->value.sval, "$2_$7$");
  EXPECT_STREQ(tks[2]->value.sval, "y");
  EXPECT_EQ(tks[2]->column, 13);
  ASSERT_NE(curline->expanded_text, nullptr);
  EXPECT_STREQ(curline->expanded_text, " x$7$ $2_$7$ y\n");
  EXPECT_STREQ(curline->source_text, " x? $2 y\n");
  drop(tks);

  subsym_expand = saved;
  MAC_lvl = -1;
  mac_loclbl_cnt = 0;
}

TEST_F(LexerTest, ColumnsAndLines) {
  source("lbl: add r1, #2\n  second\n");
  std::vector<std::pair<int, uint16_t>> seen;
  std::vector<uint32_t> lines;
  for (int i = 0; i < 10; ++i) {
    token *t = next_token();
    seen.emplace_back(t->column, t->kind);
    lines.push_back(t->line ? t->line->line_number : 0);
    if (t->kind == TK_EOL && i > 7) break;
  }
  const std::vector<std::pair<int, uint16_t>> expect = {
      {0, TK_IDENT}, {3, TK_COLON}, {5, TK_IDENT}, {9, TK_IDENT}, {11, TK_COMMA},
      {13, TK_POUND}, {14, TK_ICON}, {16, TK_EOL}, {2, TK_IDENT}, {9, TK_EOL}};
  EXPECT_EQ(seen, expect);
  EXPECT_EQ(lines, (std::vector<uint32_t>{1, 1, 1, 1, 1, 1, 1, 1, 2, 2}));
}

TEST_F(LexerTest, PushedBackTokensComeFirst) {
  source(" a b\n c\n");
  next_token();  // a
  token *copy = copy_curtk_for_unget();
  ASSERT_NE(copy, nullptr);
  EXPECT_NE(copy->value.sval, curtk->value.sval);
  linebuf *first_line = curline;
  next_token();  // b
  next_token();  // EOL
  next_token();  // c, on line 2
  EXPECT_NE(curline, first_line);
  unget_token(&copy);
  EXPECT_EQ(copy, nullptr);
  token *t = get_a_token();
  EXPECT_STREQ(t->value.sval, "a");
  EXPECT_EQ(curline, first_line);
  LEX_droptkn(t);
  EXPECT_EQ(next_token()->kind, TK_EOL);
}

TEST_F(LexerTest, LiveTokensAreCounted) {
  const uint32_t before = LEX_live_tokens;
  auto tks = line_tokens(" a \"s\" 1.5 2 , x");
  EXPECT_EQ(LEX_live_tokens, before + tks.size());
  drop(tks);
  EXPECT_EQ(LEX_live_tokens, before);
}

TEST_F(LexerTest, FileNames) {
  const struct { const char *text; const char *name; bool trailing; } cases[] = {
      {" .copy \"a b.inc\"", "a b.inc", false},
      {" .copy a.inc", "a.inc", false},
      {" .copy ../dir/x-y+z.inc ; comment", "../dir/x-y+z.inc", false},
      {" .copy a.inc b", "a.inc", true},
      {" .copy \"a.inc\" b", "a.inc", true},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    source(std::string(c.text) + "\n");
    next_token();
    token *t = LEX_getfname();
    ASSERT_EQ(t, curtk);
    ASSERT_EQ(t->kind, TK_SCON);
    EXPECT_STREQ(t->value.sval, c.name);
    next_token();
    skip_to_expected_eol(curline);
    EXPECT_EQ(curtk->kind, TK_EOL);
    if (c.trailing) {
      EXPECT_TRUE(has_message(messages(), "E0003", "Unexpected trailing operand(s)"));
    } else {
      EXPECT_EQ(num_errors, 0u);
    }
  }
}

}  // namespace

// Pass 1 reads plain operands without the lexer: where it accepts a text, its
// tokens must be the lexer's, and it must refuse what it can't read alike.
TEST_F(LexerTest, PlainOperandsAreReadAsTheLexerReadsThem) {
  const struct {
    const char *text;
    bool plain;
    bool floats = false;
  } cases[] = {
      {"1 + 2*(x - 0x1F) >> 3, y", true},
      {"a<=b<>c!=d==e=f>=g<h>i<<j&k|l^~m%n/!o", true},
      {"0FFh + 17q + 101b + 0X10 + 12 , 7", true},
      {"'a' + ';' + ',' + '\\' - 'z'; comment", true},
      {"x$y + _z9", true},
      {"1.25, -2.5e+1, 3.E2, 7.0e-1", true, true},
      {"", true},
      {"   ; only a comment", true},
      {"1.25", false},          // a float where integers are read
      {"12u", false},           // suffix letters
      {"1.5f", false, true},
      {"1.5e", false, true},    // an exponent without digits
      {"0x1G", false},
      {"a.b", false},           // structure dot
      {"a?", false},            // scoped name
      {"$1 + 2", false},        // local label
      {"$", false},
      {"x'y'", false},          // a quote inside a name
      {"'ab'", false},
      {"''''", false},
      {"\"s\"", false},
      {"a || b", false},
      {"[1]", false},
      {"#3", false},
      {"1 @ 2", false},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    source(std::string(" x ") + c.text + "\n");
    token *head = get_a_token();  // "x": the reader stands behind it
    std::vector<plain_token> plain;
    uint32_t separator = 0;
    ASSERT_EQ(LEX_plain_operand(c.floats, &plain, &separator), c.plain);
    if (c.plain) {
      const char end = inbuf[separator];
      EXPECT_TRUE(end == ',' || end == ';' || end == '\n');
      for (const plain_token &p : plain) {
        token *t = get_a_token();
        EXPECT_EQ(t->kind, p.kind);
        EXPECT_EQ(t->column, p.start);
        // A character constant's length counts its characters, not its text.
        if (t->kind != TK_CCON) {
          EXPECT_EQ(t->length, p.length);
        }
        LEX_droptkn(t);
      }
      token *t = get_a_token();
      EXPECT_TRUE(t->kind == TK_COMMA || t->kind == TK_EOL) << t->kind;
      LEX_droptkn(t);
    }
    LEX_droptkn(head);
  }
}
