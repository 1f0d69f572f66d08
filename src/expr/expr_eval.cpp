// EXPR_eval and its last two stages: the tree reduced to one value, and the
// value checked against the caller's request.
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "expr/expr_internal.h"
#include "expr/reloc.h"
#include "source/lexer.h"
#include "support/memory.h"

namespace {

// Parts of a result that must outlive the evaluation zone.
void own_parts(value_record *v) {
  if (v->v_fval) {
    simul_fval *f = static_cast<simul_fval *>(safemalloc(sizeof(simul_fval)));
    *f = *v->v_fval;
    v->v_fval = f;
  }
  if (v->v_str) v->v_str = safestrdup(v->v_str);
  if (v->v_rel && v->v_rel_count) {
    relrec *r = static_cast<relrec *>(safemalloc(sizeof(relrec) * v->v_rel_count));
    std::memcpy(static_cast<void *>(r), v->v_rel, sizeof(relrec) * v->v_rel_count);
    v->v_rel = r;
    v->v_rel_cap = v->v_rel_count;
  } else {
    v->v_rel = nullptr;
    v->v_rel_count = v->v_rel_cap = 0;
  }
}

void copy_leaf(value_record *value, const value_record *leaf) {
  *value = *leaf;
  if (eval_depth == 1) own_parts(value);
}

}  // namespace

void E_result(value_record *value, node *n) {
  if (!n) {
    error(curline, "E0200", "Unable to compose expression");
    value->v_type = 0;
    return;
  }
  if (E_is_leaf(n)) {
    copy_leaf(value, n->n_value);
    return;
  }
  if (E_is_pm(n) && E_is_leaf(n->n_left) && E_is_k(n->n_right)) {
    copy_leaf(value, n->n_left->n_value);
    if (n->n_op == EOP_ADD) value->v_val += E_kval(n->n_right);
    else value->v_val -= E_kval(n->n_right);
    return;
  }
  E_reloc(value, n);
}

bool E_chktype(value_record *value, const expr_parse_state_t &state) {
  if (!(state.e_flags & EXPR_RELOC) && is_relocatable(value)) {
    error(curline, "E0200", "Invalid immediate expression");
    return false;
  }
  if (!state.e_allow_diff && label_diff_seen) {
    error(curline, "E0200", "Difference between segment symbols not permitted");
    return false;
  }
  if (!(state.e_flags & EXPR_FLOAT) && value->v_type == VT_FCON) {
    error(curline, "E0201", "Illegal floating-point expression");
    return false;
  }
  if (state.e_flags == EXPR_MODE_FLOAT) {
    if (is_int_type(value->v_type)) {
      simul_fval *f = static_cast<simul_fval *>(
          eval_depth > 1 ? expr_eval_zone.alloc(sizeof(simul_fval)) : safemalloc(sizeof(simul_fval)));
      f_xtof(value->v_val.b, f);
      value->v_fval = f;
      value->v_type = VT_FCON;
    } else if (value->v_type != VT_FCON) {
      error(curline, "E0201", "Floating-point expression required");
      return false;
    }
  }
  if (value->v_type == VT_FCON) return true;
  int size = value->v_val.size();
  value->v_bits = static_cast<uint16_t>(size);
  if (state.e_width >= static_cast<uint32_t>(size)) {
    if (value->v_val.is_negative()) value->v_flags = VF_NEGCONST;
    return true;
  }
  warn(curline, "W0001", "Constant value out of range, will be truncated to %u bits", state.e_width);
  INT128 mask = (xi_from_int(1) << static_cast<int>(state.e_width)) - xi_from_int(1);
  value->v_val &= mask;
  value->v_bits = static_cast<uint16_t>(state.e_width);
  return true;
}

value_record *EXPR_eval(const expr_parse_state_t &state) {
  value_record *result = eval_depth ? E_newval() : E_getval();
  label_diff_seen = 0;
  ++eval_depth;
  node *tree = E_build(state);
  if (tree) tree = E_simplify(tree);
  if (!tree) {
    result->v_type = 0;
  } else {
    E_result(result, tree);
    if (result->v_type) E_chktype(result, state);
  }
  if (--eval_depth == 0) expr_eval_zone.reset();
  return result;
}
