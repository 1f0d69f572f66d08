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
[[gnu::weak]] extern const sym_init trg_keywords[] = {{nullptr, 0, 0}};
[[gnu::weak]] extern const sym_init trg_ucpredefs[] = {{nullptr, 0, 0}};
[[gnu::weak]] extern const sym_init trg_lcpredefs[] = {{nullptr, 0, 0}};

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

// ---- Mapping symbols and build attributes (mapping symbols step) --------------------
// Without instructions every section holds data only; a reader takes such a
// section as data without mapping symbols, and no attributes are claimed.

[[gnu::weak]] void TRG_signal_section_change() {}
[[gnu::weak]] void TRG_add_mapping_sym(int) {}
[[gnu::weak]] void TRG_dump_mapping_syms() {}
[[gnu::weak]] void TRG_gen_build_attributes() {}
