// Interim bodies of what the section manager and the data directives call in
// later steps. Each goes when the real one lands: two definitions don't link.
#include "directives/section_pending.h"

#include "driver/diag.h"
#include "driver/records.h"
#include "source/lexer.h"

// Assembly-source debug makes these real. dw_init refuses the DWARF modes
// until then, so there is no debug data to add to.
DWE::DW_DIE *DBD_curr_asmfunc = nullptr;
void dw_asm_psn(linebuf *) {}
void dw_create_asm_func(instruct *, int, unsigned short) {}

// The COFF writer and COFF debug make these real. No ZQ-COFF object can be
// made until then, so these are not reached; if they were, say so.
void CSYM_asm_line(section_record *, instruct *ir) {
  error(ir ? ir->line : curline, "E9999", "COFF source debugging is not supported yet");
}
void CSYM_patch_asmfunc_syms() {}
void debug_sym(instruct *statement, int, int, int, int, const char *) {
  error(statement ? statement->line : curline, "E9999", "--cdebug_asm_data is not supported yet");
}
