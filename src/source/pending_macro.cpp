// Interim macro engine; the conditional assembly and macros step makes it real.
#include "source/macro.h"

#include "driver/diag.h"
#include "driver/pending.h"
#include "source/lexer.h"

[[gnu::weak]] int16_t MAC_lvl = -1;
[[gnu::weak]] mac_frame MAC_stack[MAC_MAX_LEVELS];

[[gnu::weak]] void DP_macro(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void MAC_define(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void MAC_endm(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void MAC_exit(instruct *ir) { DIR_not_supported(ir); }

// No macro can be defined, so no call can be reached; refuse one all the same.
[[gnu::weak]] void MAC_invoke(ophashtbl *) {
  error(curline, "E0002", "Illegal mnemonic specified");
  LEX_skip_to_eol();
}

// Without macros the temporary macro file has nothing to hold.
[[gnu::weak]] void MAC_open() {}
[[gnu::weak]] void MAC_close() {}
[[gnu::weak]] void MAC_clear() {}
