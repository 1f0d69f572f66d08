// DIR_get_oprnd on each flag, and IR_build with the generic parse handlers,
// on lines read through the lexer. What a first column may hold, lone labels
// and most operand messages are checked end to end (tests/asm).
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "pipeline_fixture.h"
#include "source/lexer.h"
#include "source/ophash.h"

namespace {

using GetOprndTest = PipelineTest;
using StatementTest = PipelineTest;

struct Case {
  const char *text;    // behind ".word "
  uint32_t flags;
  uint16_t kind;       // 0xFFFF: no operand
  const char *str;     // expected text, or null
  int32_t value;       // expected integer for OP_ICON
  const char *id;      // expected message id, or null for none
  const char *msg;     // its text
  uint16_t stop;       // token left in curtk
};

constexpr uint16_t NONE = 0xFFFF;

}  // namespace

TEST_F(GetOprndTest, Flags) {
  const Case cases[] = {
      // Missing and empty operands.
      {"", DPS_EXPR, NONE, nullptr, 0, "E0005", "Operand missing", TK_EOL},
      {"", DPS_EXPR | DPS_OPTIONAL, NONE, nullptr, 0, nullptr, nullptr, TK_EOL},
      {",5", DPS_EXPR, NONE, nullptr, 0, "E0005", "Operand missing", TK_COMMA},
      {",5", DPS_EXPR | DPS_OPTIONAL, NONE, nullptr, 0, nullptr, nullptr, TK_COMMA},
      // Strings.
      {"\"a b\"", DPS_STRING, OP_SCON, "a b", 0, nullptr, nullptr, TK_EOL},
      {"\"ab\", 1", DPS_STRING | DPS_EXPR, OP_SCON, "ab", 0, nullptr, nullptr, TK_COMMA},
      {"\"ab\" x, 1", DPS_STRING, OP_SCON, "ab", 0, "E0003", "Cluttered string constant operand encountered", TK_COMMA},
      // Single characters.
      {"A", DPS_CHAR, OP_ICON, nullptr, 'A', nullptr, nullptr, TK_EOL},
      {"AB", DPS_CHAR, NONE, nullptr, 0, "E0004", "Single character operand expected", TK_EOL},
      {"A B", DPS_CHAR, OP_ICON, nullptr, 'A', "E0003", "Cluttered character operand encountered", TK_EOL},
      // Names.
      {"foo", DPS_IDENT, OP_SYMBOL, "foo", 0, nullptr, nullptr, TK_EOL},
      {"foo bar, x", DPS_IDENT, OP_SYMBOL, "foo", 0, "E0003", "Cluttered identifier operand encountered", TK_COMMA},
      {"\"s\"", DPS_IDENT | DPS_STRING, OP_SCON, "s", 0, nullptr, nullptr, TK_EOL},
      // Raw text up to the comma, and substitution names.
      {"a + b  , c", DPS_RAW, OP_SCON, "a + b", 0, nullptr, nullptr, TK_COMMA},
      {"x \"q;\" 'c'", DPS_RAW, OP_SCON, "x \"q;\" 'c'", 0, nullptr, nullptr, TK_EOL},
      {"name", DPS_SSNAME, OP_SSNAME, "name", 0, nullptr, nullptr, TK_EOL},
      {"name, b", DPS_SSNAME, OP_SSNAME, "name", 0, nullptr, nullptr, TK_COMMA},
      {"n m", DPS_SSNAME, NONE, nullptr, 0, "E0004", "Substitution symbol operand expected", TK_EOL},
      {"", DPS_SSNAME, NONE, nullptr, 0, "E0004", "Substitution symbol operand expected", TK_EOL},
      {"", DPS_SSNAME | DPS_OPTIONAL, NONE, nullptr, 0, nullptr, nullptr, TK_EOL},
      {"5", DPS_SSNAME, NONE, nullptr, 0, "E0004", "Substitution symbol operand expected", TK_EOL},
      // Nothing that reads an expression.
      {"5", DPS_OPTIONAL, NONE, nullptr, 0, "E0004", "Illegal operand", TK_EOL},
      // Expressions.
      {"1+2, 7", DPS_EXPR, OP_ICON, nullptr, 3, nullptr, nullptr, TK_COMMA},
      {"-1", DPS_ABSINT, OP_ICON, nullptr, -1, nullptr, nullptr, TK_EOL},
      {"1 2", DPS_EXPR, OP_ICON, nullptr, 1, nullptr, nullptr, TK_ICON},
      {"1.5", DPS_ABSINT | DPS_FLOAT | DPS_EXPR, OP_ICON, nullptr, 1, nullptr, nullptr, TK_EOL},
      {"0.0", DPS_ABSINT | DPS_FLOAT | DPS_EXPR, OP_ICON, nullptr, 0, nullptr, nullptr, TK_EOL},
      {"1.5", DPS_FLOAT | DPS_EXPR, OP_FCON, nullptr, 0, nullptr, nullptr, TK_EOL},
      // Attribute/value pairs.
      {"stack_usage(12)", DPS_ATTR | DPS_OPTIONAL, OP_ICON, nullptr, 12, nullptr, nullptr, TK_EOL},
      {"SYM_SIZE(1) x", DPS_ATTR, OP_ICON, nullptr, 1, "E0003", "Cluttered identifier operand encountered", TK_EOL},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(std::string(c.text) + " flags " + std::to_string(c.flags));
    directive_line(std::string(" .word ") + c.text);
    num_errors = num_warnings = 0;
    operand *op = DIR_get_oprnd({c.flags, 32});
    const uint16_t stop = curtk ? curtk->kind : 0;
    const std::string out = screen();
    if (c.kind == NONE) {
      EXPECT_EQ(op, nullptr);
    } else {
      ASSERT_NE(op, nullptr);
      EXPECT_EQ(op->kind, c.kind);
      if (c.str) {
        ASSERT_NE(op->value.v_str, nullptr);
        EXPECT_STREQ(op->value.v_str, c.str);
      }
      if (c.kind == OP_ICON) {
        EXPECT_EQ(int_of(op), c.value);
      }
    }
    if (c.id) {
      EXPECT_TRUE(shown(out, c.id, c.msg)) << out;
    } else {
      EXPECT_EQ(num_errors + num_warnings, 0u) << out;
    }
    EXPECT_EQ(stop, c.stop);
    IR_free_oprnd(op);
  }
}

TEST_F(GetOprndTest, TagsGiveACopyOfTheirValue) {
  symbol_record *tag = SYM_find("tg");
  tag->sym_value.v_type = VT_STAG;
  tag->sym_value.v_bits = 12;
  directive_line(" .word tg");
  operand *op = DIR_get_oprnd({DPS_TAG | DPS_ABSINT, 64});
  ASSERT_NE(op, nullptr);
  EXPECT_EQ(op->kind, OP_ICON);
  EXPECT_EQ(op->value.v_type, VT_STAG);
  EXPECT_EQ(op->value.v_bits, 12);
  EXPECT_EQ(curtk->kind, TK_EOL);
  IR_free_oprnd(op);
  EXPECT_EQ(screen(), "");
}

TEST_F(GetOprndTest, RelocatableValueIsASymbolOperand) {
  symbol_record *lab = SYM_find("lab");
  value_record v{};
  v.v_type = VT_LABEL;
  v.v_known = 1;
  v.v_symbol = lab;
  SYM_define(lab, &v);
  directive_line(" .word lab");
  operand *op = DIR_get_oprnd({DPS_EXPR, 32});
  ASSERT_NE(op, nullptr);
  EXPECT_EQ(op->kind, OP_SYMBOL);
  IR_free_oprnd(op);
}

TEST_F(GetOprndTest, OperandMustFollowACommaOrTheName) {
  directive_line(" .word 1 2, 3");
  IR_free_oprnd(DIR_get_oprnd({DPS_EXPR, 32}));
  ASSERT_EQ(curtk->kind, TK_ICON);
  EXPECT_EQ(DIR_get_oprnd({DPS_EXPR, 32}), nullptr);
  EXPECT_EQ(curtk->kind, TK_COMMA);
  EXPECT_TRUE(shown(screen(), "E0000", "Syntax Error"));
}

TEST_F(GetOprndTest, FrozenValuesBetweenThePasses) {
  // Pass 1 records 4, pass 2 sees 8: the change is reported and 4 kept.
  source(" .space 4\n .space 8\n", true);
  next_token();
  lookup_opcode();
  IR_free_oprnd(DIR_get_oprnd({DPS_ABSINT, 32}));
  ASSERT_EQ(isize_list.size(), 1u);
  EXPECT_EQ(isize_list[0], 4u);

  source(" .space 8\n");
  isize_idx = 0;
  next_token();
  lookup_opcode();
  operand *op = DIR_get_oprnd({DPS_ABSINT, 32});
  ASSERT_NE(op, nullptr);
  EXPECT_EQ(int_of(op), 4);
  EXPECT_EQ(isize_idx, 1u);
  EXPECT_TRUE(shown(screen(), "E0200", "Value of expression has changed due to jump expansion"));
  IR_free_oprnd(op);

  // Branch patching off: nothing is recorded.
  global_opts->setopt(OPT_DISABLE_BRANCH_PATCHING);
  isize_list.clear();
  source(" .space 4\n", true);
  next_token();
  lookup_opcode();
  IR_free_oprnd(DIR_get_oprnd({DPS_ABSINT, 32}));
  EXPECT_TRUE(isize_list.empty());
}

TEST_F(StatementTest, FileNamesAndTemplates) {
  struct {
    const char *line;
    const char *first, *second;  // slot 0 as text (or the number 5), slot 1; null: empty
    const char *id, *msg;        // null: no message
  } rows[] = {
      {"  .copy \"a b.inc\"", "a b.inc", nullptr, nullptr, nullptr},
      {"  .include x.inc", "x.inc", nullptr, nullptr, nullptr},
      {"  .copy a.inc b", "a.inc", nullptr, "E0003", "Unexpected trailing operand(s)"},
      {"  .template 5, \"ab\"", "5", "ab", nullptr, nullptr},
      {"  .template 5", "5", nullptr, "E0005", "Operand missing"},
      {"  .template 5, \"ab\", 3", "5", "ab", "E0003", "Unexpected trailing operand(s)"},
  };
  for (const auto &r : rows) {
    SCOPED_TRACE(r.line);
    source(std::string(r.line) + "\n");
    num_errors = 0;
    instruct *ir = IR_build();
    ASSERT_NE(ir, nullptr);
    const operand *op0 = ir->oprnds[0], *op1 = ir->oprnds[1];
    ASSERT_NE(op0, nullptr);
    if (op0->value.v_str) {
      EXPECT_STREQ(op0->value.v_str, r.first);
    } else {
      EXPECT_EQ(std::to_string(int_of(op0)), r.first);
    }
    if (r.second) {
      ASSERT_NE(op1, nullptr);
      EXPECT_STREQ(op1->value.v_str, r.second);
    } else {
      EXPECT_EQ(op1, nullptr);
    }
    IR_drop(ir);
    const std::string out = screen();
    if (r.id) {
      EXPECT_TRUE(shown(out, r.id, r.msg)) << out;
    }
    EXPECT_EQ(num_errors, r.id ? 1u : 0u) << out;
  }
}

TEST_F(StatementTest, GetlineSkipsToTheNextLine) {
  source("  .word 1, 2\n\n\n  .byte 3\n");
  next_token();
  ASSERT_EQ(IR_getline(), 1);
  lookup_opcode();
  ASSERT_EQ(curtk->kind, IR_DIRECTIVE);
  EXPECT_STREQ(curtk->value.op->dir()->name, ".BYTE");
  EXPECT_EQ(IR_getline(), 0);
}

TEST_F(StatementTest, SkipComma) {
  source("  .word 1, 2 3\n");
  next_token();
  next_token();
  next_token();  // at the comma
  DIR_skip_comma(nullptr);
  EXPECT_EQ(curtk->kind, TK_ICON);
  next_token();
  DIR_skip_comma(nullptr);  // "3" is no comma: nothing is consumed
  EXPECT_EQ(curtk->kind, TK_ICON);
  EXPECT_TRUE(shown(screen(), "W0000", "Comma expected after operand"));
}
