// .reloc: a relocation written by hand, for objects whose relocations come
// only from the source (--zq:manual_relocs). It does its work while parsed.
#include "expr/reloc_directive.h"

#include <cstring>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "driver/records.h"
#include "expr/expr.h"
#include "expr/reloc.h"
#include "expr/symbols.h"
#include "ofe/elf_reloc.h"
#include "ofe/object_file.h"
#include "ofe/of_section.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

const char *const NOT_OFFSET = "expecting integer value for offset value;skipping";

// An integer token, optionally negated.
bool read_int(int64_t *out) {
  bool neg = false;
  if (curtk->kind == TK_MINUS) {
    neg = true;
    next_token();
  }
  if (curtk->kind != TK_ICON) return false;
  const int64_t v = curtk->value.ival.to_i64();
  *out = neg ? -v : v;
  next_token();
  return true;
}

bool read_addend(int64_t *out) {
  if (curtk->kind != TK_ICON && curtk->kind != TK_MINUS) return false;
  value_record *v = EXPR_eval(expr_parse_state_t{EXPR_MODE_RELOC, 32, 0});
  const bool ok = v && v->v_type == VT_ICON;
  if (ok) *out = v->v_val.to_i64();
  if (v) E_freeval(v);
  return ok;
}

bool ident_is(const char *text) {
  return curtk->kind == TK_IDENT && curtk->value.sval && std::strcmp(curtk->value.sval, text) == 0;
}

// The warning of a bad operand; the rest of the line is skipped.
bool refuse(instruct *ir, const char *text) {
  warn(ir->line, "W0000", "%s", text);
  DIR_skip_to_eol();
  return false;
}

bool parse_and_append(instruct *ir) {
  next_token();
  if (curtk->kind != TK_IDENT) return refuse(ir, "Invalid relocation type; skipping");
  const OFE::OF_RELOC_TYPE *type = ofile->reloc_type(curtk->value.sval);
  if (!type || type->template_id() == OFE::OFR_NO_TEMPLATE) return refuse(ir, "Invalid relocation type; skipping");
  next_token();
  DIR_skip_comma(ir);
  int64_t offset = 0;
  if (!read_int(&offset)) return refuse(ir, NOT_OFFSET);
  DIR_skip_comma(ir);
  bool has_addend = false;
  if (ident_is("true"))
    has_addend = true;
  else if (!ident_is("false"))
    return refuse(ir, "expecting \"true\" or \"false\" for second agrument; skipping");
  next_token();
  int64_t addend = 0;
  if (has_addend) {
    DIR_skip_comma(ir);
    if (!read_addend(&addend)) return refuse(ir, "expecting integer value for addend value;skipping");
  }
  symbol_record *sym = nullptr;
  if (type->is_symrel()) {
    DIR_skip_comma(ir);
    if (curtk->kind != TK_IDENT) return refuse(ir, "expecting symbol name; skipping");
    sym = SYM_query(curtk->value.sval);
    if (!sym) {
      warn(ir->line, "W0000", "symbol \"%s\" not found; skipping", curtk->value.sval);
      DIR_skip_to_eol();
      return false;
    }
    SYM_mark_referenced(sym);
    next_token();
  }
  // The operands of the stack forms belong to ZQ-COFF, which has no writer
  // yet; they are read so that the line is checked all the same.
  const int operands = type->is_fldrel() ? 3 : (type->is_const() || type->is_spc()) ? 1 : 0;
  for (int i = 0; i < operands; ++i) {
    DIR_skip_comma(ir);
    int64_t ignored = 0;
    if (!read_int(&ignored)) return refuse(ir, NOT_OFFSET);
  }
  skip_to_expected_eol(ir->line);
  if (!curseg || !curseg->scn_object) return false;
  OFE::OF_RELOC *r = curseg->scn_object->new_reloc(has_addend);
  if (!r) return false;
  r->set_offset(RELOC_place(type, 0) + static_cast<uint64_t>(offset));
  r->set_type(type);
  if (OFE::ELF_RELOC *e = r->elf_api(); e && type->is_rela()) e->set_addend(addend);
  if (sym) curseg->scn_reloc_syms[r] = sym;
  return true;
}

}  // namespace

void DP_reloc(instruct *ir) {
  SCN_align(cur_state == 0 ? 32 : 16, 0);
  LBL_define();
  if (pass1) {
    DIR_skip_to_eol();
    return;
  }
  if (!opt_on(OPT_ZQ_MANUAL_RELOCS)) {
    error(ir->line, "E0000", "Illegal mnemonic specified");
    DIR_skip_to_eol();
    return;
  }
  if (!ofile) {
    DIR_skip_to_eol();
    return;
  }
  parse_and_append(ir);
}
