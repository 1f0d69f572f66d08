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

uint32_t instlen = 0;
extern const sym_init trg_keywords[] = {{nullptr, 0, 0}};
extern const sym_init trg_ucpredefs[] = {{nullptr, 0, 0}};
extern const sym_init trg_lcpredefs[] = {{nullptr, 0, 0}};

// No architecture is known until then; the option only records its text.
int TRG_get_version(const char *) { return 0; }
void TRG_verify_options() {}
void TRG_initialize() {}
void TRG_initialize_pass1() {}
void TRG_initialize_pass2() {}
// Without them a source that tests the target's symbols gets "undefined symbol".
void TRG_version_predefs() {}
void TRG_init_regsyms() {}
void TRG_reset() {}

// ---- Statements (instruction parser and encoder steps) ----------------------------

// Set while the instruction parser reads an operand that the statement
// modifies; the cross-reference marks such uses. No instruction is read yet.
uint8_t modified_op = 0;

instruct *TRG_parse() {
  error(curtk ? curtk->line : curline, "E0002", "Illegal mnemonic specified");
  DIR_skip_to_eol();
  return nullptr;
}

// TRG_parse above makes no statement, so this is not reached.
void TRG_encode(instruct *ir) {
  error(ir ? ir->line : curline, "E0002", "Illegal mnemonic specified");
}
uint32_t TRG_get_instlen(instruct *) { return 0; }

// ---- Mapping symbols and build attributes (mapping symbols step) --------------------
// Without instructions every section holds data only; a reader takes such a
// section as data without mapping symbols, and no attributes are claimed.

void TRG_signal_section_change() {}
void TRG_add_mapping_sym(int) {}
void TRG_dump_mapping_syms() {}
void TRG_gen_build_attributes() {}
