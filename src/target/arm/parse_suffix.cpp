// The letters behind a mnemonic's row name: condition, modifiers, addressing
// mode, in the old order (condition first) and the unified one (condition last).
#include <cstring>
#include <string_view>

#include "driver/diag.h"
#include "source/lexer.h"
#include "target/arm/arch.h"
#include "target/arm/parse.h"

namespace {

struct cond_name {
  char text[3];
  uint8_t code;
};
constexpr cond_name cond_names[] = {
    {"EQ", COND_EQ}, {"NE", COND_NE}, {"CS", COND_CS}, {"HS", COND_CS}, {"CC", COND_CC}, {"LO", COND_CC},
    {"MI", COND_MI}, {"PL", COND_PL}, {"VS", COND_VS}, {"VC", COND_VC}, {"HI", COND_HI}, {"LS", COND_LS},
    {"GE", COND_GE}, {"LT", COND_LT}, {"GT", COND_GT}, {"LE", COND_LE}, {"AL", COND_AL}, {"NV", COND_NV},
};

struct mode_name {
  char text[3];
  uint32_t mode;
};
constexpr mode_name mode_names[] = {
    {"FD", AM_FD}, {"FA", AM_FA}, {"ED", AM_ED}, {"EA", AM_EA},
    {"IA", AM_IA}, {"IB", AM_IB}, {"DA", AM_DA}, {"DB", AM_DB},
};

// Where `word` (upper case) first occurs in `text`, without regard to case.
size_t find_word(std::string_view text, std::string_view word) {
  for (size_t i = 0; i + word.size() <= text.size(); ++i) {
    size_t k = 0;
    while (k < word.size() && LEX_upper(text[i + k]) == word[k]) ++k;
    if (k == word.size()) return i;
  }
  return std::string_view::npos;
}

bool equal_nocase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (LEX_upper(a[i]) != LEX_upper(b[i])) return false;
  return true;
}

// Branch classes take the link letter and the exchange letter.
bool is_branch_class(unsigned id) { return id == 1 || id == 105 || id == 132; }

// The decoder's cursor over the upper-cased suffix.
struct suffix_reader {
  std::string_view s;
  size_t pos = 0;

  char at(size_t i) const { return pos + i < s.size() ? s[pos + i] : '\0'; }
  bool take(std::string_view word) {
    if (s.substr(pos, word.size()) != word) return false;
    pos += word.size();
    return true;
  }
  bool take_condition(instruct *ir) {
    if (s.size() - pos < 2) return false;
    uint8_t cond = 0;
    if (!PRS_condition(s.substr(pos, 2), &cond)) return false;
    ir->ia_cond = cond;
    ir->ia_flags |= IF_COND;
    pos += 2;
    return true;
  }
};

// IT: each letter is one group of the flag word, the first letter highest;
// the letters open the block in cur_it_string.
void it_suffix(instruct *ir, std::string_view s) {
  size_t n = 0;
  cur_it_string[n++] = 'I';
  cur_it_string[n++] = 'T';
  bool bad = false;
  for (char c : s) {
    if (n + 1 < IT_STRING_SIZE) cur_it_string[n++] = c;
    if (c == 'T' || c == 'E') ir->ia_flags = (ir->ia_flags << 4) | (c == 'T' ? 1u : 2u);
    else bad = true;
  }
  cur_it_string[n] = '\0';
  if (bad) error(ir->line, "E0003", "Invalid modifier in If-Then (IT) instruction");
}

// The letters of step 5: each at most once, the first that doesn't fit ends them.
void modifier_letters(instruct *ir, suffix_reader &r, bool typed) {
  uint32_t seen = 0;  // bit per letter A..Z
  bool second_l = false;
  while (r.pos < r.s.size()) {
    const char c = r.at(0);
    const char next = r.at(1);
    if (c < 'A' || c > 'Z') return;
    const uint32_t bit = 1u << (c - 'A');
    if ((seen & bit) && !(c == 'L' && typed && !second_l)) return;
    uint32_t flag = 0;
    switch (c) {
      case 'B': flag = IF_B; break;
      case 'D': if (next != 'A' && next != 'B') flag = IF_D; break;
      case 'H': if (next != 'I' && next != 'S') flag = IF_H; break;
      case 'T': flag = IF_T; break;
      case 'L':
        if (next == 'S' || next == 'T' || next == 'E' || next == 'O') break;
        if (typed && !(seen & bit)) {
          flag = IF_VL;
        } else {
          flag = IF_L;
          second_l = typed;
        }
        break;
      case 'N': if (typed) flag = IF_VN; break;
      case 'W': if (typed) flag = IF_VW; break;
      case 'S':
        // SH or SB is a signed load, unless HI or HS follows the S.
        if (next != 'H' && next != 'B') flag = IF_S;
        else if (next == 'H' && (r.at(2) == 'I' || r.at(2) == 'S')) flag = IF_S;
        else flag = IF_SX;
        break;
      default: break;
    }
    if (!flag) return;
    ir->ia_flags |= flag;
    seen |= bit;
    ++r.pos;
  }
}

}  // namespace

bool PRS_has_type_suffixes(const inst_class *cls) {
  if (!cls) return false;
  const unsigned id = cls->ic_id;
  return (id >= 201 && id <= 216) || (id >= 218 && id <= 222) || id == 49 || id == 50;
}

bool PRS_condition(std::string_view text, uint8_t *cond) {
  if (text.size() < 2) return false;
  const char a = LEX_upper(text[0]);
  const char b = LEX_upper(text[1]);
  for (const cond_name &c : cond_names) {
    if (c.text[0] == a && c.text[1] == b) {
      *cond = c.code;
      return true;
    }
  }
  return false;
}

bool mext_paddsub_instruction(std::string_view name, size_t *prefix_length) {
  if (prefix_length) *prefix_length = 0;
  if (!arm_arch_types.is_v6_or_higher()) return false;
  for (std::string_view excluded : {"ADD16TO32", "ADD8TO16", "ADD8TO32"})
    if (find_word(name, excluded) != std::string_view::npos) return false;
  size_t at = std::string_view::npos;
  for (std::string_view word : {"ADD16", "ADDSUBX", "SUBADDX", "SUB16", "ADD8", "SUB8", "ASX", "SAX"}) {
    if (!ual_mode && (word == "ASX" || word == "SAX")) continue;
    const size_t found = find_word(name, word);
    if (found < at) at = found;
  }
  if (at == std::string_view::npos) return false;
  if (prefix_length) *prefix_length = at;
  return true;
}

bool mext_szea_add_instruction(std::string_view name) {
  if (arm_arch() != ARCH_V6) return false;
  for (std::string_view row : {"SADD8TO16", "SADD8TO32", "SADD16TO32", "UADD8TO16", "UADD8TO32", "UADD16TO32"})
    if (equal_nocase(name, row)) return true;
  return false;
}

void PRS_suffix(instruct *ir, std::string_view suffix) {
  const inst_class *cls = ia_class(ir);
  if (cls->ic_id == 136) {
    it_suffix(ir, suffix);
    return;
  }
  suffix_reader r{suffix};
  const unsigned id = cls->ic_id;
  const bool v5e = arm_arch_types.is_v5e_or_higher();

  if (is_branch_class(id) && r.at(0) == 'L') {
    // BLE, BLS, BLT, BLO are conditions; BL, BLX and BL<cond> link.
    if (suffix.size() == 1 || suffix.size() > 2 || (v5e && suffix == "LX")) {
      ir->ia_flags |= IF_LINK;
      r.pos = 1;
    }
  }
  if (is_branch_class(id) && v5e && (ir->ia_flags & IF_LINK) && r.at(0) == 'X') {
    ir->ia_flags |= IF_X;
    ++r.pos;
  }
  if (arm_arch() == ARCH_V8M33) {
    if ((id == 105 || id == 132) && r.take("NS")) ir->ia_flags |= IF_NS;
    if (id == 149) {
      if (r.at(0) == 'A' && r.at(1) != 'L') {
        ir->ia_flags |= IF_TT_A;
        ++r.pos;
      }
      if (r.at(0) == 'T') {
        ir->ia_flags |= IF_TT_T;
        ++r.pos;
      }
    }
  }
  if (id == 7 && r.at(0) == 'D' && suffix.size() != 2) {
    ir->ia_flags |= IF_D;
    ++r.pos;
  }
  bool have_cond = r.take_condition(ir);
  modifier_letters(ir, r, PRS_has_type_suffixes(cls));
  for (const mode_name &m : mode_names) {
    if (r.take(m.text)) {
      ir->ia_flags |= m.mode << 4;
      break;
    }
  }
  if (ual_mode && !have_cond) have_cond = r.take_condition(ir);
  if (r.pos < suffix.size()) warn(ir->line, "W0004", "Invalid instruction modifier(s) ignored");
}
