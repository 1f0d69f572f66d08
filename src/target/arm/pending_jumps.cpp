// Interim jump expansion; the jump expansion step makes it real. Until then no
// record is made: every label-dependent length stays at its first estimate.
#include "target/arm/jumps.h"

#include "driver/diag.h"
#include "expr/symbols.h"
#include "expr/symbols_internal.h"

// No section has a jump list yet, so the symbol table never asks.
void SYM_record_label_jump(symbol_record *sym) {
  error_internal(1, nullptr, "jump list without jump expansion for %s", sym->sym_name.c_str());
}

void VLI_addjump(JUMP_LIST_TYPE, uint32_t, value_record *, uint32_t, value_record *, symbol_record *, uint16_t,
                 int32_t) {}
void VLI_addjump_cond(JUMP_LIST_TYPE, uint32_t, value_record *, uint32_t, value_record *, symbol_record *,
                      uint16_t, uint8_t, int32_t) {}
bool VLI_dst_is_simple_label(const value_record *) { return false; }
bool chained_branch(int, int *) { return false; }
void reintroduce_branch_chains() {}
void expand_jumps() {}
