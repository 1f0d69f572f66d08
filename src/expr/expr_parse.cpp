// Parsing by the precedence table: binary levels 0 to 7, unary operators at
// level 8, terms at level 9.
#include <array>

#include "driver/diag.h"
#include "expr/expr.h"
#include "expr/expr_internal.h"
#include "expr/symbols.h"
#include "source/lexer.h"

const uint16_t trg_prec_tbl[PREC_LEVELS][PREC_ROW] = {
    {TK_OR, 0},
    {TK_XOR, 0},
    {TK_AND, 0},
    {TK_EQ, TK_NE, 0},
    {TK_LT, TK_LE, TK_GT, TK_GE, 0},
    {TK_ASHLEFT, TK_ASHRIGHT, 0},
    {TK_PLUS, TK_MINUS, 0},
    {TK_MULT, TK_DIV, TK_PERCENT, 0},
    {TK_PLUS, TK_MINUS, TK_NOT, TK_NOTB, 0},
    {TK_IDENT, TK_ICON, TK_FCON, TK_SCON, TK_CCON, TK_INTRINSIC, TK_LPAREN, TK_SPC,
     TK_LOCLABEL, 0},
};

namespace {

struct op_row {
  uint16_t token;
  expr_opcode op;
};

constexpr op_row op_table[] = {
    {TK_NOT, EOP_NOT},     {TK_PERCENT, EOP_MOD}, {TK_AND, EOP_AND},     {TK_MULT, EOP_MPY},
    {TK_PLUS, EOP_ADD},    {TK_MINUS, EOP_SUB},   {TK_DIV, EOP_DIV},     {TK_LT, EOP_LT},
    {TK_EQ, EOP_EQ},       {TK_GT, EOP_GT},       {TK_XOR, EOP_XOR},     {TK_OR, EOP_OR},
    {TK_NOTB, EOP_NOTB},   {TK_ASHLEFT, EOP_SL},  {TK_ASHRIGHT, EOP_ASR}, {TK_NE, EOP_NE},
    {TK_LE, EOP_LE},       {TK_GE, EOP_GE},       {0, EOP_ICON},
};

// Set once a message has been given for the expression being parsed, so
// that the levels above fail without adding their own.
bool parse_reported = false;

// Parentheses and unary operators nest by recursion; a bound keeps absurd
// input from exhausting the stack.
int nesting = 0;
constexpr const char *NESTING_ID = "E1300";
constexpr const char *NESTING_TEXT = "Expression nesting limit exceeded";

// The token kind is in row `level` of trg_prec_tbl.
bool in_row(int level, uint16_t kind) {
  for (const uint16_t *tk = trg_prec_tbl[level]; *tk; ++tk)
    if (*tk == kind) return true;
  return false;
}

bool map_operator(uint16_t token, expr_opcode *op) {
  for (const op_row *row = op_table; row->token; ++row) {
    if (row->token == token) {
      *op = row->op;
      return true;
    }
  }
  error_internal(1, curline, "unrecognized operator!");
  return false;
}

node *parse_unary() {
  if (E_opfound(8)) {
    expr_opcode op;
    if (!map_operator(curtk->kind, &op) || !E_nest_enter()) return nullptr;
    next_token();
    node *operand = parse_unary();
    E_nest_leave();
    if (!operand) {
      E_parse_error("E0200", "Unary operator can't be applied");
      return nullptr;
    }
    return E_mktree(op, operand, nullptr);
  }
  if (!E_opfound(9)) return nullptr;
  return E_term();
}

// The binary level of each token kind, or -1: E_opfound for levels 0 to 7
// without a scan of the table per level.
constexpr int NOT_BINARY = -1;
constexpr size_t OPERATOR_KINDS = 256;  // every operator token kind is below
const std::array<int8_t, OPERATOR_KINDS> &binary_levels() {
  static const auto table = [] {
    std::array<int8_t, OPERATOR_KINDS> t;
    t.fill(NOT_BINARY);
    for (int level = 7; level >= 0; --level)
      for (const uint16_t *tk = trg_prec_tbl[level]; *tk; ++tk)
        if (*tk < OPERATOR_KINDS) t[*tk] = static_cast<int8_t>(level);
    return t;
  }();
  return table;
}

int binary_level() {
  if (!curtk || curtk->kind >= OPERATOR_KINDS) return NOT_BINARY;
  return binary_levels()[curtk->kind];
}

// Precedence climbing over levels min_level to 7: the same left-associative
// trees as one recursive call per level, with one lookup per operator.
node *parse_level(int min_level) {
  node *left = parse_unary();
  if (!left) {
    if (min_level == 0) E_parse_error("E0200", "Bad term in expression");
    return nullptr;
  }
  for (int level; (level = binary_level()) >= min_level;) {
    expr_opcode op;
    if (!map_operator(curtk->kind, &op)) return nullptr;
    next_token();
    node *right = level == 7 ? parse_unary() : parse_level(level + 1);
    if (!right) {
      E_parse_error("E0200", "Binary operator can't be applied");
      return nullptr;
    }
    left = E_mktree(op, left, right);
  }
  return left;
}

}  // namespace

long EXPR_skim(const plain_token *tokens, size_t count, const char *text) {
  size_t i = 0;
  auto kind = [&] { return i < count ? tokens[i].kind : uint16_t{TK_EOL}; };
  // Nesting is counted as the parser counts it: a unary operator stays open
  // until its operand ends, and that operand may be a parenthesis; for each
  // open parenthesis, the unary operators in front of it.
  std::array<int, E_MAX_NESTING + 1> unary_before;
  int open = 0;
  int unary = 0;
  int depth = 0;
  for (;;) {
    for (;; ++i) {
      if (kind() == TK_LPAREN) {
        unary_before[static_cast<size_t>(open++)] = unary;
        unary = 0;
      } else if (in_row(8, kind())) {
        ++unary;
      } else {
        break;
      }
      if (++depth > E_MAX_NESTING) {
        error(curline, NESTING_ID, "%s", NESTING_TEXT);
        return -1;
      }
    }
    switch (kind()) {
      case TK_ICON: case TK_CCON: case TK_FCON: break;
      case TK_IDENT:
        SYM_mark_referenced(SYM_find(std::string_view(text + tokens[i].start, tokens[i].length)));
        break;
      default:
        error(curline, "E0200", "Bad term in expression");
        return -1;
    }
    depth -= unary;
    unary = 0;
    for (++i; open > 0 && kind() == TK_RPAREN; ++i) {
      const int before = unary_before[static_cast<size_t>(--open)];
      depth -= 1 + before;
    }
    if (kind() >= OPERATOR_KINDS || binary_levels()[kind()] < 0) break;
    ++i;
  }
  if (open == 0) return static_cast<long>(i);
  error(curline, "E0000", "No matching right parenthesis");
  return -1;
}

void E_parse_error(const char *id, const char *text) {
  if (parse_reported) return;
  parse_reported = true;
  error(curline, id, "%s", text);
}

void E_parse_failed() { parse_reported = true; }

void E_nest_error() { E_parse_error(NESTING_ID, NESTING_TEXT); }

bool E_nest_enter() {
  if (nesting >= E_MAX_NESTING) {
    E_nest_error();
    return false;
  }
  ++nesting;
  return true;
}

void E_nest_leave() { --nesting; }

node *E_level0() { return parse_level(0); }

bool E_opfound(int level) {
  return curtk && level >= 0 && level < PREC_LEVELS && in_row(level, curtk->kind);
}

node *E_build(const expr_parse_state_t &) {
  paren_depth = 0;
  parse_reported = false;
  return parse_level(0);
}
