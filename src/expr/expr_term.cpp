// Terms: constants, strings, `$`, parentheses, built-in calls and names with
// the structure dot operator.
#include <cstring>
#include <string>

#include "directives/structs.h"
#include "driver/diag.h"
#include "expr/bif.h"
#include "expr/expr.h"
#include "expr/expr_internal.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "support/memory.h"

namespace {

// A copy of a symbol's value whose parts the folding may change in place.
void zone_copy_value(value_record *dst, const value_record *src) {
  *dst = *src;
  if (src->v_fval) {
    dst->v_fval = static_cast<simul_fval *>(expr_eval_zone.alloc(sizeof(simul_fval)));
    *dst->v_fval = *src->v_fval;
  }
  dst->v_str = expr_eval_zone.strdup(src->v_str);
  // v_rel is only read by the relocation walk and stays shared.
}

node *int_term(bool is_char) {
  value_record *v = E_newval();
  v->v_val = curtk->value.ival;
  v->v_bits = static_cast<uint16_t>(v->v_val.size());
  if (is_char) v->v_flags = VF_CHAR;
  node *n = E_mkleaf(curtk->kind, v);
  next_token();
  return n;
}

node *string_term() {
  value_record *v = E_newval();
  v->v_str = expr_eval_zone.strdup(curtk->value.sval ? curtk->value.sval : "");
  node *n = E_mkleaf(TK_SCON, v);
  next_token();
  return n;
}

node *float_term() {
  value_record *v = E_newval();
  v->v_type = VT_FCON;
  v->v_fval = static_cast<simul_fval *>(expr_eval_zone.alloc(sizeof(simul_fval)));
  if (curtk->value.fval) *v->v_fval = *curtk->value.fval;
  node *n = E_mkleaf(TK_FCON, v);
  next_token();
  return n;
}

node *location_term() {
  value_record *v = E_newval();
  node *n = E_location(v) ? E_mkleaf(TK_SPC, v) : E_mkleaf(TK_ICON, v);
  next_token();
  return n;
}

node *paren_term() {
  if (!E_nest_enter()) return nullptr;
  ++paren_depth;
  next_token();
  node *inner = E_level0();
  E_nest_leave();
  if (!inner) return nullptr;
  if (!curtk || curtk->kind != TK_RPAREN) {
    E_parse_error("E0000", "No matching right parenthesis");
    return nullptr;
  }
  --paren_depth;
  next_token();
  return inner;
}

// The character behind the current name token, with nothing between.
bool dot_follows() { return curch() == '.'; }

// Steps over the `.` and reads the token behind it.
void take_dot() {
  getch();
  next_token();
}

const membrec *find_member(const membrec *list, const char *name) {
  for (const membrec *m = list; m; m = m->mb_next) {
    if (std::strcmp(m->mb_name, name) == 0) return m;
  }
  return nullptr;
}

// Selects the member named by curtk in `*list`; false after a message (given
// only if `report`).
bool select_member(value_record *v, const membrec **list, bool report) {
  bool is_name = curtk && curtk->kind == TK_IDENT;
  const membrec *m = is_name ? find_member(*list, curtk->value.sval) : nullptr;
  if (!m) {
    if (report) {
      if (is_name) error(curline, "E0300", "Structure/union member, %s, not found", curtk->value.sval);
      else error(curline, "E0300", "Structure/union member not found");
    }
    return false;
  }
  v->v_val += xi_from_uint(m->mb_offset);
  v->v_flags = m->mb_flags;
  v->v_member = const_cast<membrec *>(m);
  *list = m->mb_members;
  return true;
}

// `name.x[.y...]`; curtk is the name, the dot directly behind it. Returns
// whether curtk is still part of the term: a token that isn't a name ends
// the chain and is left to the caller.
bool dot_operator(value_record *v, const symbol_record *sym) {
  const membrec *list = sym->sym_members;
  uint32_t type = sym->sym_value.v_type;
  bool ok = true;
  take_dot();
  if (type == VT_STAG || type == VT_UTAG || type == VT_SUMEM || list) {
    if (type == VT_STAG || type == VT_UTAG || type == VT_SUMEM) {
      v->v_type = VT_ICON;
      v->v_val = sym->sym_value.v_val;
    }
    ok = select_member(v, &list, true);
    if (!ok && (!curtk || curtk->kind != TK_IDENT)) return false;
  } else if (!curtk || curtk->kind != TK_IDENT) {
    error(curline, "E0009", "Illegal struct/union reference dot operator");
    return false;
  } else {
    symbol_record *ref = SYM_find(curtk->value.sval);
    uint32_t rtype = ref->sym_value.v_type;
    if (rtype != VT_STAG && rtype != VT_UTAG && rtype != VT_SUMEM) {
      error(curline, "E0009", "Missing struct/union member or tag");
      ok = false;
    } else {
      if (rtype == VT_SUMEM) v->v_val += ref->sym_value.v_val;
      list = ref->sym_members;
    }
    SYM_mark_referenced(ref);
  }
  while (dot_follows()) {
    take_dot();
    if (!curtk || curtk->kind != TK_IDENT) {
      if (ok) error(curline, "E0009", "Illegal struct/union reference dot operator");
      return false;
    }
    ok = select_member(v, &list, ok) && ok;
  }
  return true;
}

}  // namespace

node *E_nameterm() {
  const char *name = curtk->value.sval ? curtk->value.sval : "";
  symbol_record *sym = SYM_find(name);
  value_record *v = E_newval();
  zone_copy_value(v, &sym->sym_value);
  if (!(sym->sym_flags & SYMF_DEFINED)) {
    v->v_known = 0;
    v->v_forward = 1;
  }
  if (!v->v_symbol) v->v_symbol = sym;
  if (v->v_type == VT_SUMEM) v->v_type = VT_ICON;
  bool advance = true;
  if (curtk->kind == TK_IDENT && dot_follows()) advance = dot_operator(v, sym);
  SYM_mark_referenced(sym);
  if (advance) next_token();
  return E_mkval(v);
}

node *E_term() {
  switch (curtk->kind) {
    case TK_ICON: return int_term(false);
    case TK_CCON: return int_term(true);
    case TK_SCON: return string_term();
    case TK_FCON: return float_term();
    case TK_SPC: return location_term();
    case TK_LPAREN: return paren_term();
    case TK_INTRINSIC: {
      node *n = BIF_term();
      if (!n) E_parse_failed();
      return n;
    }
    case TK_IDENT: case TK_LOCLABEL: return E_nameterm();
    default: return nullptr;
  }
}
