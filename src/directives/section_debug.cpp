// Source-level debug for hand-written code: each instruction's line.
#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "expr/symbols_internal.h"

namespace {
constexpr unsigned short DW_TAG_ZQ_asm_range = 16521;
bool warned_long_file = false;
}  // namespace

void SCN_asm_debug(instruct *ir) {
  if (!pass2 || !curseg || !SYM_option_item_is(OPT_HLL_SOURCE, "asm")) return;
  linebuf *line = ir ? ir->line : nullptr;
  if (opt_on(OPT_SYMDEBUG_COFF) && object_format() == 1) {
    if (line && line->line_number > 65535 && !warned_long_file) {
      warned_long_file = true;
      warn(line, "W9999", "Cannot debug assembly source files that contain > 65535 lines");
    }
    CSYM_asm_line(curseg, ir);
  } else if (opt_on(OPT_SYMDEBUG_DWARF) || opt_on(OPT_SYMDEBUG_SKELETAL)) {
    dw_asm_psn(line);
    if (!DBD_curr_asmfunc) dw_create_asm_func(ir, 1, DW_TAG_ZQ_asm_range);
  }
}
