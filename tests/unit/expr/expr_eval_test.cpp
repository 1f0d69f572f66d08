// Expressions from source text to checked values: widths, stops, messages
// that no data directive reaches (the rest: tests/asm/expr).
#include "expr_fixture.h"
#include "support/memory.h"

namespace {

TEST_F(ExprTest, ConstantsKeepTheirKind) {
  value_record *v = eval("'A'");
  EXPECT_EQ(v->v_flags, VF_CHAR);
  EXPECT_EQ(v->v_bits, 7);
  E_freeval(v);

  v = eval("\"ab;c\"");
  EXPECT_EQ(v->v_type, VT_ICON);
  ASSERT_NE(v->v_str, nullptr);
  EXPECT_STREQ(v->v_str, "ab;c");
  E_freeval(v);

  // The parser stops at what can't continue an expression; the caller looks.
  v = eval("1 + 2, 3");
  EXPECT_EQ(v->v_val, xi_from_int(3));
  EXPECT_EQ(stop_kind, TK_COMMA);
  E_freeval(v);
  v = eval("4 5");
  EXPECT_EQ(v->v_val, xi_from_int(4));
  EXPECT_EQ(stop_kind, TK_ICON);
  E_freeval(v);
}

TEST_F(ExprTest, WidthCheckTruncatesWithAWarning) {
  struct width_case {
    const char *text;
    uint32_t width;
    int64_t value;
    uint16_t bits;
    uint16_t flags;
    bool warned;
  };
  const width_case cases[] = {
      {"-128", 8, -128, 8, VF_NEGCONST, false}, {"255", 8, 255, 8, 0, false},
      {"256", 8, 0, 8, 0, true},                {"-129", 8, 0x7F, 8, 0, true},
      {"0", 8, 0, 1, 0, false},                 {"-1", 1, -1, 1, VF_NEGCONST, false},
      {"0xFFFFFFFF", 32, 0xFFFFFFFF, 32, 0, false}, {"0x1FFFFFFFF", 32, 0xFFFFFFFF, 32, 0, true},
      {"-0x80000000", 32, -0x80000000LL, 32, VF_NEGCONST, false},
  };
  for (const width_case &c : cases) {
    value_record *v = eval(c.text, EXPR_MODE_RELOC, c.width);
    EXPECT_EQ(v->v_val, xi_from_i64(c.value)) << c.text;
    EXPECT_EQ(v->v_bits, c.bits) << c.text;
    EXPECT_EQ(v->v_flags, c.flags) << c.text;
    std::string warning = "Constant value out of range, will be truncated to " + std::to_string(c.width) + " bits";
    EXPECT_EQ(shown(out, "W0001", warning), c.warned) << c.text << ": " << out;
    E_freeval(v);
  }
}

struct bad_case {
  const char *text;
  const char *id;
  const char *message;
  uint32_t flags;
};

TEST_F(ExprTest, MessagesOfBadExpressions) {
  label("lab1", scn_a, 0x10);
  label("lab3", scn_b, 0x10);
  symbol_record *r0 = SYM_find("r0");
  value_record reg;
  E_clrval(&reg);
  reg.v_type = VT_REG;
  SYM_define(r0, &reg);
  // What no data directive reaches (those are checked end to end).
  const bad_case cases[] = {
      {"r0", "E0201", "Floating-point expression required", EXPR_MODE_FLOAT},
      {"lab1", "E0200", "Invalid immediate expression", EXPR_MODE_FLOAT},
      {"lab1", "E0200", "Invalid immediate expression", EXPR_INT},
      {"lab1 == lab3", "E0200", "Operation cannot be performed on given operands", EXPR_MODE_RELOC},
  };
  for (const bad_case &c : cases) {
    value_record *v = eval(c.text, c.flags);
    EXPECT_TRUE(shown(out, c.id, c.message)) << c.text << " showed: " << out;
    E_freeval(v);
  }
}

TEST_F(ExprTest, OneMessagePerFault) {
  struct count_case {
    const char *text;
    uint32_t type;   // 0: the evaluation failed
  };
  const count_case cases[] = {
      {"1 + (2 *)", 0}, {"-(", 0}, {"((", 0}, {"1 + )", 0}, {"~1.5", 0}, {"1.5 % 2", 0}, {"1 / 0", VT_ICON},
  };
  for (const count_case &c : cases) {
    value_record *v = eval(c.text, EXPR_MODE_ANY);
    EXPECT_EQ(num_errors, 1u) << c.text << ": " << out;
    EXPECT_EQ(v->v_type, c.type) << c.text;
    E_freeval(v);
    num_errors = 0;
  }
}

TEST_F(ExprTest, DeepNestingIsRefusedAndLongChainsWork) {
  std::string deep = std::string(5000, '(') + "1" + std::string(5000, ')');
  value_record *v = eval(deep);
  EXPECT_EQ(v->v_type, 0u);
  EXPECT_TRUE(shown(out, "E1300", "Expression nesting limit exceeded")) << out.substr(0, 200);
  EXPECT_EQ(num_errors, 1u);
  E_freeval(v);
  v = eval(std::string(5000, '-') + "1");
  EXPECT_EQ(v->v_type, 0u);
  E_freeval(v);

  std::string nested = std::string(500, '(') + "2" + std::string(500, ')');
  v = eval(nested + " * " + nested);
  EXPECT_EQ(v->v_val, xi_from_int(4));
  E_freeval(v);

  std::string chain = "1";
  for (int i = 0; i < 10000; ++i) chain += "+1";
  v = eval(chain);
  EXPECT_EQ(v->v_val, xi_from_int(10001));
  E_freeval(v);
}

TEST_F(ExprTest, DivisionByZeroLeavesANumber) {
  constant("x", 5);
  value_record *v = eval("1 / 0");
  EXPECT_EQ(v->v_val, xi_from_int(1));
  E_freeval(v);
  v = eval("7 % 0");
  EXPECT_EQ(v->v_val, xi_from_int(7));
  E_freeval(v);
  label("lab1", scn_a, 0x10);
  v = eval("lab1 / 0", EXPR_MODE_RELOC, 128);
  EXPECT_EQ(v->v_type, VT_ICON);
  EXPECT_EQ(v->v_val, xi_from_bytes(xi_maxint));
  E_freeval(v);
}

TEST_F(ExprTest, NestedEvaluationUsesTheZone) {
  expr_lex_line("2 * 3");
  ++eval_depth;
  value_record *inner = EXPR_eval({EXPR_MODE_RELOC, 32, 1});
  EXPECT_EQ(inner->v_val, xi_from_int(6));
  EXPECT_EQ(eval_depth, 1);
  --eval_depth;
  expr_eval_zone.reset();
  expr_lex_done();
}

}  // namespace
