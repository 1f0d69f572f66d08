// Interim macro engine; the conditional assembly and macros step makes it real.
#include "source/macro.h"

#include "driver/diag.h"
#include "driver/pending.h"
#include "source/lexer.h"

int16_t MAC_lvl = -1;
mac_frame MAC_stack[MAC_MAX_LEVELS];

void DP_macro(instruct *ir) { DIR_pass_over_operands(ir); }
void MAC_define(instruct *ir) { DIR_not_supported(ir); }
void MAC_endm(instruct *ir) { DIR_not_supported(ir); }
void MAC_exit(instruct *ir) { DIR_not_supported(ir); }

// No macro can be defined, so no call can be reached; refuse one all the same.
void MAC_invoke(ophashtbl *) {
  error(curline, "E0002", "Illegal mnemonic specified");
  LEX_skip_to_eol();
}

// Without macros the temporary macro file has nothing to hold.
void MAC_open() {}
void MAC_close() {}
void MAC_clear() {}
