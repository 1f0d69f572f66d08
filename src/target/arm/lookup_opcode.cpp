// What an identifier at the head of a statement names: directive, mnemonic
// (cut from its condition and modifier letters), macro or built-in function.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

#include "driver/diag.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/ophash.h"
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

void lookup_opcode() {
  if (!curtk || curtk->kind != TK_IDENT || !curtk->value.sval) return;
  cur_ual_translation = nullptr;
  cur_mext_prefix[0] = '\0';
  // Reused for every statement: no allocation on the way, and no copy of a
  // name that needs no translation.
  static std::string name_buf;
  static std::string rest_buf;
  const std::string_view given(curtk->value.sval);
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

  if (!entry) {
    size_t n = 0;
    entry = prefix_search(base, name, &n);
    if (!entry) return;  // a label or an unknown word stays an identifier
    const std::string_view rest = base.substr(n);
    const size_t head = given.size() > rest.size() ? given.size() - rest.size() : given.size();
    token *tk = LEX_newtkn(TK_OPCODE_REST, curtk->column + static_cast<int32_t>(head));
    tk->line = curtk->line;
    LEX_set_text(tk, rest);
    tk->length = static_cast<uint32_t>(rest.size());
    curtk->length = static_cast<uint32_t>(head);
    unget_token(&tk);
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
