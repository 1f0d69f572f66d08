#pragma once
// Expressions read from source text through the lexer, with the messages
// that reach the screen captured (shown as "[ID] text").
#include "directives/sections.h"
#include "expr/expr_internal.h"
#include "source/lexer.h"
#include "support/memory.h"
#include "symbols_fixture.h"

// Two code sections and an absolute one; only their identity and kind matter.
extern section_record *const scn_a;
extern section_record *const scn_b;
extern section_record *const scn_abs;

// Puts `text` in the lexer's line buffer and reads its first token.
void expr_lex_line(const std::string &text);
// Releases the tokens of the line.
void expr_lex_done();

// Pass 2 unless a test says otherwise.
class ExprTest : public SymbolsTest {
 protected:
  void SetUp() override {
    SymbolsTest::SetUp();
    in_pass2();
    eval_depth = 0;
  }
  void TearDown() override {
    expr_lex_done();
    SymbolsTest::TearDown();
  }
  static void in_pass1() { pass1 = 1; pass2 = 0; }
  static void in_pass2() { pass1 = 0; pass2 = 1; }

  // Evaluates `text`; `out` receives what was shown on the screen.
  value_record *eval(const std::string &text, uint32_t flags = EXPR_MODE_RELOC, uint32_t width = 32,
                     uint16_t allow_diff = 1);
  std::string out;
  // The token at which the expression stopped.
  uint16_t stop_kind = 0;

  // A label in `scn` at `address`, defined in this pass.
  static symbol_record *label(const char *name, section_record *scn, uint32_t address);
  // An absolute symbol with an integer value, defined in this pass.
  static symbol_record *constant(const char *name, int32_t value);

  // The id and text appear together; line breaks of a wrapped text count as blanks.
  static bool shown(const std::string &screen, const char *id, const std::string &text);
};

// A tree as "(op left right)" with leaves as a symbol's name or a number.
std::string expr_tree_text(const node *n);
