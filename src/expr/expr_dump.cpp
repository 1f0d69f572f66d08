// Debug prints of trees, values and relocation expressions.
#include <cstdio>

#include "expr/expr.h"
#include "expr/expr_internal.h"
#include "expr/reloc.h"
#include "expr/symbols.h"

namespace {

constexpr const char *opcode_names[EOP_COUNT] = {
    "EOP_ICON", "EOP_FCON", "EOP_SPC", "EOP_SYM",  "EOP_ADD", "EOP_SUB", "EOP_MPY",  "EOP_DIV",
    "EOP_MOD",  "EOP_SR",   "EOP_ASR", "EOP_SL",   "EOP_AND", "EOP_OR",  "EOP_XOR",  "EOP_NOTB",
    "EOP_NEG",  "EOP_LT",   "EOP_LE",  "EOP_GT",   "EOP_GE",  "EOP_EQ",  "EOP_NE",   "EOP_NOT",
};

const char *symbol_name(const symbol_record *s) { return s ? s->sym_name.c_str() : "-"; }

}  // namespace

const char *E_opname(uint32_t op) { return op < EOP_COUNT ? opcode_names[op] : "EOP_?"; }

void E_dump_value(const value_record *v) {
  if (!v) {
    std::printf("(null value)\n");
    return;
  }
  std::printf("type %u flags 0x%x bits %u val %s known %u forward %u sym %s sym2 %s%s%s%s\n",
              v->v_type, v->v_flags, v->v_bits, v->v_val.to_string().c_str(), v->v_known,
              v->v_forward, symbol_name(v->v_symbol), symbol_name(v->v_symbol2),
              v->v_section ? " section" : "", v->v_str ? " string" : "", v->v_rel ? " relexp" : "");
}

void E_dump_relexp(const value_record *v) {
  for (unsigned i = 0; v && v->v_rel && i < v->v_rel_count; ++i) {
    const relrec &r = v->v_rel[i];
    std::printf("  [%u] type %p value 0x%llx symbol %s\n", i, static_cast<const void *>(r.rr_type),
                static_cast<unsigned long long>(r.rr_value.raw), symbol_name(r.rr_symbol));
  }
}

void E_dump_expr(const node *n, int indent) {
  // The walk only reads the tree; it takes mutable nodes for the simplifier.
  E_walk(const_cast<node *>(n),
         [indent](node *m, int depth) {
           std::printf("%*s%s%s", (indent + depth) * 2, "", E_opname(m->n_op), m->n_value ? ": " : "\n");
           if (m->n_value) E_dump_value(m->n_value);
         },
         [](node *m, int) { return m; });
}
