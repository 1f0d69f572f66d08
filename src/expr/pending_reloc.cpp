// Interim E_reloc until relocation expressions land with relocation emission.
// A tree that folding cannot reduce to symbol + constant is refused here, as
// an ELF object refuses it when it is emitted.
#include "driver/diag.h"
#include "expr/expr_internal.h"
#include "expr/reloc.h"
#include "source/lexer.h"

namespace {

struct tree_facts {
  const value_record *reloc = nullptr;   // first relocatable leaf
  bool has_float = false;                // folding has reported on the tree already
  bool known = true;
  bool forward = false;
};

void note_leaf(const value_record *v, expr_opcode op, tree_facts *f) {
  if (!f->reloc && is_relocatable(v)) f->reloc = v;
  f->has_float = f->has_float || op == EOP_FCON;
  f->known = f->known && v->v_known;
  f->forward = f->forward || v->v_forward;
}

}  // namespace

void E_reloc(value_record *value, node *n) {
  tree_facts f;
  E_walk(n, [&f](node *m, int) { if (m->n_value) note_leaf(m->n_value, m->n_op, &f); },
         [](node *m, int) { return m; });
  E_clrval(value);
  value->v_known = f.known;
  value->v_forward = f.forward;
  // A relocatable tree keeps its type so that pass 1 sizes the statement as
  // pass 2 will; anything else has no value to give.
  value->v_type = f.reloc ? f.reloc->v_type : 0;
  if (f.has_float) return;
  error(curline, "E0200",
        "Unable to resolve this relocatable expression; relocation support for arbitrary "
        "expressions is not available in the QMX800 EABI");
}
