// Interim built-in function call until the built-in functions land.
#include "driver/diag.h"
#include "expr/bif.h"
#include "source/lexer.h"
#include "source/ophash.h"

node *BIF_term() {
  const char *name = curtk->value.op ? curtk->value.op->name.c_str() : "$$";
  error(curline, "E0200", "Built-in function %s is not available", name);
  return nullptr;
}
