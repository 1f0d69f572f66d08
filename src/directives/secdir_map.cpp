// .map name/reg[, name/reg]... and .clearmap: symbolic names for registers.
#include <string>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/secdir_pending.h"
#include "driver/diag.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/lexer.h"

namespace {

// The directive's line stays out of the listing unless directive lines are listed.
void hide_line(instruct *ir) {
  if (!(LST_control & LST_DRLIST) && ir->line) ir->line->flags &= static_cast<uint16_t>(~LNF_PRINT);
}

// One name/reg pair at curtk; on success both names go to slot 0, in order.
void read_pair(instruct *ir) {
  if (curtk->kind != TK_IDENT) {
    error(ir->line, "E0003", "Symbolic register name expected");
    DIR_skip_to_comma();
    return;
  }
  operand *name = create_str_operand(curtk->value.sval, OP_SYMBOL);
  next_token();
  if (curtk->kind != TK_DIV) {
    error(ir->line, "E0000", "Missing /\n");
    IR_free_oprnd(name);
    DIR_skip_to_comma();
    return;
  }
  next_token();
  if (curtk->kind != TK_IDENT) {
    error(ir->line, "E0003", "Machine register expected");
    IR_free_oprnd(name);
    DIR_skip_to_comma();
    return;
  }
  IR_add_oprnd(ir, 0, name);
  IR_add_oprnd(ir, 0, create_str_operand(curtk->value.sval, OP_SYMBOL));
  next_token();
}

}  // namespace

void DP_map(instruct *ir) {
  next_token();
  while (curtk->kind != TK_EOL) {
    read_pair(ir);
    DP_comma();
    if (curtk->kind == TK_COMMA) next_token();
  }
}

void GD_map(instruct *ir) {
  for (const operand *op = ir->oprnds[0]; op && op->next; op = op->next->next) {
    const std::string name = DIR_opnd_text(op);
    const std::string reg = DIR_opnd_text(op->next);
    if (name.empty()) {
      error(ir->line, "E0005", "Symbolic register name expected");
      continue;
    }
    if (reg.empty()) {
      error(ir->line, "E0005", "Machine register expected");
      continue;
    }
    if (subregsymtbl.SUBREGSYM_insert(name, reg)) continue;
    const symbol_record *sym = SYM_query(name);
    if (sym && sym->sym_value.v_type == VT_REG)
      error(ir->line, "E0003", "Cannot substitute for %s", name.c_str());
    else
      error(ir->line, "E0003", "Illegal machine register %s", reg.c_str());
  }
  hide_line(ir);
}

void GD_clearmap(instruct *ir) {
  subregsymtbl.SUBREGSYM_clear();
  hide_line(ir);
}
