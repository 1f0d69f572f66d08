// Bit fields: .field keeps a field within one 32-bit word, .bits packs on
// across word boundaries.
#include "directives/data_internal.h"
#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "source/lexer.h"

namespace {

constexpr unsigned DEFAULT_WIDTH = 32;
constexpr unsigned MAX_WIDTH = 64;

// Is there an operand behind the directive name? curtk stays on the name.
bool operand_follows() {
  token *name = curtk;
  get_token();
  const bool any = curtk && curtk->kind != TK_EOL;
  unget_token(&curtk);
  curtk = name;
  return any;
}

void field(instruct *ir, bool keep_in_word) {
  operand *op = ir->oprnds[0];
  if (!op) return;
  if (keep_in_word) SCN_align_flag(32);

  unsigned width = DEFAULT_WIDTH;
  if (const operand *w = ir->oprnds[1]) {
    const INT128 &asked = w->value.v_val;
    // Both passes leave the field out, so the layout stays the same.
    if (asked < 0) {
      error(ir->line, "E0004", "%s width must not be negative; found %s", DIR_id(ir) == DIR_BITS ? ".bits" : ".field",
            DIR_int_text(asked).c_str());
      return;
    }
    width = asked > xi_from_uint(MAX_WIDTH) ? MAX_WIDTH + 1 : asked.to_u32();
    if (width > MAX_WIDTH) {
      warn(ir->line, "W0001", "Field width truncated to %d", static_cast<int>(MAX_WIDTH));
      width = MAX_WIDTH;
    }
  }
  INT128 &value = op->value.v_val;
  if (value.size() > static_cast<int>(width)) {
    value &= (xi_from_int(1) << static_cast<int>(width)) - xi_from_int(1);
    warn(ir->line, "W0001", "Value truncated to %s", value.to_string().c_str());
  }
  if (keep_in_word) SCN_align_field(width);
  LBL_define();
  if (pass1) {
    SCN_space(width);
    return;
  }
  data_reloc(ir, op, width);
  SCN_insert_field(width, op->value.v_val, ir, 0, false);
}

}  // namespace

void DP_field(instruct *ir) {
  if (!operand_follows()) {
    error(ir->line, "E0005", "Missing field value operand");
    DIR_skip_to_eol();
    return;
  }
  operand *value = DIR_get_oprnd({DPS_EXPR, 64});
  if (!value) {
    DIR_skip_to_eol();
    return;
  }
  if (curtk && curtk->kind == TK_COMMA) {
    operand *width = DIR_get_oprnd({DPS_ABSINT, 64});
    if (!width) {
      // Without its width the field's size is unknown: it is left out.
      IR_free_oprnd(value);
      DIR_skip_to_eol();
      return;
    }
    IR_add_oprnd(ir, 1, width);
  }
  IR_add_oprnd(ir, 0, value);
  skip_to_expected_eol(ir->line);
}

void GD_field(instruct *ir) { field(ir, true); }
void GD_bits(instruct *ir) { field(ir, false); }
