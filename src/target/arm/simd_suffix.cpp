// The data-type suffixes (.F32, .I16.I32, .U8) and the alignment (@64) that
// follow a unified vector or floating-point mnemonic in the source word.
#include <cstring>

#include "driver/diag.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "target/arm/opcodes.h"
#include "target/arm/simd_vfp.h"

namespace {

bool is_alpha(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool is_alnum(char c) { return is_alpha(c) || LEX_is_digit(c); }
// What may still belong to the opcode word behind the suffixes.
bool word_char(char c) { return is_alnum(c) || c == '.' || c == '@' || c == '_'; }

uint16_t type_of_letter(char c) {
  switch (c) {
    case 'I': return SIMD_T_I;
    case 'F': return SIMD_T_F;
    case 'P': return SIMD_T_P;
    case 'S': return SIMD_T_S;
    case 'U': return SIMD_T_U;
    default: return 0;
  }
}

uint32_t size_code(uint32_t bits) {
  switch (bits) {
    case 8: return SIMD_SZ_8;
    case 16: return SIMD_SZ_16;
    case 32: return SIMD_SZ_32;
    case 64: return SIMD_SZ_64;
    default: return 0;
  }
}

uint32_t align_code(uint32_t bits) {
  switch (bits) {
    case 16: return 1;
    case 32: return 2;
    case 64: return 4;
    case 128: return 8;
    case 256: return 16;
    default: return 0;
  }
}

// One suffix of up to three characters (already upper case): a type letter
// or none, then the size in bits. {0, 0} when it is no suffix at all.
simd_suffix decode(const char *text, size_t n) {
  simd_suffix s{SIMD_T_BARE, 0};
  size_t i = 0;
  if (n > 0 && is_alpha(text[0])) {
    s.type = type_of_letter(text[0]);
    i = 1;
  }
  if (i == n) return {s.type, 0};
  uint32_t bits = 0;
  for (; i < n; ++i) {
    if (!LEX_is_digit(text[i])) return {s.type, 0};
    bits = bits * 10 + static_cast<uint32_t>(text[i] - '0');
  }
  s.size = size_code(bits);
  return s;
}

// The line from the character behind the mnemonic's word (curtk), which the
// lexer ended at the first dot; empty when that word is not found there.
// The word is the token's whole text: the lookup may already have cut the
// token's length to the row name (VMOVL to VMOV).
std::string_view suffix_text() {
  if (!curtk || curtk->kind != TK_IDENT || !curtk->value.sval || !inbuf || curtk->line != curline ||
      curtk->column < 0)
    return {};
  const char *word = curtk->value.sval;
  const auto column = static_cast<size_t>(curtk->column);
  const size_t start = column + std::strlen(word);
  if (start > inbuf_len) return {};
  for (size_t i = column; i < start; ++i)
    if (LEX_upper(inbuf[i]) != LEX_upper(word[i - column])) return {};
  return {inbuf + start, inbuf_len - start};
}

}  // namespace

size_t simd_parse_suffix_text(std::string_view text, const simd_type_rule *rule, linebuf *line) {
  for (simd_suffix &s : cur_suffixes.types) s = {SIMD_T_ABSENT, 0};
  cur_suffixes.align = 0;
  auto at = [&](size_t i) { return i < text.size() ? text[i] : '\0'; };

  size_t pos = 0;
  size_t count = 0;
  bool reported = false;        // one message for a malformed word
  bool parsed_ok[3] = {true, true, true};
  while (at(pos) == '.') {
    ++pos;
    char buf[3];
    size_t n = 0;
    while (n < 3 && is_alnum(at(pos))) buf[n++] = LEX_upper(text[pos++]);
    const simd_suffix s = decode(buf, n);
    const bool ok = s.type != 0 && s.size != 0;
    if (count < 3) {
      cur_suffixes.types[count] = s;
      parsed_ok[count] = ok;
    }
    // The statement has three suffix places; a fourth is not kept.
    if ((!ok || count >= 3) && !reported) {
      error(line, "E0004", "Illegal SIMD suffix");
      reported = true;
    }
    ++count;
  }

  if (at(pos) == '@') {
    ++pos;
    uint32_t bits = 0;
    size_t digits = 0;
    while (digits < 7 && LEX_is_digit(at(pos))) {
      bits = bits * 10 + static_cast<uint32_t>(text[pos++] - '0');
      ++digits;
    }
    cur_suffixes.align = digits ? align_code(bits) : 0;
    if (!cur_suffixes.align) {
      error(line, "E0002", "Illegal Alignment");
      reported = true;
    }
  }

  // Anything else glued to the word is no suffix.
  if (word_char(at(pos))) {
    if (!reported) error(line, "E0004", "Illegal SIMD suffix");
    while (word_char(at(pos))) ++pos;
  }

  if (!rule) return pos;
  for (int i = 0; i < 3; ++i) {
    const simd_type_slot &allowed = rule->slot[i];
    const simd_suffix &s = cur_suffixes.types[i];
    if ((allowed.types & SIMD_T_ANY) || !parsed_ok[i]) continue;
    if (!(s.type & allowed.types))
      error(line, "E0004", "Illegal SIMD suffix type for this mnemonic");
    else if (s.type != SIMD_T_ABSENT && !(s.size & allowed.sizes))
      error(line, "E0004", "Illegal SIMD suffix size for this mnemonic");
  }
  return pos;
}

void parse_simd_suffix(const mnemonic_row *row) {
  const inst_class *cls = row && curtk ? row->slot[encode_state].cls : nullptr;
  const simd_type_rule *rule = cls ? cls->ic_rule : nullptr;
  const std::string_view text = suffix_text();
  linebuf *line = curtk ? curtk->line : curline;
  // Even without a suffix the slots are checked: some rules want one.
  const size_t taken = simd_parse_suffix_text(text, rule, line);
  if (!taken) return;

  // The reader goes on behind the suffixes. Tokens already read from them
  // (a look-ahead) are dropped.
  const auto start = static_cast<int32_t>(text.data() - inbuf);
  const auto end = start + static_cast<int32_t>(taken);
  if (chpos >= start && chpos < end) LEX_setpos(end);
  for (token **link = &availtkn; *link;) {
    token *t = *link;
    if (t->line == curtk->line && t->column >= start && t->column < end) {
      *link = t->next;
      LEX_droptkn(t);
    } else {
      link = &t->next;
    }
  }
}
