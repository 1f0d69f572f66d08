// Interim handlers of the COFF debug directives; the COFF output step makes them real.

#include "debug/coff_debug.h"
#include "driver/pending.h"

[[gnu::weak]] void DP_file(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_block(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_endfunc(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_line(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_sym(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_dbgtag(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DBD_file(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void DBD1_func(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void DBD2_func(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void DBD_line(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void DBD_sym(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void DBD_tag(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void DBD_eos(instruct *ir) { DIR_not_supported(ir); }

[[gnu::weak]] uint16_t DBD_file_seen = 0;
[[gnu::weak]] uint16_t last_func_id = 0;
[[gnu::weak]] uint16_t curr_func_id = 0;
[[gnu::weak]] uint16_t curr_lex_level = 0;
