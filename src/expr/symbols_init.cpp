// Built-in symbols from the static tables: keywords and predefined symbols.
#include <cctype>
#include <string>

#include "driver/options.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"

namespace {

void enter_row(std::string_view name, uint32_t type, uint32_t value, uint16_t bits, uint32_t extra_flags) {
  symbol_record *sym = SYM_find(name, true);
  value_record v;
  E_clrval(&v);
  v.v_type = type;
  v.v_val = xi_from_uint(value);
  v.v_bits = bits;
  v.v_symbol = sym;
  SYM_define(sym, &v);
  sym->sym_flags |= extra_flags;
}

}  // namespace

void init_keywords(const sym_init *rows) {
  bool both_cases = !opt_on(OPT_SYMS_IGNORE_CASE);
  for (const sym_init *r = rows; r && r->name; ++r) {
    enter_row(r->name, VT_KEYWORD, r->value, 32, 0);
    if (both_cases) {
      std::string lower(r->name);
      for (char &c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      if (lower != r->name) enter_row(lower, VT_KEYWORD, r->value, 32, 0);
    }
  }
}

void init_predefs(const sym_init *rows) {
  for (const sym_init *r = rows; r && r->name; ++r) {
    auto bits = static_cast<uint16_t>(widthchk(static_cast<int32_t>(r->value), 8));
    enter_row(r->name, r->type, r->value, bits, SYMF_PREDEF);
  }
}
