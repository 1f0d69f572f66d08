// Interim handlers of the COFF debug directives; the COFF output step makes them real.

#include "debug/coff_debug.h"
#include "driver/pending.h"

void DP_file(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_block(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_endfunc(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_line(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_sym(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_dbgtag(instruct *ir) { DIR_pass_over_operands(ir); }
void DBD_file(instruct *ir) { DIR_not_supported(ir); }
void DBD1_func(instruct *ir) { DIR_not_supported(ir); }
void DBD2_func(instruct *ir) { DIR_not_supported(ir); }
void DBD_line(instruct *ir) { DIR_not_supported(ir); }
void DBD_sym(instruct *ir) { DIR_not_supported(ir); }
void DBD_tag(instruct *ir) { DIR_not_supported(ir); }
void DBD_eos(instruct *ir) { DIR_not_supported(ir); }

uint16_t DBD_file_seen = 0;
uint16_t last_func_id = 0;
uint16_t curr_func_id = 0;
uint16_t curr_lex_level = 0;
