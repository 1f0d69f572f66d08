// What an identifier at the head of a statement names: directive, mnemonic
// (cut from its condition and modifier letters), macro or built-in function.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "driver/diag.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/ophash.h"
#include "target/arm/arch.h"
#include "target/arm/opcodes.h"
#include "target/arm/parse.h"
#include "target/arm/trg.h"

namespace {

bool is_mnemonic(const ophashtbl *e) { return e && e->kind == OPTYPE_MNEMONIC; }

// Mnemonics whose data-type suffixes (.F32, .I16 ...) stand behind the word.
bool has_type_suffixes(const ophashtbl *e) {
  return is_mnemonic(e) && PRS_has_type_suffixes(e->mnemonic()->slot[encode_state].cls);
}

// The name in unified mode goes through the translation table; buf holds a
// translated name. Either is zero-terminated when `name` is.
std::string_view translated(std::string_view name, std::string *buf) {
  return ual_mode && UAL_translate(name, buf) ? std::string_view(*buf) : name;
}

ophashtbl *direct_search(std::string_view name) {
  if (cur_state != STATE_THUMB2) {
    encode_state = cur_state;
    return findop(name);
  }
  const uint32_t first = ual_mode && !arch_is_v6m0() ? STATE_THUMB2 : STATE_THUMB16;
  const uint32_t second = first == STATE_THUMB2 ? STATE_THUMB16 : STATE_THUMB2;
  encode_state = first;
  if (ophashtbl *e = findop(name)) return e;
  encode_state = second;
  if (ophashtbl *e = findop(name)) return e;
  encode_state = STATE_THUMB2;
  return nullptr;
}

// The longest prefix of base that is a mnemonic; *length gets its length.
// `name` is the whole (translated) word.
ophashtbl *prefix_search(std::string_view base, std::string_view name, size_t *length) {
  if (base.size() < 2) return nullptr;
  const bool thumb2_ual = cur_state == STATE_THUMB2 && ual_mode;
  const uint32_t slot = arch_is_v6m0() ? STATE_THUMB16 : encode_state;
  for (size_t n = std::min<size_t>(20, base.size() - 1); n >= 1; --n) {
    encode_state = slot;
    const std::string_view cut = base.substr(0, n);
    ophashtbl *e = findop(cut);
    if (!is_mnemonic(e) && thumb2_ual) {
      encode_state = STATE_THUMB16;
      e = findop(cut);
      if (!is_mnemonic(e)) encode_state = STATE_THUMB2;
    }
    if (!is_mnemonic(e)) continue;
    // LDRHI and STRHI are LDR and STR with the condition HI.
    if ((e->name == "LDRH" || e->name == "STRH") && name.size() > 4 && LEX_upper(name[4]) == 'I') continue;
    *length = n;
    return e;
  }
  return nullptr;
}

}  // namespace

namespace {

// What the lookup found for one word in one setting: the statement loop asks
// for the same few words again and again. A memo is valid while the state,
// the unified mode, the architecture and the opcode table are what they were.
struct lookup_memo {
  static constexpr size_t MAX_WORD = 23;
  char word[MAX_WORD + 1];                 // the word as given
  char rest[MAX_WORD + 1];                 // the letters behind the mnemonic
  uint8_t length = 0;
  uint8_t rest_length = 0;
  uint8_t head = 0;                        // given letters of the mnemonic, 0: not split
  uint8_t encode_state = 0;
  bool ual = false;
  bool valid = false;
  char mext[3] = {};
  uint32_t state = 0;
  uint32_t arch = 0;
  uint32_t generation = 0;
  ophashtbl *entry = nullptr;              // null: not an opcode
  const ual_name_translation *translation = nullptr;
};

constexpr size_t MEMO_SIZE = 256;
lookup_memo memos[MEMO_SIZE];

lookup_memo *memo_slot(std::string_view word) {
  uint32_t h = 2166136261u;
  for (char c : word) h = (h ^ static_cast<uint8_t>(c)) * 16777619u;
  return &memos[(h ^ (h >> 16)) % MEMO_SIZE];
}

bool memo_matches(const lookup_memo &m, std::string_view word) {
  return m.valid && m.generation == ophash_generation && m.state == cur_state && m.ual == (ual_mode != 0) &&
         m.arch == arm_arch() && std::string_view(m.word, m.length) == word;
}

// Pushes back the letters behind the mnemonic as their own token.
void split_word(std::string_view rest, size_t head) {
  token *tk = LEX_newtkn(TK_OPCODE_REST, curtk->column + static_cast<int32_t>(head));
  tk->line = curtk->line;
  LEX_set_text(tk, rest);
  tk->length = static_cast<uint32_t>(rest.size());
  curtk->length = static_cast<uint32_t>(head);
  unget_token(&tk);
}

// The word's entry by the tables, with the rest of the word pushed back;
// null when it is no opcode. *rest and *head tell the split for the memo.
ophashtbl *search(std::string_view given, std::string_view *rest, size_t *head) {
  // Reused for every statement: no allocation on the way, and no copy of a
  // name that needs no translation.
  static std::string name_buf;
  static std::string rest_buf;
  const std::string_view name = translated(given, &name_buf);

  ophashtbl *entry = direct_search(name);
  std::string_view base = name;
  if (!entry && arch_is_v6_or_higher()) {
    int prefix = 0;
    // name is zero-terminated: the token's text or name_buf.
    if (has_mext_prefix(name.data(), &prefix) && prefix > 0) {
      base = translated(name.substr(static_cast<size_t>(prefix)), &rest_buf);
      ophashtbl *e = direct_search(base);
      if (is_mnemonic(e)) entry = e;
    }
  }
  if (entry) return entry;
  size_t n = 0;
  entry = prefix_search(base, name, &n);
  if (!entry) return nullptr;  // a label or an unknown word stays an identifier
  *rest = base.substr(n);
  *head = given.size() > rest->size() ? given.size() - rest->size() : given.size();
  split_word(*rest, *head);
  return entry;
}

}  // namespace

void lookup_opcode() {
  if (!curtk || curtk->kind != TK_IDENT || !curtk->value.sval) return;
  cur_ual_translation = nullptr;
  cur_mext_prefix[0] = '\0';
  const std::string_view given(curtk->value.sval);

  ophashtbl *entry = nullptr;
  lookup_memo *memo = given.size() <= lookup_memo::MAX_WORD ? memo_slot(given) : nullptr;
  if (memo && memo_matches(*memo, given)) {
    entry = memo->entry;
    encode_state = memo->encode_state;
    cur_ual_translation = memo->translation;
    std::memcpy(cur_mext_prefix, memo->mext, sizeof cur_mext_prefix);
    if (!entry) return;
    if (memo->head) split_word(std::string_view(memo->rest, memo->rest_length), memo->head);
  } else {
    std::string_view rest;
    size_t head = 0;
    entry = search(given, &rest, &head);
    // A word whose translation warned is looked up afresh each time, so
    // that each use warns.
    const bool warned = cur_ual_translation && !cur_ual_translation->old_name;
    if (memo && !warned && rest.size() <= lookup_memo::MAX_WORD) {
      memo->valid = true;
      std::memcpy(memo->word, given.data(), given.size());
      memo->length = static_cast<uint8_t>(given.size());
      if (!rest.empty()) std::memcpy(memo->rest, rest.data(), rest.size());
      memo->rest_length = static_cast<uint8_t>(rest.size());
      memo->head = static_cast<uint8_t>(head);
      memo->encode_state = static_cast<uint8_t>(encode_state);
      memo->ual = ual_mode != 0;
      std::memcpy(memo->mext, cur_mext_prefix, sizeof memo->mext);
      memo->state = cur_state;
      memo->arch = arm_arch();
      memo->generation = ophash_generation;
      memo->entry = entry;
      memo->translation = cur_ual_translation;
    }
    if (!entry) return;
  }
  // The data-type suffixes stand behind the whole word, also behind letters
  // (VMULL.S16).
  if (has_type_suffixes(entry)) parse_simd_suffix(entry->mnemonic());

  uint16_t kind = 0;
  switch (entry->kind) {
    case OPTYPE_DIRECTIVE: kind = IR_DIRECTIVE; break;
    case OPTYPE_MNEMONIC: kind = IR_MNEMONIC; break;
    case OPTYPE_MACRO:
    case OPTYPE_LIBMACRO: kind = IR_MACRO; break;
    case OPTYPE_BUILTIN: kind = TK_INTRINSIC; break;
    default:
      error_internal(1, curline, "illegal optype");
      return;
  }
  LEX_release_value(curtk);
  curtk->kind = kind;
  curtk->value.op = entry;
}
