// Parse and pass handlers shared by many directives, and those of .end,
// .compiler_opts and .template.
#include <cstring>

#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "source/macro.h"

void donothing(instruct *) {}

void DP_comma() {
  if (!curtk || curtk->kind == TK_COMMA || curtk->kind == TK_EOL) return;
  error(curtk->line ? curtk->line : curline, "E0000", "Commas must separate directive elements");
  DIR_skip_to_comma();
}

void DIR_skip_comma(instruct *ir) {
  if (curtk && curtk->kind == TK_COMMA) {
    next_token();
    return;
  }
  warn(ir ? ir->line : curline, "W0000", "Comma expected after operand");
}

void DP_no_oprnds(instruct *ir) {
  next_token();
  if (curtk->kind == TK_EOL) return;
  warn(ir->line, "W0000", "No operands expected. Operands ignored");
  DIR_skip_to_eol();
}

void DP_filename(instruct *ir) {
  LEX_getfname();
  if (!curtk || curtk->kind != TK_SCON) {
    error(ir->line, "E0005", "Operand missing");
    DIR_skip_to_eol();
    return;
  }
  IR_add_oprnd(ir, 0, create_str_operand(curtk->value.sval, OP_SCON));
  next_token();
  skip_to_expected_eol(ir->line);
}

namespace {

// Directives whose pass 1 counts elements without looking at their values.
bool counts_elements(int32_t id) {
  switch (id) {
    case DIR_STRING: case DIR_BYTE: case DIR_UBYTE: case DIR_HALF: case DIR_UHALF:
    case DIR_WORD: case DIR_UWORD: case DIR_LONG: case DIR_ULONG:
      return true;
    default:
      return false;
  }
}

}  // namespace

template <unsigned N>
void DP_icons(instruct *ir) {
  const dir_parse_state_t st{DPS_EXPR | DPS_STRING, N};
  operand *(*read)(const dir_parse_state_t &) =
      pass1 && counts_elements(ir->dir()->id) ? DIR_get_counted_oprnd : DIR_get_oprnd;
  // No operand at all: the directive does nothing, and a label stays pending.
  operand *first = read({st.flags | DPS_OPTIONAL, N});
  if (!first && LEX_eol()) return;
  operand *tail = nullptr;
  if (first) IR_append_oprnd(ir, 0, &tail, first);
  else error(curline, "E0005", "Operand missing");
  DP_comma();
  // Each read moves past the comma it starts at, so the loop always advances.
  while (curtk && curtk->kind != TK_EOL) {
    IR_append_oprnd(ir, 0, &tail, read(st));
    DP_comma();
  }
}
template void DP_icons<8>(instruct *);
template void DP_icons<16>(instruct *);
template void DP_icons<32>(instruct *);

void DP_compiler_opts(instruct *) {
  // The line holds another tool's options: none of it is tokenised.
  LEX_reset();
}

void DP_template(instruct *ir) {
  IR_add_oprnd(ir, 0, DIR_get_oprnd({DPS_ABSINT, 64}));
  IR_add_oprnd(ir, 1, DIR_get_oprnd({DPS_STRING, 64}));
  skip_to_expected_eol(ir->line);
}

void GD_template(instruct *ir) {
  const operand *kind = ir->oprnds[0];
  const operand *text = ir->oprnds[1];
  if (!kind || !text || !text->value.v_str) return;
  uint32_t value = 0;
  XI_xtou(kind->value.v_val.b, &value);
  if (value == 33) return;
  const char *s = text->value.v_str;
  const size_t len = strlen(s);
  SCN_push();
  SCN_queue(SCN_KIND_NOALLOC, ".template");
  if (pass1) {
    SCN_space((len + 2) * 8);
  } else {
    SCN_insert_byte(value & 0xFF, 0);
    for (size_t i = 0; i <= len; ++i) SCN_insert_byte(static_cast<unsigned char>(s[i]), 0);
  }
  SCN_pop();
}

void GD_end(instruct *ir) {
  SCN_align(8, 0);
  LBL_flushbuf(ir->line);
  endcard = 1;
  // Leaving from inside macro expansions: the outermost one interrupted the source.
  if (MAC_lvl >= 0) ASSY_SRC = MAC_stack[0].file;
}
