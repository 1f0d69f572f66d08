// Floating data: .float in IEEE single, .double and .ldouble in IEEE double.
#include "directives/data_internal.h"
#include "directives/directives.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/fval.h"
#include "expr/symbols.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

enum : int { MODE_SINGLE = 0, MODE_DOUBLE = 1 };

// The element as a simulated float; anything but a number is 0.0 after a message.
simul_fval element_value(instruct *ir, const operand *op) {
  simul_fval f = pos_zero;
  const value_record &v = op->value;
  if (op->kind == OP_ICON) {
    const uint32_t u = v.v_val.to_u32();
    if (v.v_flags & VF_SIGNED)
      f_itof(static_cast<int32_t>(u), &f);
    else
      f_utof(u, &f);
  } else if (op->kind == OP_FCON && v.v_fval) {
    f = *v.v_fval;
  } else {
    error(ir->line, "E0201", "Illegal floating-point expression");
  }
  return f;
}

void emit(instruct *ir, const operand *op, int mode) {
  const simul_fval f = element_value(ir, op);
  trg_fval out{};
  fp_error = 0;
  f_cvt_stot(&f, &out, mode);
  // An overflow or underflow still writes what the conversion gave.
  fp_error_report(ir->line);
  TRG_emit_flt(ir, &out, static_cast<short>(mode));
}

void run(instruct *ir, int mode) {
  operand *op = data_elements(ir);
  if (!op) return;
  const unsigned bits = mode == MODE_SINGLE ? 32 : 64;
  SCN_align(32, 0);
  LBL_define();
  for (bool first = true; op; op = op->next, first = false) {
    if (!first && mode == MODE_SINGLE) SCN_align(32, 0);
    if (pass1)
      SCN_space(bits);
    else
      emit(ir, op, mode);
  }
  data_debug_sym(ir);
}

}  // namespace

void DP_float(instruct *ir) {
  // Pass 1 counts the elements and doesn't look at their values.
  operand *(*read)(const dir_parse_state_t &) = pass1 ? DIR_get_counted_oprnd : DIR_get_oprnd;
  operand *tail = nullptr;
  while (curtk && curtk->kind != TK_EOL) {
    operand *op = read({DPS_EXPR | DPS_FLOAT, 64});
    if (!op) {
      DIR_skip_to_eol();
      return;
    }
    IR_append_oprnd(ir, 0, &tail, op);
    if (curtk && curtk->kind != TK_COMMA && curtk->kind != TK_EOL) {
      error(curtk->line ? curtk->line : ir->line, "E0000", "Commas must separate directive elements");
      DIR_skip_to_eol();
      return;
    }
  }
}

void GD_float(instruct *ir) { run(ir, MODE_SINGLE); }
void GD_double(instruct *ir) { run(ir, MODE_DOUBLE); }
void GD_ldouble(instruct *ir) { run(ir, MODE_DOUBLE); }
