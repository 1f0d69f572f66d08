// Interim instruction parser; the parser step replaces it.
#include <cstdio>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "source/lexer.h"
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

