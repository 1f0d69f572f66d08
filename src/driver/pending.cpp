// Stand-ins for the handlers of directives whose subsystem has not been built.
#include "driver/pending.h"

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "source/lexer.h"

void DIR_not_supported(instruct *ir) {
  if (!pass2 || !ir) return;
  const char *name = ir->kind == IR_DIRECTIVE && ir->dir() ? ir->dir()->name : "?";
  error(ir->line, "E0002", "Directive %s is not supported yet", name);
}

void DIR_pass_over_operands(instruct *) { DIR_skip_to_eol(); }

void DIR_parse_not_supported(instruct *ir) {
  DIR_pass_over_operands(ir);
  DIR_not_supported(ir);
}
