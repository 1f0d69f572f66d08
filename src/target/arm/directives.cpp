// The state directives: .state16, .thumb, .state32, .arm, .thumbfunc, .armfunc.
#include "target/arm/trg_directives.h"

#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/records.h"
#include "expr/symbols.h"
#include "target/arm/arch.h"
#include "target/arm/opcodes.h"
#include "target/arm/state.h"
#include "target/arm/trg.h"

namespace {

// Labels of the line take the aligned address, the listing shows it, and a
// new block of local labels starts.
void finish_state_change(instruct *ir) {
  LBL_define();
  DIR_list_location(ir, SCN_address());
  LOCLBL_block_start();
}

void enter_thumb(instruct *ir, uint8_t ual) {
  ual_mode = ual;
  LOCLBL_flush();
  // The code before the directive is ARM code: its nop pads the gap.
  SCN_align(16, ARM_FILL);
  const uint32_t before = cur_state;
  cur_state = arm_arch_types.is_t2_capable() && ual_mode ? 2 : 1;
  if (pass2 && before != 1) signal_state_change = 1;
  finish_state_change(ir);
}

// COFF linkers learn a routine's state from a marker symbol; ELF needs none.
void mark_functions(instruct *ir, const char *state_name) {
  if (!pass2 || object_format() != 1) return;
  for (const operand *op = ir->oprnds[0]; op; op = op->next) {
    const char *name = DIR_opnd_text(op);
    const symbol_record *sym = name ? SYM_query(name) : nullptr;
    if (!sym || !SYM_is_defined_here(sym) || !sym->sym_section)
      warn(ir->line, "W0000", "%sfunc: Routine %s not defined in this file\n", state_name, name ? name : "");
  }
}

}  // namespace

void TD_thumb_state(instruct *ir) { enter_thumb(ir, 0); }

void TD_t_ual_state(instruct *ir) { enter_thumb(ir, 1); }

void TD_arm_state(instruct *ir) {
  error_if_cortex_m(ir->line);
  // ARM code is always read in unified syntax; the old suffix order still reads.
  ual_mode = 1;
  LOCLBL_flush();
  SCN_align(32, THUMB_FILL);
  const uint32_t before = cur_state;
  cur_state = 0;
  if (pass2 && before != 0) signal_state_change = 1;
  finish_state_change(ir);
}

void TD_thumb_func(instruct *ir) { mark_functions(ir, "thumb"); }

void TD_arm_func(instruct *ir) {
  error_if_cortex_m(ir->line);
  mark_functions(ir, "arm");
}
