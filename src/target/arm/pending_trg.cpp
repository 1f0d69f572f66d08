// Interim target hooks. Each says which step makes it real; where the target
// is needed for a correct result the stand-in reports instead of guessing.
#include <cstdio>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "support/fhm.h"
#include "target/arm/trg.h"

// ---- Target state and tables (instruction tables and target state step) -------

[[gnu::weak]] uint32_t instlen = 0;
[[gnu::weak]] uint32_t cur_state = 0;
[[gnu::weak]] extern const sym_init trg_keywords[] = {{nullptr, 0, 0}};
[[gnu::weak]] extern const sym_init trg_ucpredefs[] = {{nullptr, 0, 0}};
[[gnu::weak]] extern const sym_init trg_lcpredefs[] = {{nullptr, 0, 0}};

[[gnu::weak]] void TRG_version_check() {}
// No architecture is known until then; the option only records its text.
[[gnu::weak]] int TRG_get_version(const char *) { return 0; }
[[gnu::weak]] void TRG_verify_options() {}
[[gnu::weak]] void TRG_initialize() {}
[[gnu::weak]] void TRG_initialize_pass1() {}
[[gnu::weak]] void TRG_initialize_pass2() {}
// Without them a source that tests the target's symbols gets "undefined symbol".
[[gnu::weak]] void TRG_version_predefs() {}
[[gnu::weak]] void TRG_init_regsyms() {}
[[gnu::weak]] void TRG_reset() {}

// ---- Statements (instruction parser and encoder steps) ----------------------------

[[gnu::weak]] instruct *TRG_parse() {
  error(curtk ? curtk->line : curline, "E0002", "Illegal mnemonic specified");
  DIR_skip_to_eol();
  return nullptr;
}

// TRG_parse above makes no statement, so this is not reached.
[[gnu::weak]] void TRG_encode(instruct *ir) {
  error(ir ? ir->line : curline, "E0002", "Illegal mnemonic specified");
}
[[gnu::weak]] uint32_t TRG_get_instlen(instruct *) { return 0; }

// ---- Sections and mapping symbols (object glue, mapping symbols steps) --------------

[[gnu::weak]] void TRG_process_sect(const char *) {}
[[gnu::weak]] void TRG_signal_section_change() {}
[[gnu::weak]] void TRG_add_mapping_sym(int) {}
[[gnu::weak]] void TRG_dump_mapping_syms() {}
[[gnu::weak]] void TRG_gen_build_attributes() {}
[[gnu::weak]] void TRG_set_fhdr() {}
[[gnu::weak]] void TRG_finalize_sections() {}
[[gnu::weak]] void TRG_finalize_symbols() {}
[[gnu::weak]] void TRG_end_process() {}

[[gnu::weak]] uint32_t TRG_usect_align(unsigned long, instruct *ir, operand *align, operand *extra) {
  if (align || extra)
    error(ir ? ir->line : curline, "E0002", "Alignment operands of .bss and .usect are not supported yet");
  return curpc;
}

// ---- Relocations (object glue and relocations steps) ---------------------------------

[[gnu::weak]] void TRG_reloc_data(instruct *ir, operand *, unsigned int) {
  error(ir ? ir->line : curline, "E0004", "Relocatable data is not supported yet");
}
[[gnu::weak]] int TRG_bif_rtype(const char *) { return 0; }
[[gnu::weak]] uint32_t TRG_reloc_disp(value_record *, const OFE::OF_RELOC_TYPE *) { return 0; }
[[gnu::weak]] void TRG_reloc_preprocess(value_record *, unsigned int, const OFE::OF_RELOC_TYPE **, short *) {}
[[gnu::weak]] bool TRG_reloc_requires_sym_rel(value_record *value) {
  return value && value->v_type == VT_LABEL;
}
[[gnu::weak]] bool TRG_reloc_addend_is_symrel_offset(const OFE::OF_RELOC_TYPE *) { return true; }
[[gnu::weak]] bool TRG_requires_scaling(const OFE::OF_RELOC_TYPE *) { return true; }

// ---- Values ------------------------------------------------------------------------------

[[gnu::weak]] node *TRG_simplify_expr(node *n) { return n; }
[[gnu::weak]] void TRG_emit_flt(instruct *ir, trg_fval *, short) {
  error(ir ? ir->line : curline, "E0004", "Floating-point data is not supported yet");
}
[[gnu::weak]] void TRG_lst_flt_value(linebuf *line, simul_fval *) { LST_object(line, 0, nullptr, 0, 0); }
[[gnu::weak]] bool TRG_dp_sumem(instruct *) { return false; }
[[gnu::weak]] bool TRG_su_mem(instruct *, unsigned int *, unsigned int *) { return false; }

// ---- Trial encodings (Thumb-2 step); no trial exists before it -----------------------------

[[gnu::weak]] bool TRG_IOR_write() { return true; }
[[gnu::weak]] bool TRG_warn() {
  if (output_error) return true;
  ++errors_or_warn;
  return false;
}
[[gnu::weak]] bool TRG_error() {
  if (output_error) return true;
  ++errors_or_warn;
  return false;
}

// ---- Listing and dumps -----------------------------------------------------------------------

[[gnu::weak]] void TRG_delete_objflds() {
  if (ASSY_LST) myfputs("                    ", ASSY_LST);
}
[[gnu::weak]] const char *TRG_tkname(int) { return "INVALID TOKEN TYPE "; }
[[gnu::weak]] const char *TRG_opname(int) { return "                     "; }
[[gnu::weak]] const char *TRG_irname(int) { return "INVALID INSTRUCTION TYPE "; }
[[gnu::weak]] const char *TRG_regname(int) { return ""; }
[[gnu::weak]] void TRG_dump_components(operand *op) {
  if (op && op->kind >= OP_CPREG && op->kind <= OP_INDPOSTS) printf("Write TRG_dump_components()!");
}

// ---- ABI ---------------------------------------------------------------------------------------

[[gnu::weak]] bool arm_eabi() { return opt_on(OPT_ABI) && global_opts->getnumarg(OPT_ABI, 0) == 1; }
[[gnu::weak]] bool arm_zqabi() { return false; }
[[gnu::weak]] bool arm_zq_arm9_abi() { return false; }

// TRG_initialize above leaves SCN_trg_align unset, so the section manager fills
// gaps with its own pattern and this is not reached.
[[gnu::weak]] void ARM_trg_align(unsigned long) {}
