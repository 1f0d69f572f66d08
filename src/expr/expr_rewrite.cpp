// Simplification: bottom-up folding, the target's hook, and the rewrites that
// bring a tree to the shape symbol + constant wherever that is possible.
#include "driver/diag.h"
#include "expr/expr_internal.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

// Rewrites build new nodes and simplify them in turn, which can rewrite
// again below. The chain rules below keep that shallow; the bound is the net
// for shapes that would still cascade: beyond it the tree is left as it is
// and the expression fails with one message.
constexpr int MAX_REWRITE_DEPTH = 200;
int rewrite_depth = 0;
bool rewrite_overflow = false;

// A new interior node, simplified in turn.
node *mk(expr_opcode op, node *left, node *right = nullptr) {
  node *n = E_mktree(op, left, right);
  if (rewrite_overflow || rewrite_depth >= MAX_REWRITE_DEPTH) {
    if (!rewrite_overflow) E_nest_error();
    rewrite_overflow = true;
    return n;
  }
  ++rewrite_depth;
  n = E_simplify_node(n);
  --rewrite_depth;
  return n;
}

// x joined to a left-nested chain y = ((b l1 c1) l2 c2) ... : the chain's
// operands join x one at a time from the bottom up, as
// step(...step(step(x, b, nullptr), c1, link1)..., cn, linkn), without a
// recursion along the chain. `is_link` tells the chain's nodes.
template <class IsLink, class Step>
node *join_chain(node *x, node *y, IsLink is_link, Step step) {
  node *bottom = y;
  while (is_link(bottom->n_left)) {
    bottom->n_left->n_parent = bottom;
    bottom = bottom->n_left;
  }
  node *acc = step(x, bottom->n_left, nullptr);
  for (node *link = bottom;; link = link->n_parent) {
    acc = step(acc, link->n_right, link);
    if (link == y) return acc;
  }
}
node *mkk(const INT128 &k) { return E_mkint(k); }

bool is_k_eq(const node *n, int k) { return E_is_k(n) && E_kval(n) == k; }
// Negating this constant gives a positive one; the smallest INT128 does not.
bool negates(const node *k) {
  return E_kval(k).is_negative() && E_kval(k) != xi_from_bytes(xi_minint);
}
// +k for ADD, -k for SUB: the signed constant of `x op k`.
INT128 signed_k(const node *pm) {
  return pm->n_op == EOP_ADD ? E_kval(pm->n_right) : -E_kval(pm->n_right);
}
bool is_pm_k(const node *n) { return E_is_pm(n) && E_is_k(n->n_right); }
bool is_mpy(const node *n) { return E_is_binary(n, EOP_MPY); }

node *rewrite_sym(node *n) {
  INT128 off;
  if (!is_relocatable(n->n_value) || !E_extract_sym_offset(n->n_value, &off) || off.is_zero())
    return n;
  n->n_value->v_val -= off;
  return mk(EOP_ADD, n, mkk(off));
}

node *rewrite_add(node *n) {
  node *x = n->n_left, *y = n->n_right;
  if (!y) return x;                                                   // 1
  if (is_k_eq(y, 0)) return x;                                        // 2
  if (E_is_k(x)) return mk(EOP_ADD, y, x);                            // 3
  if (is_pm_k(x) && E_is_k(y))                                        // 4
    return mk(EOP_ADD, x->n_left, mkk(E_kval(y) + signed_k(x)));
  if (is_pm_k(x) && is_pm_k(y))                                       // 5
    return mk(EOP_ADD, mk(EOP_ADD, x->n_left, y->n_left), mkk(signed_k(x) + signed_k(y)));
  if (is_pm_k(x))                                                     // 6
    return mk(x->n_op, mk(EOP_ADD, x->n_left, y), x->n_right);
  if (E_is_pm(x) && E_is_k(x->n_left) && !E_is_k(y))                  // 7
    return mk(EOP_ADD, mk(x->n_op, y, x->n_right), x->n_left);
  if (E_is_unary_minus(x)) return mk(EOP_SUB, y, x->n_left);          // 8
  if (E_is_unary_minus(y)) return mk(EOP_SUB, x, y->n_left);          // 9
  if (E_is_k(y) && negates(y)) return mk(EOP_SUB, x, mkk(-E_kval(y)));  // 10
  return n;
}

node *rewrite_unary_minus(node *n) {
  node *x = n->n_left;
  if (E_is_unary_minus(x)) return x->n_left;
  if (E_is_binary(x, EOP_MPY) && E_is_k(x->n_right))
    return mk(EOP_MPY, x->n_left, mkk(-E_kval(x->n_right)));
  if (E_is_binary(x, EOP_SUB)) return mk(EOP_SUB, x->n_right, x->n_left);
  return n;
}

node *rewrite_sub(node *n) {
  node *x = n->n_left, *y = n->n_right;
  if (!y) return rewrite_unary_minus(n);                              // 1
  if (E_is_k(y) && negates(y)) return mk(EOP_ADD, x, mkk(-E_kval(y)));  // 2
  if (E_is_leaf(x) && E_is_leaf(y) && E_diff_ok(x->n_value, y->n_value)) {  // 3
    value_record *a = x->n_value;
    const value_record *b = y->n_value;
    a->v_val -= b->v_val;
    a->v_bits = static_cast<uint16_t>(a->v_val.size());
    a->v_type = VT_ICON;
    a->v_known = a->v_known && b->v_known;
    a->v_section = nullptr;
    a->v_symbol = nullptr;
    x->n_op = EOP_ICON;
    return x;
  }
  if (is_k_eq(x, 0)) return mk(EOP_SUB, y);                           // 4
  if (is_pm_k(x) && E_is_k(y)) {                                      // 5
    INT128 k = x->n_op == EOP_ADD ? E_kval(x->n_right) - E_kval(y) : E_kval(x->n_right) + E_kval(y);
    return mk(x->n_op, x->n_left, mkk(k));
  }
  if (is_pm_k(x)) return mk(x->n_op, mk(EOP_SUB, x->n_left, y), x->n_right);  // 6
  if (E_is_binary(x, EOP_ADD) && E_is_k(x->n_left) && !E_is_k(y))     // 7
    return mk(EOP_ADD, mk(EOP_SUB, x->n_right, y), x->n_left);
  if (E_is_unary_minus(y)) return mk(EOP_ADD, x, y->n_left);          // 8
  if (is_pm_k(x) && is_pm_k(y))                                       // 9
    return mk(EOP_ADD, mk(EOP_SUB, x->n_left, y->n_left), mkk(signed_k(x) - signed_k(y)));
  if (E_is_pm(y))                                                     // 10
    return join_chain(x, y, E_is_pm, [](node *acc, node *operand, const node *link) {
      if (!link) return mk(EOP_SUB, acc, operand);
      return mk(link->n_op == EOP_ADD ? EOP_SUB : EOP_ADD, acc, operand);
    });
  return n;
}

node *rewrite_mpy(node *n) {
  node *x = n->n_left, *y = n->n_right;
  if (E_is_binary(x, EOP_MPY) && E_is_k(x->n_right) && E_is_k(y))   // 1
    return mk(EOP_MPY, x->n_left, mkk(E_kval(x->n_right) * E_kval(y)));
  if (E_is_k(x)) return mk(EOP_MPY, y, x);                            // 2
  if (E_is_unary_minus(y)) return mk(EOP_SUB, mk(EOP_MPY, x, y->n_left));  // 3
  if (E_is_unary_minus(x)) return mk(EOP_SUB, mk(EOP_MPY, x->n_left, y));
  if (E_is_binary(y, EOP_MPY))                                        // 4
    return join_chain(x, y, is_mpy, [](node *acc, node *operand, const node *) {
      return mk(EOP_MPY, acc, operand);
    });
  if (is_k_eq(y, 0)) return y;                                        // 5
  if (is_k_eq(y, 1)) return x;
  if (is_pm_k(x) && E_is_k(y))                                        // 6
    return mk(x->n_op, mk(EOP_MPY, x->n_left, y), mkk(E_kval(x->n_right) * E_kval(y)));
  return n;
}

node *rewrite_div(node *n) {
  node *x = n->n_left, *y = n->n_right;
  if (!E_is_k(y)) return n;
  if (E_kval(y).is_zero()) {
    error(curline, "E0200", "Illegal divide by zero");
    return mkk(xi_from_bytes(xi_maxint));
  }
  if (E_kval(y) == 1) return x;
  if (E_is_binary(x, EOP_DIV) && E_is_k(x->n_right))
    return mk(EOP_DIV, x->n_left, mkk(E_kval(x->n_right) * E_kval(y)));
  return n;
}

node *rewrite_mod(node *n) {
  node *x = n->n_left, *y = n->n_right;
  if (!E_is_k(y)) return n;
  const INT128 &k2 = E_kval(y);
  if (k2.is_zero()) {
    error(curline, "E0200", "Illegal remainder by zero");
    return mkk(INT128{});
  }
  if (E_is_binary(x, EOP_MOD) && E_is_k(x->n_right)) {
    const INT128 &k1 = E_kval(x->n_right);
    if (k2 >= k1) return x;
    if ((k1 % k2).is_zero()) return mk(EOP_MOD, x->n_left, y);
  }
  if (k2 == 1) return mkk(INT128{});
  return n;
}

// a + b that stays at the end of the range instead of wrapping: two shift
// counts far beyond 128 must not add up to a small or negative one.
INT128 saturating_add(const INT128 &a, const INT128 &b) {
  INT128 sum = a + b;
  if (a.is_negative() == b.is_negative() && sum.is_negative() != a.is_negative())
    return xi_from_bytes(a.is_negative() ? xi_minint : xi_maxint);
  return sum;
}

node *rewrite_shift(node *n) {
  node *x = n->n_left, *y = n->n_right;
  if (is_k_eq(y, 0)) return x;
  if (is_k_eq(x, 0)) return x;
  if (E_is_binary(x, n->n_op) && E_is_k(x->n_right) && E_is_k(y))
    return mk(n->n_op, x->n_left, mkk(saturating_add(E_kval(x->n_right), E_kval(y))));
  if (n->n_op == EOP_SL && E_is_binary(x, EOP_MPY) && E_is_k(x->n_right) && E_is_k(y)) {
    INT128 k;
    xi_error = false;
    XI_shl(E_kval(x->n_right).b, XI_shift_count(E_kval(y).b), k.b);
    if (xi_error) warn(curline, "W0001", "Value out of range");
    return mk(EOP_MPY, x->n_left, mkk(k));
  }
  return n;
}

INT128 apply_bitop(expr_opcode op, const INT128 &a, const INT128 &b) {
  return op == EOP_AND ? (a & b) : op == EOP_OR ? (a | b) : (a ^ b);
}

node *rewrite_bitop(node *n) {
  expr_opcode op = n->n_op;
  node *x = n->n_left, *y = n->n_right;
  if (E_is_k(x)) return mk(op, y, x);
  if (E_is_k(y)) {
    const INT128 &k = E_kval(y);
    if (k.is_zero()) return op == EOP_AND ? y : x;
    if (k == -1) {
      if (op == EOP_AND) return x;
      if (op == EOP_OR) return y;
      return mk(EOP_NOTB, x);
    }
    if (E_is_binary(x, op) && E_is_k(x->n_right))
      return mk(op, x->n_left, mkk(apply_bitop(op, E_kval(x->n_right), k)));
  }
  if (E_is_binary(y, op))
    return join_chain(x, y, [op](const node *m) { return E_is_binary(m, op); },
                      [op](node *acc, node *operand, const node *) { return mk(op, acc, operand); });
  if (E_is_binary(x, op) && E_is_k(x->n_right) && !E_is_k(y))
    return mk(op, mk(op, x->n_left, y), x->n_right);
  return n;
}

// A comparison side: a leaf, or a leaf +/- constant folded into its value.
value_record *comparable(node *n) {
  if (E_is_leaf(n)) return n->n_value;
  if (is_pm_k(n) && E_is_leaf(n->n_left)) {
    value_record *v = n->n_left->n_value;
    v->v_val += signed_k(n);
    return v;
  }
  return nullptr;
}

node *rewrite_compare(node *n) {
  value_record *a = comparable(n->n_left);
  value_record *b = comparable(n->n_right);
  bool truth = false;
  if (a && b && E_diff_ok(a, b)) {
    int cmp = XI_cmp(a->v_val.b, b->v_val.b);
    switch (n->n_op) {
      case EOP_LT: truth = cmp < 0; break;
      case EOP_LE: truth = cmp <= 0; break;
      case EOP_GT: truth = cmp > 0; break;
      case EOP_GE: truth = cmp >= 0; break;
      case EOP_EQ: truth = cmp == 0; break;
      default: truth = cmp != 0; break;
    }
  } else if (!(a && a->v_type == VT_FCON) && !(b && b->v_type == VT_FCON)) {
    // Folding has reported a float beside a non-constant already.
    error(curline, "E0200", "Operation cannot be performed on given operands");
  }
  if (!a) return mkk(truth ? xi_from_int(1) : INT128{});
  a->v_type = VT_ICON;
  a->v_val = truth ? xi_from_int(1) : INT128{};
  a->v_bits = 1;
  a->v_fval = nullptr;
  a->v_section = nullptr;
  a->v_symbol = nullptr;
  return E_mkval(a);
}

}  // namespace

node *E_rewrite(node *n) {
  switch (n->n_op) {
    case EOP_ICON: case EOP_FCON: case EOP_SPC: return n;
    case EOP_SYM: return E_is_leaf(n) ? rewrite_sym(n) : n;
    case EOP_ADD: return rewrite_add(n);
    case EOP_SUB: return rewrite_sub(n);
    case EOP_MPY: return rewrite_mpy(n);
    case EOP_DIV: return rewrite_div(n);
    case EOP_MOD: return rewrite_mod(n);
    case EOP_SR: case EOP_ASR: case EOP_SL: return rewrite_shift(n);
    case EOP_AND: case EOP_OR: case EOP_XOR: return rewrite_bitop(n);
    case EOP_NOTB:
      return E_is_unary(n->n_left) && n->n_left->n_op == EOP_NOTB ? n->n_left->n_left : n;
    case EOP_NOT: return mk(EOP_EQ, n->n_left, mkk(INT128{}));
    case EOP_LT: case EOP_LE: case EOP_GT: case EOP_GE: case EOP_EQ: case EOP_NE:
      return rewrite_compare(n);
    default:
      error_internal(1, curline, "unrecognized node opcode!");
      return n;
  }
}

node *E_simplify_node(node *n) {
  n = E_fold(n);
  n = TRG_simplify_expr(n);
  return E_rewrite(n);
}

node *E_simplify(node *n) {
  rewrite_depth = 0;
  rewrite_overflow = false;
  // Bottom-up; a left-associative chain is as deep as it is long.
  node *r = E_walk(n, [](node *, int) {}, [](node *m, int) { return E_simplify_node(m); });
  return rewrite_overflow ? nullptr : r;
}
