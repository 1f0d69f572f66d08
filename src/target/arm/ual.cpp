// Name translations of the opcode lookup: unified names to the older rows,
// and the parallel-arithmetic prefixes.
#include <cstring>
#include <string>
#include <string_view>

#include "driver/diag.h"
#include "source/lexer.h"
#include "target/arm/arch.h"
#include "target/arm/opcodes.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

stmt_suffixes cur_suffixes{};
const ual_name_translation *cur_ual_translation = nullptr;
char cur_mext_prefix[3] = {};

namespace {

char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// `text` begins with `prefix` (upper case), without regard to case.
bool starts_with(std::string_view text, const char *prefix) {
  const size_t n = std::strlen(prefix);
  if (text.size() < n) return false;
  for (size_t i = 0; i < n; ++i)
    if (upper(text[i]) != prefix[i]) return false;
  return true;
}

// Where `word` (upper case) first occurs in `text`, without regard to case.
size_t find_word(std::string_view text, const char *word) {
  const size_t n = std::strlen(word);
  for (size_t i = 0; i + n <= text.size(); ++i)
    if (starts_with(text.substr(i), word)) return i;
  return std::string_view::npos;
}

}  // namespace

std::string ual_translate_name(const std::string &name) {
  cur_ual_translation = nullptr;
  const uint32_t state = arm_arch() == ARCH_V6M0 ? 1 : cur_state;
  // Longest unified prefix of at most 20 characters; the table is short, so a
  // scan costs less than building the prefixes.
  const ual_name_translation *best = nullptr;
  size_t best_length = 0;
  for (const ual_name_translation *row = ual_to_old_mnemonics; row->ual_name; ++row) {
    const size_t n = std::strlen(row->ual_name);
    if (row->state != state || n > 20 || n <= best_length || !starts_with(name, row->ual_name)) continue;
    best = row;
    best_length = n;
  }
  if (!best) return name;
  cur_ual_translation = best;
  if (!best->old_name) {
    warn(curline, "W0005", "Non-UAL opcode used in UAL mode");
    return name;
  }
  return best->old_name + name.substr(best_length);
}

bool has_mext_prefix(const char *name, int *length_out) {
  if (length_out) *length_out = 0;
  cur_mext_prefix[0] = '\0';
  if (!name || !arm_arch_types.is_v6_or_higher()) return false;
  const std::string_view text(name);
  for (const char *excluded : {"ADD16TO32", "ADD8TO16", "ADD8TO32"})
    if (find_word(text, excluded) != std::string_view::npos) return false;
  size_t at = std::string_view::npos;
  for (const char *word : {"ADD16", "ADDSUBX", "SUBADDX", "SUB16", "ADD8", "SUB8", "ASX", "SAX"}) {
    if (!ual_mode && (std::strcmp(word, "ASX") == 0 || std::strcmp(word, "SAX") == 0)) continue;
    const size_t found = find_word(text, word);
    if (found < at) at = found;
  }
  if (at == std::string_view::npos || at == 0 || at > 2) return false;
  const char first = upper(text[0]);
  const char second = at == 2 ? upper(text[1]) : '\0';
  const bool known = at == 1 ? (first == 'S' || first == 'Q' || first == 'U')
                             : ((first == 'S' && second == 'H') || (first == 'U' && (second == 'Q' || second == 'H')));
  if (!known) return false;
  cur_mext_prefix[0] = first;
  cur_mext_prefix[1] = second;
  cur_mext_prefix[2] = '\0';
  if (length_out) *length_out = static_cast<int>(at);
  return true;
}
