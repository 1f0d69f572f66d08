// Step 1 of simplification: operators applied to constant leaves.
#include "driver/diag.h"
#include "expr/expr_internal.h"
#include "expr/reloc.h"
#include "source/lexer.h"
#include "support/memory.h"

namespace {

// The node takes over its left leaf's record, which holds the result now.
node *become_leaf(node *n, value_record *v, expr_opcode op) {
  n->n_op = op;
  n->n_value = v;
  n->n_left = n->n_right = nullptr;
  return n;
}

void set_int(value_record *v, const INT128 &k) {
  v->v_val = k;
  v->v_bits = static_cast<uint16_t>(k.size());
}

void set_truth(value_record *v, bool truth) {
  v->v_type = VT_ICON;
  v->v_fval = nullptr;
  set_int(v, truth ? xi_from_int(1) : INT128{});
}

bool is_comparison(expr_opcode op) { return op >= EOP_LT && op <= EOP_NE; }

bool compare(expr_opcode op, int cmp) {
  switch (op) {
    case EOP_LT: return cmp < 0;
    case EOP_LE: return cmp <= 0;
    case EOP_GT: return cmp > 0;
    case EOP_GE: return cmp >= 0;
    case EOP_EQ: return cmp == 0;
    default: return cmp != 0;
  }
}

node *fold_int_binary(node *n) {
  value_record *a = n->n_left->n_value;
  const INT128 &x = a->v_val;
  const INT128 &y = n->n_right->n_value->v_val;
  INT128 r{};
  xi_error = false;
  switch (n->n_op) {
    case EOP_ADD: XI_add(x.b, y.b, r.b); break;
    case EOP_SUB: XI_sub(x.b, y.b, r.b); break;
    case EOP_MPY: XI_mpy(x.b, y.b, r.b); break;
    case EOP_AND: XI_and(x.b, y.b, r.b); break;
    case EOP_OR: XI_or(x.b, y.b, r.b); break;
    case EOP_XOR: XI_xor(x.b, y.b, r.b); break;
    case EOP_DIV:
      if (y.is_zero()) {
        error(curline, "E0200", "Integer divide by zero");
        return become_leaf(n, a, EOP_ICON);
      }
      XI_div(x.b, y.b, r.b);
      break;
    case EOP_MOD:
      if (y.is_zero()) {
        error(curline, "E0200", "Integer remainder by zero");
        return become_leaf(n, a, EOP_ICON);
      }
      XI_mod(x.b, y.b, r.b);
      break;
    case EOP_SL: XI_shl(x.b, XI_shift_count(y.b), r.b); break;
    case EOP_SR: case EOP_ASR: XI_shr(x.b, XI_shift_count(y.b), r.b); break;
    case EOP_LT: case EOP_LE: case EOP_GT: case EOP_GE: case EOP_EQ: case EOP_NE:
      r = compare(n->n_op, XI_cmp(x.b, y.b)) ? xi_from_int(1) : INT128{};
      break;
    default:
      return n;
  }
  if (xi_error) warn(curline, "W0001", "Value out of range");
  set_int(a, r);
  return become_leaf(n, a, EOP_ICON);
}

simul_fval *zone_fval() {
  return static_cast<simul_fval *>(expr_eval_zone.alloc(sizeof(simul_fval)));
}

// The floating form of a leaf, converted from an integer if need be.
const simul_fval *as_float(const value_record *v) {
  if (v->v_type == VT_FCON) return v->v_fval;
  simul_fval *f = zone_fval();
  f_xtof(v->v_val.b, f);
  return f;
}

bool fp_operand(const value_record *v) { return is_int_type(v->v_type) || v->v_type == VT_FCON; }

node *fold_float_binary(node *n) {
  value_record *a = n->n_left->n_value;
  const value_record *b = n->n_right->n_value;
  if (!fp_operand(a) || !fp_operand(b)) {
    error(curline, "E0201", "Absolute operands required for FP operations");
    return n;
  }
  const simul_fval *x = as_float(a);
  const simul_fval *y = as_float(b);
  if (is_comparison(n->n_op)) {
    bool truth = false;
    switch (n->n_op) {
      case EOP_LT: truth = f_lt(x, y); break;
      case EOP_LE: truth = f_le(x, y); break;
      case EOP_GT: truth = f_gt(x, y); break;
      case EOP_GE: truth = f_ge(x, y); break;
      case EOP_EQ: truth = f_eq(x, y); break;
      default: truth = f_ne(x, y); break;
    }
    set_truth(a, truth);
    return become_leaf(n, a, EOP_ICON);
  }
  simul_fval *r = zone_fval();
  fp_error = 0;
  switch (n->n_op) {
    case EOP_ADD: f_add(x, y, r); break;
    case EOP_SUB: f_sub(x, y, r); break;
    case EOP_MPY: f_mul(x, y, r); break;
    case EOP_DIV: f_div(x, y, r); break;
    default:
      error(curline, "E0201", "Invalid floating-point operation");
      return n;
  }
  if (fp_error & FPE_OVERFLOW) error(curline, "E0201", "Floating-point overflow");
  else if (fp_error & FPE_UNDERFLOW) error(curline, "E0201", "Floating point underflow");
  a->v_type = VT_FCON;
  a->v_fval = r;
  return become_leaf(n, a, EOP_FCON);
}

node *fold_unary(node *n) {
  node *operand = n->n_left;
  value_record *v = operand->n_value;
  if (operand->n_op == EOP_ICON) {
    switch (n->n_op) {
      case EOP_SUB: set_int(v, -v->v_val); break;
      case EOP_NOTB: set_int(v, ~v->v_val); break;
      case EOP_NOT: set_int(v, v->v_val.is_zero() ? xi_from_int(1) : INT128{}); break;
      case EOP_ADD: break;
      default: return n;
    }
    return become_leaf(n, v, EOP_ICON);
  }
  if (operand->n_op == EOP_FCON) {
    switch (n->n_op) {
      case EOP_SUB: {
        simul_fval *r = zone_fval();
        f_neg(v->v_fval, r);
        v->v_fval = r;
        return become_leaf(n, v, EOP_FCON);
      }
      case EOP_NOTB:
        error(curline, "E0009", "Cannot apply bitwise NOT to floats");
        return n;
      case EOP_NOT:
        set_truth(v, f_iszero(v->v_fval));
        return become_leaf(n, v, EOP_ICON);
      case EOP_ADD:
        return become_leaf(n, v, EOP_FCON);
      default:
        return n;
    }
  }
  return n;
}

}  // namespace

node *E_mkint(const INT128 &k) {
  value_record *v = E_newval();
  set_int(v, k);
  return E_mkleaf(TK_ICON, v);
}

node *E_fold(node *n) {
  if (E_is_leaf(n)) return n;
  if (E_is_unary(n)) return E_is_leaf(n->n_left) ? fold_unary(n) : n;
  bool float_leaf = (E_is_leaf(n->n_left) && n->n_left->n_op == EOP_FCON) ||
                    (E_is_leaf(n->n_right) && n->n_right->n_op == EOP_FCON);
  if (!E_is_leaf(n->n_left) || !E_is_leaf(n->n_right)) {
    // A float beside a subtree that could not fold is beside no constant.
    if (float_leaf) error(curline, "E0201", "Absolute operands required for FP operations");
    return n;
  }
  expr_opcode l = n->n_left->n_op, r = n->n_right->n_op;
  if (l == EOP_ICON && r == EOP_ICON) return fold_int_binary(n);
  if (l == EOP_FCON || r == EOP_FCON) return fold_float_binary(n);
  return n;
}

bool E_diff_ok(const value_record *a, const value_record *b) {
  if (is_int_type(a->v_type) && is_int_type(b->v_type)) return true;
  if (RELOC_const_scnrel_offset(a) && RELOC_const_scnrel_offset(b) &&
      a->v_section == b->v_section) {
    label_diff_seen = 1;
    return true;
  }
  return false;
}
