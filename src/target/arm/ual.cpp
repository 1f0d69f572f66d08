// Name translations of the opcode lookup: unified names to the older rows,
// and the parallel-arithmetic prefixes.
#include <algorithm>
#include <cstring>
#include <map>
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

// Unified names are at most this long.
constexpr size_t MAX_UAL_PREFIX = 20;

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

}  // namespace

std::multimap<std::string_view, const ual_name_translation *> ual_name_table;

void UAL_init() {
  if (!ual_name_table.empty()) return;
  for (const ual_name_translation *row = ual_to_old_mnemonics; row->ual_name; ++row)
    ual_name_table.emplace(row->ual_name, row);
}

bool UAL_translate(std::string_view name, std::string *out) {
  cur_ual_translation = nullptr;
  out->assign(name);
  if (name.empty() || !(ual_first_letters() & letter_bit(LEX_upper(name[0])))) return false;
  if (ual_name_table.empty()) UAL_init();   // a tool that skipped the start-up
  const uint32_t state = arm_arch() == ARCH_V6M0 ? 1 : cur_state;
  // The longest prefix of at most 20 characters that names a row of the state.
  char upper[MAX_UAL_PREFIX];
  const size_t longest = std::min(name.size(), sizeof upper);
  for (size_t i = 0; i < longest; ++i) upper[i] = LEX_upper(name[i]);
  const ual_name_translation *best = nullptr;
  size_t best_length = 0;
  for (size_t n = longest; n >= 1 && !best; --n) {
    auto [first, last] = ual_name_table.equal_range(std::string_view(upper, n));
    for (auto it = first; it != last; ++it) {
      if (it->second->state != state) continue;
      best = it->second;
      best_length = n;
      break;
    }
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
