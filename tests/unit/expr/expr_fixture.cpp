// The expression fixture: a line of text in the lexer, evaluation with the
// screen captured, symbols made to order, trees printed.
#include "expr_fixture.h"

#include <cctype>
#include <cstring>
#include <utility>
#include <vector>

namespace {

section_record section_a{}, section_b{}, section_abs{};

std::vector<char> line_text;

std::string squeeze(const std::string &s) {
  std::string out;
  for (char c : s) {
    bool blank = std::isspace(static_cast<unsigned char>(c));
    if (blank && (out.empty() || out.back() == ' ')) continue;
    out += blank ? ' ' : c;
  }
  return out;
}

const char *op_text(uint32_t op) {
  static const std::pair<uint32_t, const char *> ops[] = {
      {EOP_ADD, "+"}, {EOP_SUB, "-"}, {EOP_MPY, "*"}, {EOP_DIV, "/"}, {EOP_MOD, "%"},  {EOP_SR, ">>>"}, {EOP_ASR, ">>"},
      {EOP_SL, "<<"}, {EOP_AND, "&"}, {EOP_OR, "|"},  {EOP_XOR, "^"}, {EOP_NOTB, "~"}, {EOP_LT, "<"},   {EOP_LE, "<="},
      {EOP_GT, ">"},  {EOP_GE, ">="}, {EOP_EQ, "=="}, {EOP_NE, "!="}, {EOP_NOT, "!"}};
  for (const auto &[o, text] : ops)
    if (o == op) return text;
  return E_opname(op);
}

}  // namespace

section_record *const scn_a = &section_a;
section_record *const scn_b = &section_b;
section_record *const scn_abs = [] {
  section_abs.scn_kind = SCN_KIND_ABS;
  return &section_abs;
}();

void expr_lex_line(const std::string &text) {
  expr_lex_done();
  line_text.assign(text.begin(), text.end());
  line_text.push_back('\n');
  line_text.push_back('\0');
  LEX_inbuf_update(line_text.data(), static_cast<short>(line_text.size() - 1));
  chpos = -1;
  nextch();
  next_token();
}

void expr_lex_done() {
  while (availtkn) {
    token *t = availtkn;
    availtkn = t->next;
    LEX_droptkn(t);
  }
  LEX_droptkn(curtk);
  curtk = nullptr;
  LEX_reset();
}

value_record *ExprTest::eval(const std::string &text, uint32_t flags, uint32_t width, uint16_t allow_diff) {
  num_errors = num_warnings = 0;
  ::testing::internal::CaptureStderr();
  expr_lex_line(text);
  value_record *v = EXPR_eval({flags, width, allow_diff});
  out = ::testing::internal::GetCapturedStderr();
  stop_kind = curtk ? curtk->kind : 0;
  expr_lex_done();
  return v;
}

bool ExprTest::shown(const std::string &screen, const char *id, const std::string &text) {
  std::string s = squeeze(screen);
  size_t at = s.find(std::string("[") + id + "]");
  return at != std::string::npos && s.find(text, at) != std::string::npos;
}

symbol_record *ExprTest::label(const char *name, section_record *scn, uint32_t address) {
  symbol_record *s = SYM_find(name);
  value_record v;
  E_clrval(&v);
  v.v_type = VT_LABEL;
  v.v_val = xi_from_uint(address);
  v.v_bits = 32;
  v.v_flags = VF_ADDRESS;
  v.v_section = scn;
  v.v_symbol = s;
  section_record *saved = curseg;
  curseg = scn;
  SYM_define(s, &v);
  curseg = saved;
  return s;
}

symbol_record *ExprTest::constant(const char *name, int32_t value) {
  symbol_record *s = SYM_find(name);
  value_record v;
  E_clrval(&v);
  v.v_val = xi_from_int(value);
  v.v_bits = 32;
  SYM_define(s, &v);
  return s;
}

std::string expr_tree_text(const node *n) {
  if (!n) return "null";
  if (const value_record *v = n->n_value) {
    if (n->n_op == EOP_ICON) return std::to_string(v->v_val.to_i64());
    if (v->v_symbol) return v->v_symbol->sym_name;
    return E_opname(n->n_op);
  }
  std::string s = std::string("(") + op_text(n->n_op) + " " + expr_tree_text(n->n_left);
  if (n->n_right) s += " " + expr_tree_text(n->n_right);
  return s + ")";
}
