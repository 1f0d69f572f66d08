// .emsg, .mmsg, .wmsg, .remark and .noremark.
#include "driver/diag_directives.h"

#include <cstdio>
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "driver/records.h"
#include "expr/int128.h"
#include "listing/listing.h"
#include "source/lexer.h"

namespace {
const char *message_text(instruct *ir) {
  operand *op = ir->oprnds[0];
  return op && op->kind == OP_SCON && op->value.v_str ? op->value.v_str : nullptr;
}
}  // namespace

void DP_emsg(instruct *ir) {
  IR_add_oprnd(ir, 0, DIR_get_oprnd({DPS_STRING, 64}));
  if (curtk && curtk->kind != TK_EOL) {
    error(curline, "E0003", "Unexpected trailing operand(s)");
    DIR_skip_to_eol();
  }
}

void GD_emsg(instruct *ir) {
  if (const char *text = message_text(ir)) error(ir->line, " ***** USER ERROR ***** - ", "%s", text);
}

void GD_wmsg(instruct *ir) {
  if (const char *text = message_text(ir)) warn(ir->line, " ***** USER WARNING ***** - ", "%s", text);
}

void GD_mmsg(instruct *ir) {
  const char *text = message_text(ir);
  if (!text || opt_on(OPT_PREPROCESS)) return;
  std::string listed = std::string(" ***** USER MESSAGE ***** - ") + text;
  if (ir->line) LST_add_emsg(ir->line, listed.c_str());
  std::fflush(stderr);
  std::printf("*** MESSAGE! line %u: %s\n", ir->line ? ir->line->line_number : 0u, text);
  std::fflush(stdout);
}

void DP_remark(instruct *ir) {
  const dir_parse_state_t first{DPS_EXPR, 64};
  const dir_parse_state_t more{DPS_EXPR | DPS_OPTIONAL, 64};
  operand *op = DIR_get_oprnd(first);
  IR_add_oprnd(ir, 0, op);
  DP_comma();
  while (curtk && curtk->kind == TK_COMMA) {
    IR_add_oprnd(ir, 0, DIR_get_oprnd(more));
    DP_comma();
  }
}

void GD_remark(instruct *ir) {
  bool on = std::strcmp(ir->dir()->name, ".REMARK") == 0;
  for (operand *op = ir->oprnds[0]; op; op = op->next) {
    if (op->kind != OP_ICON) continue;
    uint32_t id = 0;
    XI_xtou(op->value.v_val.b, &id);
    if (on)
      unsupress_remark(id);
    else
      supress_remark(id, REMARK_PASS);
  }
}
