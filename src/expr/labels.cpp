// Labels from column 0 wait on LBL_current until their statement has
// settled its address; then they are defined there, in both passes.
#include <cstdio>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"
#include "listing/listing.h"
#include "source/lexer.h"

pending_label *LBL_current;

namespace {

// A statement that ignores labels may have let the listing release the line
// on which a pending label stood; such a line is not touched again.
linebuf *live_line(linebuf *line) {
  for (const lst_group *g = curlst; g; g = g->next) {
    for (const linebuf *l = g->first; l; l = l->next) {
      if (l == line) return line;
      if (l == g->last) break;
    }
  }
  return nullptr;
}

void define_pass1(symbol_record *sym, const value_record &v) {
  if (sym->sym_flags & SYMF_DEFINED) return;  // the first definition stands
  SYM_define(sym, &v);
  if (!opt_on(OPT_DISABLE_BRANCH_PATCHING) && SYM_section_has_jumps()) SYM_record_label_jump(sym);
  sym->sym_state = cur_state;
}

void define_pass2(symbol_record *sym, uint32_t a, linebuf *line, bool own_line) {
  const char *name = sym->sym_name.c_str();
  if (!SYM_is_defined_here(sym)) error(line, "E0300", "%s is operand to both .ref and .def", name);
  if (sym->sym_flags & SYMF_DEFINED) error(line, "E0300", "Symbol %s has already been defined", name);
  if (!sym->sym_object && !SYM_is_global(sym)) SYM_invent(sym, a, curseg, 2, 6);
  if (sym->sym_value.v_val != xi_from_uint(a) || sym->sym_section != curseg) {
    if (debug_progress) {
      std::printf("pass conflict, p1=%x, p2=%x\n", sym->sym_value.v_val.to_u32(), a);
    }
    error_internal(1, line, "%s defined differently in each pass", name);
  }
  // A label alone on its line shows its address there.
  if (own_line && line && (line->flags & LNF_LABEL) && !line->object) {
    LST_object(line, a, nullptr, ' ', 4);
    line->flags &= static_cast<uint16_t>(~LNF_OBJECT);
  }
  sym->sym_flags |= SYMF_DECLARED | SYMF_DEFINED;
}

void define_one(const pending_label &p) {
  linebuf *line = live_line(p.line);
  if (!line) line = curline;
  symbol_record *sym = SYM_find(p.name, false);
  uint32_t a = SYM_label_address();
  value_record v;
  E_clrval(&v);
  v.v_type = VT_LABEL;
  v.v_val = xi_from_uint(a);
  v.v_known = 1;
  v.v_section = curseg;
  v.v_symbol = sym;
  v.v_flags = VF_ADDRESS;
  v.v_bits = static_cast<uint16_t>(widthchk(static_cast<int32_t>(a), 48));
  if (sym->sym_value.v_type == VT_KEYWORD) {
    error(line, "E0300", "%s is a reserved identifier", sym->sym_name.c_str());
  }
  if (pass1) {
    define_pass1(sym, v);
  } else {
    define_pass2(sym, a, line, line == p.line);
  }
}

void free_list(pending_label *p) {
  while (p) {
    pending_label *next = p->next;
    delete p;
    p = next;
  }
}

}  // namespace

void LBL_save_name(std::string_view name, linebuf *line) {
  LBL_current = new pending_label{std::string(name), line, LBL_current};
  if (line) line->flags |= LNF_LABEL;
}

void LBL_save() {
  if (!curtk || curtk->kind != TK_IDENT || !curtk->value.sval) return;
  LBL_save_name(curtk->value.sval, curtk->line);
}

void LBL_define() {
  for (pending_label *p = LBL_current; p; p = p->next) define_one(*p);
  free_list(LBL_current);
  LBL_current = nullptr;
}

void LBL_flushbuf(linebuf *line) {
  pending_label *newest = LBL_current;
  if (!newest || newest->line != line) {
    LBL_define();
    return;
  }
  // Older labels belong to the old place; this line's label waits.
  LBL_current = newest->next;
  LBL_define();
  newest->next = nullptr;
  LBL_current = newest;
}

void LBL_free() {
  free_list(LBL_current);
  LBL_current = nullptr;
}

void LBL_free_current() {
  if (pending_label *p = LBL_current) {
    LBL_current = p->next;
    delete p;
  }
}

void LBL_free_prefix(std::string_view prefix) {
  pending_label **link = &LBL_current;
  while (pending_label *p = *link) {
    if (p->name.starts_with(prefix)) {
      *link = p->next;
      delete p;
    } else {
      link = &p->next;
    }
  }
}
