#pragma once
// Expression engine: tokens to a tree of nodes, folding, reduction to one
// value_record, and the check of that value against the caller's request.
#include <cstddef>
#include <cstdint>
#include "expr/value.h"

class MZONE;

enum expr_opcode : uint32_t {
  EOP_ICON = 0, EOP_FCON = 1, EOP_SPC = 2, EOP_SYM = 3,
  EOP_ADD = 4, EOP_SUB = 5, EOP_MPY = 6, EOP_DIV = 7, EOP_MOD = 8,
  EOP_SR = 9, EOP_ASR = 10, EOP_SL = 11,
  EOP_AND = 12, EOP_OR = 13, EOP_XOR = 14, EOP_NOTB = 15,
  EOP_NEG = 16,   // never built: unary minus is EOP_SUB without a right child
  EOP_LT = 17, EOP_LE = 18, EOP_GT = 19, EOP_GE = 20, EOP_EQ = 21, EOP_NE = 22,
  EOP_NOT = 23,
};
constexpr unsigned EOP_COUNT = 24;

// Printed names of the opcodes, for the debug dumps.
const char *E_opname(uint32_t op);

// A leaf has n_value and no children; an interior node has n_value null.
// Unary operators have only n_left.
struct node {
  expr_opcode n_op;
  value_record *n_value;
  node *n_parent;
  node *n_left;
  node *n_right;
};

// Bits of expr_parse_state_t::e_flags.
enum : uint32_t {
  EXPR_INT = 1,     // set by every caller that wants an integer
  EXPR_FLOAT = 2,   // floating values allowed; exactly EXPR_FLOAT: a float is required
  EXPR_RELOC = 4,   // relocatable values allowed
};
// The usual requests: directive operands 5 or 7, floating built-in arguments 2,
// target operands 5 with width 32.
constexpr uint32_t EXPR_MODE_RELOC = EXPR_INT | EXPR_RELOC;                  // 5
constexpr uint32_t EXPR_MODE_ANY = EXPR_INT | EXPR_FLOAT | EXPR_RELOC;       // 7
constexpr uint32_t EXPR_MODE_FLOAT = EXPR_FLOAT;                             // 2

struct expr_parse_state_t {
  uint32_t e_flags;
  uint32_t e_width;       // greatest width in bits
  uint16_t e_allow_diff;  // a difference of two labels of one section is allowed
};

// Nodes and temporary values of the evaluation in progress; reset when the
// outermost EXPR_eval ends.
extern MZONE expr_eval_zone;
extern int32_t eval_depth;       // nesting of EXPR_eval (built-ins evaluate arguments)
extern int32_t paren_depth;      // open parentheses
extern uint8_t label_diff_seen;  // a difference of two section-relative values was folded

// Precedence table: row index is the level, each row ends in 0.
constexpr int PREC_LEVELS = 10;
constexpr int PREC_ROW = 10;
extern const uint16_t trg_prec_tbl[PREC_LEVELS][PREC_ROW];

// Evaluate at the current token. At depth 0 the result is a heap record for
// the caller to free by E_freeval; nested calls get a zone record. v_type 0
// means failure, with the message given. On return curtk is the first token
// that could not continue the expression.
value_record *EXPR_eval(const expr_parse_state_t &state);

// The four stages.
node *E_build(const expr_parse_state_t &state);
node *E_simplify(node *n);
void E_result(value_record *value, node *n);
bool E_chktype(value_record *value, const expr_parse_state_t &state);   // false after an error

bool E_opfound(int level);   // curtk is in row `level` of trg_prec_tbl

struct plain_token;
// Reads the plain tokens of an operand (LEX_plain_operand) the way E_build
// would, for the symbols they name alone: each is found and marked referenced
// as by a term, and no value is built. For pass 1 of directives whose element
// sizes don't depend on values. The number of tokens that make a complete
// expression (those behind it are the caller's), or -1 after the message of
// a failed parse. `text` is the line the tokens stand in.
long EXPR_skim(const plain_token *tokens, size_t count, const char *text);

// Zone-allocated builders.
value_record *E_newval();
node *E_newnode();
node *E_mkleaf(uint16_t token_kind, value_record *value);   // opcode from a term token's kind
node *E_mkval(value_record *value);                         // opcode from the value's type
node *E_mktree(expr_opcode op, node *left, node *right);

// Heap records, owning their string, floating record and relocation array.
value_record *E_getval();                          // cleared
value_record *E_cpyval(const value_record *value);
void E_cpy2val(value_record *dst, const value_record *src);   // dst's old parts are not released
void E_clrval(value_record *value);                // type VT_ICON, known, all else 0; releases nothing
void E_freeval(value_record *value);               // the parts and the record; heap records only
void E_freeparts(value_record *value);             // only the parts, for embedded records

// The part of v_val beyond the value of the value's relocation symbol;
// false and 0 if there is no such symbol.
bool E_extract_sym_offset(const value_record *value, INT128 *offset);

// Term readers shared with the built-in functions.
node *E_nameterm();    // curtk is a TK_IDENT (or a TK_SCON naming a symbol); the leaf

// Debug prints on stdout.
void E_dump_expr(const node *n, int indent = 0);
void E_dump_value(const value_record *value);
void E_dump_relexp(const value_record *value);
