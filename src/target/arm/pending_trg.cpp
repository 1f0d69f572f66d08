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

// ---- Statements (instruction parser and encoder steps) ----------------------------

// Set while the instruction parser reads an operand that the statement
// modifies; the cross-reference marks such uses. No instruction is read yet.
uint8_t modified_op = 0;

// A found mnemonic is refused at its line until the instruction parser lands:
// never dropped silently.
instruct *TRG_parse() {
  linebuf *line = curtk ? curtk->line : curline;
  if (curtk && curtk->kind == IR_MNEMONIC)
    error(line, "E0002", "Instruction parsing is not supported yet");
  else
    error(line, "E0002", "Illegal mnemonic specified");
  DIR_skip_to_eol();
  return nullptr;
}

// TRG_parse above makes no statement, so this is not reached.
void TRG_encode(instruct *ir) {
  error(ir ? ir->line : curline, "E0002", "Instruction parsing is not supported yet");
}
uint32_t TRG_get_instlen(instruct *) { return 0; }

// ---- Mapping symbols and build attributes (mapping symbols step) --------------------
// Without instructions every section holds data only; a reader takes such a
// section as data without mapping symbols, and no attributes are claimed.

void TRG_signal_section_change() {}
void TRG_add_mapping_sym(int) {}
void TRG_dump_mapping_syms() {}
void TRG_gen_build_attributes() {}
