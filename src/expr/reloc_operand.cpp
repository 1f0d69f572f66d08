// When a pc-relative operand must stay for the linker.
#include "directives/sections.h"
#include "driver/records.h"
#include "expr/reloc.h"
#include "expr/symbols.h"

bool OPND_requires_reloc(const operand *op) {
  if (!op || !is_relocatable(op->value)) return false;
  if (op->value.v_section != curseg) return true;
  const symbol_record *sym = op->value.v_symbol;
  if (!sym || !SYM_is_global(sym)) return false;
  return SYM_elf_visibility(sym) == 0 || (sym->sym_flags & SYMF_WEAK) || SCN_iscomdat(curseg);
}
