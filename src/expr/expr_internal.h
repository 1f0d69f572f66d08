#pragma once
// Shared between the files of the expression engine only.
#include "expr/expr.h"

// Parser.
node *E_level0();                                   // a whole expression from curtk
node *E_term();                                     // curtk is in row 9
void E_parse_error(const char *id, const char *text);   // the first message of a parse
void E_parse_failed();                              // a message was given elsewhere
bool E_nest_enter();                                // false, with a message, when too deep
void E_nest_leave();

// The current address as a value: true for a section-relative one (leaf
// EOP_SPC), false for an absolute one (leaf EOP_ICON).
bool E_location(value_record *v);

// Folding and rewriting of one node whose children are simplified already.
node *E_fold(node *n);          // step 1: constant arithmetic
node *E_rewrite(node *n);       // step 3: rewrites by opcode
node *E_simplify_node(node *n); // steps 1 to 3

// Shapes of nodes.
inline bool E_is_leaf(const node *n) { return n && n->n_value; }
inline bool E_is_k(const node *n) { return E_is_leaf(n) && n->n_op == EOP_ICON; }
inline bool E_is_unary(const node *n) { return n && !n->n_value && !n->n_right; }
inline bool E_is_binary(const node *n, expr_opcode op) {
  return n && !n->n_value && n->n_op == op && n->n_right;
}
inline bool E_is_pm(const node *n) { return E_is_binary(n, EOP_ADD) || E_is_binary(n, EOP_SUB); }
inline bool E_is_unary_minus(const node *n) { return E_is_unary(n) && n->n_op == EOP_SUB; }
inline const INT128 &E_kval(const node *n) { return n->n_value->v_val; }

node *E_mkint(const INT128 &k);   // a fresh integer leaf

// Two values may be subtracted or compared now; sets label_diff_seen for
// two offsets into one section.
bool E_diff_ok(const value_record *a, const value_record *b);

