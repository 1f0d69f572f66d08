// Interim instruction tables: an empty mnemonic table, so every word that is
// no directive is "not a mnemonic". The instruction tables step makes them real.
#include "driver/diag.h"
#include "source/lexer.h"
#include "target/arm/opcodes.h"

extern const mnemonic_row trg_mnemonics[] = {{nullptr, {}}};

// No architecture is selected before the target state lands.
bool arch_is_v6_or_higher() { return false; }
bool arch_is_v6m0() { return false; }

// With no mnemonic rows a translated name finds nothing either.
std::string ual_translate_name(const std::string &name) { return name; }
bool has_mext_prefix(const char *, int *length_out) {
  if (length_out) *length_out = 0;
  return false;
}
// Reached only through a mnemonic row, and there are none yet.
void parse_simd_suffix(const mnemonic_row *row) {
  error_internal(1, curline, "SIMD suffix of %s without the instruction tables", row ? row->name : "?");
}
