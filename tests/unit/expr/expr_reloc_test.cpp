// Symbols in expressions: labels and their differences, externals with an
// offset, forward references in each pass, the location counter, the dot
// operator, and the shapes that rearrangement leaves.
#include <cstdlib>
#include <cstring>

#include "directives/structs.h"
#include "expr_fixture.h"

namespace {

TEST_F(ExprTest, LabelDifferencesAndOffsets) {
  symbol_record *lab1 = label("lab1", scn_a, 0x10);
  label("lab2", scn_a, 0x30);
  symbol_record *ext = SYM_find("ext");
  struct reloc_case {
    const char *text;
    uint32_t type;
    symbol_record *symbol;
    int64_t value;
    bool diff;   // a difference of two labels was folded
  };
  const reloc_case cases[] = {
      {"lab1 + 4", VT_LABEL, lab1, 0x14, false}, {"4 + lab1", VT_LABEL, lab1, 0x14, false},
      {"(lab1 + 8) - 4", VT_LABEL, lab1, 0x14, false}, {"lab1 - -4", VT_LABEL, lab1, 0x14, false},
      {"2 + lab1 + 3 - 1", VT_LABEL, lab1, 0x14, false}, {"(lab2 + 1) - (lab1 + 2)", VT_ICON, nullptr, 0x1F, true},
      {"ext + 4", VT_UNDEFSYM, ext, 4, false}, {"ext - 4", VT_UNDEFSYM, ext, -4, false},
      {"ext + 2 - 2", VT_UNDEFSYM, ext, 0, false}, {"lab2 - lab1 + ext", VT_UNDEFSYM, ext, 0x20, true},
      {"ext * 1", VT_UNDEFSYM, ext, 0, false}, {"--ext", VT_UNDEFSYM, ext, 0, false},
      {"~~ext", VT_UNDEFSYM, ext, 0, false}, {"ext | 0", VT_UNDEFSYM, ext, 0, false},
      {"ext * 0", VT_ICON, nullptr, 0, false}, {"ext & 0", VT_ICON, nullptr, 0, false},
  };
  for (const reloc_case &c : cases) {
    value_record *v = eval(c.text);
    EXPECT_EQ(v->v_type, c.type) << c.text;
    EXPECT_EQ(v->v_symbol, c.symbol) << c.text;
    EXPECT_EQ(v->v_val, xi_from_i64(c.value)) << c.text << " gave " << v->v_val.to_string();
    EXPECT_EQ(v->v_rel, nullptr) << c.text;
    EXPECT_EQ(label_diff_seen, c.diff) << c.text;
    EXPECT_EQ(out, "") << c.text;
    E_freeval(v);
  }
  EXPECT_NE(ext->sym_flags & SYMF_REFERENCED, 0u);

  value_record *v = eval("lab2 - lab1", EXPR_MODE_RELOC, 32, 0);
  EXPECT_TRUE(shown(out, "E0200", "Difference between segment symbols not permitted")) << out;
  E_freeval(v);

  // Only leaves of one section fold; what is left is refused only when it
  // is emitted.
  label("lab3", scn_b, 0x30);
  v = eval("ext * 2");
  EXPECT_TRUE(is_relocatable(v));
  EXPECT_EQ(out, "");
  E_freeval(v);
}

TEST_F(ExprTest, SymbolsWithAnOffsetSplitIntoSymbolAndConstant) {
  label("lab1", scn_a, 0x10);
  value_record *v = eval("lab1 + 4");
  symbol_record *alias = SYM_find("alias");
  SYM_define(alias, v);   // alias .set lab1 + 4
  E_freeval(v);

  v = eval("alias + 1");
  EXPECT_EQ(v->v_type, VT_LABEL);
  EXPECT_EQ(v->v_symbol, SYM_query("lab1"));
  EXPECT_EQ(v->v_val, xi_from_int(0x15));
  INT128 off;
  EXPECT_TRUE(E_extract_sym_offset(v, &off));
  EXPECT_EQ(off, xi_from_int(5));
  E_freeval(v);

  value_record plain;
  E_clrval(&plain);
  EXPECT_FALSE(E_extract_sym_offset(&plain, &off));
  EXPECT_EQ(off, 0);
}

TEST_F(ExprTest, LocationCounter) {
  label("lab1", scn_a, 0x10);
  curpc = 0x40;
  struct {
    section_record *scn;
    const char *text;
    uint32_t type;  // 0: relocatable
    int64_t value;
  } cases[] = {
      {scn_a, "$", VT_SCNREL, 0x40},          {scn_a, "$ - lab1", VT_ICON, 0x30},
      {scn_a, "lab1 - $ + 8", VT_ICON, -0x28}, {scn_b, "$ - lab1", 0, 0},  // no constant across sections
      {scn_abs, "$ + 2", VT_ICON, 0x42},       // an absolute section gives plain numbers
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.text);
    curseg = c.scn;
    value_record *v = eval(c.text);
    if (c.type) {
      EXPECT_EQ(v->v_type, c.type);
      EXPECT_EQ(v->v_val, xi_from_i64(c.value));
      EXPECT_EQ(v->v_section, c.type == VT_SCNREL ? c.scn : nullptr);
    } else {
      EXPECT_TRUE(is_relocatable(v));
    }
    E_freeval(v);
  }
  curseg = nullptr;
}

TEST_F(ExprTest, ForwardReferencesInEachPass) {
  in_pass1();
  value_record *v = eval("fwd + 1");
  EXPECT_EQ(v->v_type, VT_UNDEFSYM);
  EXPECT_EQ(v->v_val, xi_from_int(1));
  EXPECT_EQ(v->v_known, 0);
  EXPECT_EQ(v->v_forward, 1);
  E_freeval(v);
  constant("fwd", 5);                 // defined further down in pass 1
  symbol_record *lab1 = label("lab1", scn_a, 0x10);
  symbol_record *later = label("later", scn_a, 0x40);

  SYM_reset();                        // pass 2: all values are known, none defined yet
  in_pass2();
  lab1->sym_flags |= SYMF_DEFINED;
  struct fwd_case {
    const char *text;
    int64_t value;
    uint8_t known;
  };
  const fwd_case cases[] = {
      {"fwd + 1", 6, 0}, {"1 + fwd", 6, 1}, {"fwd - 1", 4, 0}, {"2 * fwd", 10, 1},
      {"later - lab1", 0x30, 0}, {"lab1 - lab1", 0, 1},
  };
  for (const fwd_case &c : cases) {
    v = eval(c.text);
    EXPECT_EQ(v->v_type, VT_ICON) << c.text;
    EXPECT_EQ(v->v_val, xi_from_i64(c.value)) << c.text;
    EXPECT_EQ(v->v_known, c.known) << c.text;
    E_freeval(v);
  }
  v = eval("later");
  EXPECT_EQ(v->v_forward, 1);
  EXPECT_EQ(v->v_type, VT_LABEL);
  E_freeval(v);
  (void)later;
}

// A tag `pt` with members x (offset 0) and y (offset 4, with member z at 2).
struct tag_setup {
  membrec *z, *x, *y;
  static membrec *member(const char *name, uint32_t offset, uint8_t flags, membrec *sub) {
    size_t n = std::strlen(name);
    auto *m = static_cast<membrec *>(std::calloc(1, sizeof(membrec) + n));
    std::memcpy(m->mb_name, name, n + 1);
    m->mb_offset = offset;
    m->mb_flags = flags;
    m->mb_members = sub;
    return m;
  }
  tag_setup() {
    z = member("z", 2, 4, nullptr);
    y = member("y", 4, 8, z);
    x = member("x", 0, 8, nullptr);
    x->mb_next = y;
  }
  ~tag_setup() {
    std::free(x);
    std::free(y);
    std::free(z);
  }
};

TEST_F(ExprTest, DotOperatorSelectsMembers) {
  tag_setup t;
  symbol_record *pt = SYM_find("pt");
  value_record tv;
  E_clrval(&tv);
  tv.v_type = VT_STAG;
  tv.v_symbol = pt;
  tv.v_bits = 8;
  SYM_define(pt, &tv);
  pt->sym_members = t.x;
  symbol_record *rec = label("rec", scn_a, 0x100);   // rec .tag pt
  rec->sym_members = t.x;
  symbol_record *m = SYM_find("m");                  // a member of a nameless structure
  value_record mv;
  E_clrval(&mv);
  mv.v_type = VT_SUMEM;
  mv.v_val = xi_from_int(12);
  SYM_define(m, &mv);
  m->sym_members = t.z;

  label("lab", scn_a, 0x200);
  struct {
    const char *text;
    uint32_t type;
    int64_t value;
    const membrec *member;  // null: not checked
  } good[] = {{"pt.y", VT_ICON, 4, t.y},          {"pt.y.z + 1", VT_ICON, 7, t.z}, {"rec.y", VT_LABEL, 0x104, nullptr},
              {"m", VT_ICON, 12, nullptr},         {"lab.m.z", VT_LABEL, 0x200 + 12 + 2, nullptr}};
  for (const auto &c : good) {
    SCOPED_TRACE(c.text);
    value_record *v = eval(c.text);
    EXPECT_EQ(v->v_type, c.type);
    EXPECT_EQ(v->v_val, xi_from_i64(c.value));
    if (c.member) {
      EXPECT_EQ(v->v_member, c.member);
    }
    EXPECT_EQ(out, "");
    E_freeval(v);
  }

  struct dot_case {
    const char *text;
    const char *id;
    const char *message;
  };
  const dot_case bad[] = {
      {"pt.w", "E0300", "Structure/union member, w, not found"}, {"pt.5", "E0300", "Structure/union member not found"},
      {"lab.5", "E0009", "Illegal struct/union reference dot operator"},
      {"pt.y.(", "E0009", "Illegal struct/union reference dot operator"},
  };
  for (const dot_case &c : bad) {
    value_record *v = eval(c.text);
    EXPECT_TRUE(shown(out, c.id, c.message)) << c.text << " showed: " << out;
    E_freeval(v);
  }
  value_record *v = eval("pt.w.v");   // only the first failure of a chain is reported
  EXPECT_EQ(num_errors, 1u);
  E_freeval(v);
}

// Trees after simplification, read without reducing them to a value.
TEST_F(ExprTest, RearrangementShapes) {
  SYM_find("x");
  SYM_find("y");
  struct shape_case {
    const char *text;
    const char *tree;
  };
  const shape_case cases[] = {
      {"x * 2 + 3 + 4", "(+ (* x 2) 7)"}, {"3 + x * 2", "(+ (* x 2) 3)"}, {"(x + 1) + (y + 2)", "(+ (+ x y) 3)"},
      {"(x + 1) + y", "(+ (+ x y) 1)"}, {"x + -3", "(- x 3)"}, {"x - -3", "(+ x 3)"}, {"(x + 5) - 2", "(+ x 3)"},
      {"(x + 1) - y", "(+ (- x y) 1)"}, {"x - (y + 1)", "(- (- x y) 1)"}, {"-x + y", "(- y x)"}, {"x + -y", "(- x y)"},
      {"0 - x", "(- x)"}, {"-(x - y)", "(- y x)"}, {"-(x * 3)", "(* x -3)"}, {"(x * 2) * 3", "(* x 6)"},
      {"x * -y", "(- (* x y))"}, {"x * (y * 3)", "(* (* x y) 3)"}, {"(x + 1) * 4", "(+ (* x 4) 4)"},
      {"x / 2 / 3", "(/ x 6)"}, {"x / 1", "x"}, {"(x % 8) % 16", "(% x 8)"}, {"x % 1", "0"},
      {"x << 2 << 3", "(<< x 5)"}, {"(x * 3) << 2", "(* x 12)"}, {"x << 0", "x"}, {"3 | x | 4", "(| x 7)"},
      {"x & 0xF0 & 0x3C", "(& x 48)"}, {"x ^ -1", "(~ x)"}, {"x | -1", "-1"}, {"~~x", "x"},
      {"!x", "0"},   // a relocatable value compares with no constant
      // A parenthesised chain joins the left side one operand at a time.
      {"x | (y | 4 | x)", "(| (| (| x y) x) 4)"}, {"x - (y + 1 - x)", "(- (+ (- x y) x) 1)"},
      {"x * (y * 3 * x)", "(* (* (* x y) 3) x)"}, {"x ^ (y ^ (x ^ y))", "(^ (^ (^ x y) x) y)"},
  };
  for (const shape_case &c : cases) {
    ::testing::internal::CaptureStderr();
    expr_lex_line(c.text);
    ++eval_depth;
    node *n = E_simplify(E_build({EXPR_MODE_RELOC, 32, 1}));
    ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(expr_tree_text(n), c.tree) << c.text;
    --eval_depth;
    expr_eval_zone.reset();
    expr_lex_done();
  }

  // Counts of two shifts add without wrapping into a small or negative count.
  const char *max = "0x7fffffffffffffffffffffffffffffff";
  expr_lex_line(std::string("x << ") + max + " << " + max);
  ++eval_depth;
  node *n = E_simplify(E_build({EXPR_MODE_RELOC, 32, 1}));
  ASSERT_TRUE(n && E_is_binary(n, EOP_SL) && E_is_k(n->n_right));
  EXPECT_EQ(E_kval(n->n_right), xi_from_bytes(xi_maxint));
  --eval_depth;
  expr_eval_zone.reset();
  expr_lex_done();
}

}  // namespace
