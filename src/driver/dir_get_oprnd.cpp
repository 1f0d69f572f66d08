// The operand reader that every directive's parse handler uses.
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "driver/diag.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/fval.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "source/subsym.h"

namespace {

bool at_separator() { return !curtk || curtk->kind == TK_COMMA || curtk->kind == TK_EOL; }

linebuf *here() { return curtk && curtk->line ? curtk->line : curline; }

bool fval_is_zero(const simul_fval *f) {
  return !f || f_eq(f, &pos_zero) || f_eq(f, &neg_zero);
}

// The operand kind that a value stands for.
uint16_t kind_of_value(const value_record &v) {
  switch (v.v_type) {
    case VT_LABEL: case VT_LDLABEL: case VT_SCNREL: case VT_UNDEFSYM: case VT_COMMON:
      return OP_SYMBOL;
    default:
      break;
  }
  if (v.v_symbol) return OP_SYMBOL;
  switch (v.v_type) {
    case VT_REG: return OP_REGISTER;
    case VT_FCON: return OP_FCON;
    case VT_ICON: case VT_MMR: return OP_ICON;
    default: return OP_NONE;
  }
}

// An operand that takes over a heap value from the expression engine.
operand *operand_from_value(value_record *v) {
  // The result of EXPR_eval owns its parts on the heap: they move over.
  operand *op = new_operand(OP_NONE);
  op->value = *v;
  std::free(v);
  op->kind = kind_of_value(op->value);
  return op;
}

// Text after an operand that is complete: report it and move on to the separator.
void check_clutter(const char *id, const char *text) {
  if (at_separator()) return;
  error(here(), id, "%s", text);
  DIR_skip_to_comma();
}

operand *fail_and_skip(const char *id, const char *text) {
  error(here(), id, "%s", text);
  DIR_skip_to_comma();
  return nullptr;
}

operand *missing(bool optional) {
  if (!optional) error(here(), "E0005", "Operand missing");
  return nullptr;
}

// One past the last source character of a token in the current line text.
int token_end(const token *tk) {
  const int start = tk->column;
  const char quote = tk->kind == TK_SCON ? '"' : tk->kind == TK_CCON ? '\'' : 0;
  const int len = static_cast<int>(inbuf ? strlen(inbuf) : 0);
  if (quote && inbuf && start < len && inbuf[start] == quote) {
    int i = start + 1;
    while (i < len && inbuf[i] != '\n') {
      if (inbuf[i] == quote) {
        if (i + 1 < len && inbuf[i + 1] == quote) {
          i += 2;
          continue;
        }
        return i + 1;
      }
      ++i;
    }
    return i;
  }
  const int end = start + tk->length;
  return end < len ? end : len;
}

// Flag 0x040: the text from the first token to the end of the last one
// before the comma or the line end.
operand *read_raw_text() {
  const int start = curtk->column;
  int end = token_end(curtk);
  next_token();
  while (!at_separator()) {
    const int e = token_end(curtk);
    if (e > end) end = e;
    next_token();
  }
  std::string text;
  if (inbuf && start >= 0 && end > start) text.assign(inbuf + start, static_cast<size_t>(end - start));
  return create_str_operand(text.c_str(), OP_SCON);
}

struct attribute_name {
  std::string_view name;
  uint16_t code;
};
constexpr attribute_name attribute_names[] = {
    {"STACK_USAGE", ATTR_STACK_USAGE}, {"SYM_SIZE", ATTR_SYM_SIZE},
    {"SYM_PRESERVE", ATTR_SYM_PRESERVE}, {"SYM_UPDATE", ATTR_SYM_UPDATE},
    {"SYM_BLOCKED", ATTR_SYM_BLOCKED},
};

// Flag 0x800: NAME(expression).
operand *read_attribute(const dir_parse_state_t &st) {
  std::string name = curtk->value.sval ? curtk->value.sval : "";
  strupper(name);
  uint16_t code = 0;
  for (const attribute_name &a : attribute_names)
    if (a.name == name) code = a.code;
  if (!code) return fail_and_skip("E0003", "Bad attribute name for attribute/value pair operand");

  next_token();
  if (curtk->kind != TK_LPAREN)
    return fail_and_skip("E0003", "Bad attribute value specified for attribute/value pair operand");
  const expr_parse_state_t es{EXPR_MODE_RELOC, st.width, 1};
  value_record *v = EXPR_eval(es);
  if (!v || v->v_type == 0) {
    if (v) E_freeval(v);
    return fail_and_skip("E0003", "Bad attribute value specified for attribute/value pair operand");
  }
  operand *op = operand_from_value(v);
  op->attribute = code;
  check_clutter("E0003", "Cluttered identifier operand encountered");
  return op;
}

// Flag 0x080: the name of a substitution symbol, read as written.
operand *read_ssname(bool optional) {
  subsym_expand = 0;
  next_token();
  subsym_expand = 1;
  if (curtk->kind == TK_IDENT) {
    operand *op = create_str_operand(curtk->value.sval, OP_SSNAME);
    next_token();
    if (at_separator()) return op;
    IR_free_oprnd(op);
    return fail_and_skip("E0004", "Substitution symbol operand expected");
  }
  if (curtk->kind == TK_EOL && optional) return nullptr;
  return fail_and_skip("E0004", "Substitution symbol operand expected");
}

// Flag 0x200: a structure or union tag gives a copy of its value.
operand *read_tag(const symbol_record *sym) {
  operand *op = new_operand(OP_ICON);
  E_cpy2val(&op->value, &sym->sym_value);
  next_token();
  check_clutter("E0003", "Cluttered identifier operand encountered");
  return op;
}

}  // namespace

void DIR_skip_to_comma() {
  while (!at_separator()) next_token();
}

void DIR_skip_to_eol() { LEX_skip_to_eol(); }

operand *DIR_get_oprnd(const dir_parse_state_t &st) {
  const uint32_t fl = st.flags;
  const bool optional = (fl & DPS_OPTIONAL) != 0;

  if (!curtk || curtk->kind == TK_EOL) return missing(optional);
  if (fl & DPS_SSNAME) return read_ssname(optional);

  if (curtk->kind != TK_COMMA && curtk->kind != IR_DIRECTIVE) {
    syntax_error(here(), "E0000");
    DIR_skip_to_comma();
    return nullptr;
  }
  next_token();

  if (curtk->kind == TK_SCON && (fl & DPS_STRING)) {
    operand *op = create_str_operand(curtk->value.sval, OP_SCON);
    next_token();
    check_clutter("E0003", "Cluttered string constant operand encountered");
    return op;
  }
  if (curtk->kind == TK_COMMA || curtk->kind == TK_EOL) return missing(optional);
  if (fl == DPS_STRING) return fail_and_skip("E0004", "String operand expected");

  if (curtk->kind == TK_IDENT) {
    if (fl & DPS_CHAR) {
      if (curtk->length != 1 || !curtk->value.sval)
        return fail_and_skip("E0004", "Single character operand expected");
      operand *op = new_operand(OP_ICON);
      op->value.v_type = VT_ICON;
      op->value.v_known = 1;
      op->value.v_bits = 8;
      op->value.v_flags = 34;
      XI_utox(static_cast<uint8_t>(curtk->value.sval[0]), op->value.v_val.b);
      next_token();
      check_clutter("E0003", "Cluttered character operand encountered");
      return op;
    }
    if (fl & DPS_IDENT) {
      operand *op = create_str_operand(curtk->value.sval, OP_SYMBOL);
      next_token();
      check_clutter("E0003", "Cluttered identifier operand encountered");
      return op;
    }
    if (fl & DPS_TAG) {
      const symbol_record *sym = SYM_query(curtk->value.sval);
      if (sym && (sym->sym_value.v_type == VT_STAG || sym->sym_value.v_type == VT_UTAG))
        return read_tag(sym);
    }
    if (fl & DPS_ATTR) return read_attribute(st);
  }

  if (fl & DPS_RAW) return read_raw_text();
  if (fl == DPS_IDENT) return fail_and_skip("E0300", "Symbol expected");
  if (!(fl & (DPS_EXPR | DPS_FLOAT | DPS_ABSINT | DPS_REG)))
    return fail_and_skip("E0004", "Illegal operand");

  const expr_parse_state_t es{(fl & DPS_FLOAT) ? EXPR_MODE_ANY : EXPR_MODE_RELOC, st.width, 1};
  value_record *v = EXPR_eval(es);
  if (!v || v->v_type == 0) {
    if (v) E_freeval(v);
    DIR_skip_to_comma();
    return nullptr;
  }

  if (fl & DPS_ABSINT) {
    if ((fl & DPS_FLOAT) && v->v_type == VT_FCON) {
      const bool nonzero = !fval_is_zero(v->v_fval);
      E_freeparts(v);
      E_clrval(v);
      XI_utox(nonzero ? 1 : 0, v->v_val.b);
    }
    if ((v->v_type != VT_ICON && v->v_type != VT_MMR) || !v->v_known) {
      E_freeval(v);
      error(here(), "E0004", "Absolute, well-defined integer value expected");
      return nullptr;
    }
    if (!opt_on(OPT_DISABLE_BRANCH_PATCHING)) VLI_check(v);
  }
  return operand_from_value(v);
}

operand *DIR_get_counted_oprnd(const dir_parse_state_t &st) {
  static std::vector<plain_token> tokens;
  const bool floats = (st.flags & DPS_FLOAT) != 0;
  uint32_t separator = 0;
  if (opt_on(OPT_CROSS_REFERENCE) || !curtk || (curtk->kind != TK_COMMA && curtk->kind != IR_DIRECTIVE) ||
      !LEX_plain_operand(floats, &tokens, &separator))
    return DIR_get_oprnd(st);
  // A substitution symbol would change the text: the lexer has to read it.
  for (const plain_token &t : tokens) {
    s_sym *entry = nullptr;
    if (t.kind == TK_IDENT && subsymtbl.SUBSYM_find(std::string(inbuf + t.start, t.length), &entry) && entry)
      return DIR_get_oprnd(st);
  }
  const long used = tokens.empty() ? 0 : EXPR_skim(tokens.data(), tokens.size(), inbuf);
  // As after DIR_get_oprnd: curtk is the separator, or the first token that
  // doesn't continue the expression, which the caller deals with.
  const bool rest = used > 0 && static_cast<size_t>(used) < tokens.size();
  LEX_resume_at(rest ? tokens[static_cast<size_t>(used)].start : separator);
  next_token();
  if (tokens.empty()) return missing((st.flags & DPS_OPTIONAL) != 0);
  if (used < 0) return nullptr;
  operand *op = new_operand(floats ? OP_FCON : OP_ICON);
  op->value.v_type = floats ? VT_FCON : VT_ICON;
  return op;
}
