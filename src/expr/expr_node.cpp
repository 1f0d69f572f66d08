// Nodes and values: zone builders for one evaluation, heap records that own
// their parts.
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "expr/expr.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "support/memory.h"

MZONE expr_eval_zone(4096, __FILE__, __LINE__);
int32_t eval_depth = 0;
int32_t paren_depth = 0;
uint8_t label_diff_seen = 0;

namespace {

template <class T>
T *zone_new() {
  return static_cast<T *>(expr_eval_zone.alloc(sizeof(T)));
}

template <class T>
T *heap_dup(const T *src, size_t count) {
  if (!src || count == 0) return nullptr;
  T *p = static_cast<T *>(safemalloc(sizeof(T) * count));
  std::memcpy(static_cast<void *>(p), src, sizeof(T) * count);
  return p;
}

}  // namespace

value_record *E_newval() {
  value_record *v = zone_new<value_record>();
  E_clrval(v);
  return v;
}

node *E_newnode() { return zone_new<node>(); }

node *E_mkleaf(uint16_t token_kind, value_record *value) {
  expr_opcode op;
  switch (token_kind) {
    case TK_ICON: case TK_CCON: case TK_SCON: op = EOP_ICON; break;
    case TK_FCON: op = EOP_FCON; break;
    case TK_SPC: op = EOP_SPC; break;
    case TK_IDENT: case TK_LOCLABEL: op = EOP_SYM; break;
    default:
      error_internal(1, curline, "unrecognized leaf token");
      return nullptr;
  }
  node *n = E_newnode();
  n->n_op = op;
  n->n_value = value;
  return n;
}

node *E_mkval(value_record *value) {
  node *n = E_newnode();
  n->n_value = value;
  if (is_int_type(value->v_type)) n->n_op = EOP_ICON;
  else if (value->v_type == VT_FCON) n->n_op = EOP_FCON;
  else if (value->v_type == VT_SCNREL && !value->v_symbol) n->n_op = EOP_SPC;
  else n->n_op = EOP_SYM;
  return n;
}

node *E_mktree(expr_opcode op, node *left, node *right) {
  node *n = E_newnode();
  n->n_op = op;
  n->n_left = left;
  n->n_right = right;
  if (left) left->n_parent = n;
  if (right) right->n_parent = n;
  return n;
}

value_record *E_getval() {
  value_record *v = static_cast<value_record *>(safemalloc(sizeof(value_record)));
  E_clrval(v);
  return v;
}

void E_clrval(value_record *value) {
  *value = value_record{};
  value->v_type = VT_ICON;
  value->v_known = 1;
}

void E_cpy2val(value_record *dst, const value_record *src) {
  *dst = *src;
  dst->v_fval = heap_dup(src->v_fval, 1);
  dst->v_str = src->v_str ? safestrdup(src->v_str) : nullptr;
  dst->v_rel = heap_dup(src->v_rel, src->v_rel_count);
  dst->v_rel_cap = dst->v_rel ? src->v_rel_count : 0;
  if (!dst->v_rel) dst->v_rel_count = 0;
}

value_record *E_cpyval(const value_record *value) {
  value_record *v = static_cast<value_record *>(safemalloc(sizeof(value_record)));
  E_cpy2val(v, value);
  return v;
}

void E_freeparts(value_record *value) {
  if (!value) return;
  std::free(value->v_fval);
  std::free(value->v_str);
  std::free(value->v_rel);
  value->v_fval = nullptr;
  value->v_str = nullptr;
  value->v_rel = nullptr;
  value->v_rel_count = value->v_rel_cap = 0;
}

void E_freeval(value_record *value) {
  if (!value) return;
  E_freeparts(value);
  std::free(value);
}

bool E_extract_sym_offset(const value_record *value, INT128 *offset) {
  const symbol_record *sym = value->v_symbol;
  if (!sym) {
    *offset = INT128{};
    return false;
  }
  *offset = value->v_val - sym->sym_value.v_val;
  return true;
}
