// Name translations of the opcode lookup: unified names to the older rows,
// and the parallel-arithmetic prefixes.
#include <cstring>
#include <string>
#include <string_view>

#include "driver/diag.h"
#include "source/lexer.h"
#include "target/arm/arch.h"
#include "target/arm/opcodes.h"
#include "target/arm/parse.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

stmt_suffixes cur_suffixes{};
const ual_name_translation *cur_ual_translation = nullptr;
char cur_mext_prefix[3] = {};

namespace {

constexpr uint32_t letter_bit(char c) { return c >= 'A' && c <= 'Z' ? 1u << (c - 'A') : 0; }

// The first letters of the unified names: most words at the head of a
// statement are no unified name at all and are passed over at once.
uint32_t ual_first_letters() {
  static const uint32_t mask = [] {
    uint32_t m = 0;
    for (const ual_name_translation *row = ual_to_old_mnemonics; row->ual_name; ++row)
      m |= letter_bit(row->ual_name[0]);
    return m;
  }();
  return mask;
}

// `text` begins with `prefix` (upper case), without regard to case.
bool starts_with(std::string_view text, const char *prefix) {
  const size_t n = std::strlen(prefix);
  if (text.size() < n) return false;
  for (size_t i = 0; i < n; ++i)
    if (LEX_upper(text[i]) != prefix[i]) return false;
  return true;
}

}  // namespace

bool UAL_translate(std::string_view name, std::string *out) {
  cur_ual_translation = nullptr;
  if (name.empty() || !(ual_first_letters() & letter_bit(LEX_upper(name[0])))) return false;
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
  if (!best) return false;
  cur_ual_translation = best;
  if (!best->old_name) {
    warn(curline, "W0005", "Non-UAL opcode used in UAL mode");
    return false;
  }
  out->assign(best->old_name);
  out->append(name.substr(best_length));
  return true;
}

std::string ual_translate_name(const std::string &name) {
  std::string out;
  return UAL_translate(name, &out) ? out : name;
}

bool has_mext_prefix(const char *name, int *length_out) {
  if (length_out) *length_out = 0;
  cur_mext_prefix[0] = '\0';
  size_t at = 0;
  if (!name || !mext_paddsub_instruction(name, &at) || at == 0 || at > 2) return false;
  const char first = LEX_upper(name[0]);
  const char second = at == 2 ? LEX_upper(name[1]) : '\0';
  const bool known = at == 1 ? (first == 'S' || first == 'Q' || first == 'U')
                             : ((first == 'S' && second == 'H') || (first == 'U' && (second == 'Q' || second == 'H')));
  if (!known) return false;
  cur_mext_prefix[0] = first;
  cur_mext_prefix[1] = second;
  cur_mext_prefix[2] = '\0';
  if (length_out) *length_out = static_cast<int>(at);
  return true;
}
