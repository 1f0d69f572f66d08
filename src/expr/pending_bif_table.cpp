// Interim table of built-in functions: empty, so a $$ name is an ordinary
// identifier. The built-in functions step fills it.
#include "expr/bif_table.h"

extern const bifcn_oprec built_in_fcns[] = {{nullptr, nullptr, 0}};
