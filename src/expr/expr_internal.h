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
void E_nest_error();                                // the message of too deep an expression

// Deepest nesting of parentheses and unary operators that the parser (and
// the pass-1 skim) accepts. Each level costs a few parser frames; under the
// address sanitizer those are large, and the bound must still leave the
// stack far from its end.
constexpr int E_MAX_NESTING = 500;

// The current address as a value: true for a section-relative one (leaf
// EOP_SPC), false for an absolute one (leaf EOP_ICON).
bool E_location(value_record *v);

// Visits every node of a tree without recursion, so that a chain of any
// length is safe: `pre(n, depth)` on the way down, and `post(n, depth)` once
// both children are done. The node that `post` returns takes n's place in
// its parent; the result is what took the root's place. Parent links are
// set on the way down (rewrites leave them stale) and read before `post`,
// which may build new nodes above n.
template <class Pre, class Post>
node *E_walk(node *root, Pre &&pre, Post &&post) {
  if (!root) return nullptr;
  root->n_parent = nullptr;
  node *cur = root;
  int depth = 0;
  for (;;) {
    pre(cur, depth);
    node *child = cur->n_left ? cur->n_left : cur->n_right;
    if (child) {
      child->n_parent = cur;
      cur = child;
      ++depth;
      continue;
    }
    for (;;) {
      node *parent = cur->n_parent;
      node *r = post(cur, depth);
      if (!parent) {
        if (r) r->n_parent = nullptr;
        return r;
      }
      const bool was_left = parent->n_left == cur;
      (was_left ? parent->n_left : parent->n_right) = r;
      if (r) r->n_parent = parent;
      --depth;
      if (was_left && parent->n_right) {
        cur = parent->n_right;
        cur->n_parent = parent;
        ++depth;
        break;
      }
      cur = parent;
    }
  }
}

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

