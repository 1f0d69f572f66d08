// What an identifier at the head of a statement names: directive, mnemonic
// (cut from its condition and modifier letters), macro or built-in function.
#include <algorithm>
#include <cstdlib>
#include <string>

#include "driver/diag.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/ophash.h"
#include "target/arm/opcodes.h"
#include "target/arm/trg.h"

namespace {

bool is_mnemonic(const ophashtbl *e) { return e && e->kind == OPTYPE_MNEMONIC; }

// Classes whose mnemonics carry data-type suffixes in the source.
bool has_type_suffixes(const ophashtbl *e) {
  const inst_class *cls = e->mnemonic()->slot[encode_state].cls;
  if (!cls) return false;
  const unsigned id = cls->ic_id;
  return (id >= 201 && id <= 216) || (id >= 218 && id <= 222) || id == 49 || id == 50;
}

ophashtbl *direct_search(const std::string &name) {
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
ophashtbl *prefix_search(const std::string &base, size_t *length) {
  if (base.size() < 2) return nullptr;
  const bool thumb2_ual = cur_state == STATE_THUMB2 && ual_mode;
  for (size_t n = std::min<size_t>(20, base.size() - 1); n >= 1; --n) {
    const std::string cut = base.substr(0, n);
    if (arch_is_v6m0()) encode_state = STATE_THUMB16;
    ophashtbl *e = findop(cut);
    if (!is_mnemonic(e) && thumb2_ual) {
      encode_state = STATE_THUMB16;
      e = findop(cut);
      if (!is_mnemonic(e)) encode_state = STATE_THUMB2;
    }
    if (!is_mnemonic(e)) continue;
    // LDRHI and STRHI are LDR and STR with the condition HI.
    if ((e->name == "LDRH" || e->name == "STRH") && base.size() > 4 && (base[4] == 'I' || base[4] == 'i'))
      continue;
    *length = n;
    return e;
  }
  return nullptr;
}

}  // namespace

void lookup_opcode() {
  if (!curtk || curtk->kind != TK_IDENT || !curtk->value.sval) return;
  const std::string name = ual_mode ? ual_translate_name(curtk->value.sval) : std::string(curtk->value.sval);

  ophashtbl *entry = direct_search(name);
  if (is_mnemonic(entry) && has_type_suffixes(entry)) parse_simd_suffix(entry->mnemonic());

  size_t offset = 0;
  if (!entry && arch_is_v6_or_higher()) {
    int prefix = 0;
    if (has_mext_prefix(name.c_str(), &prefix) && prefix > 0) {
      offset = static_cast<size_t>(prefix);
      std::string rest = name.substr(offset);
      if (ual_mode) rest = ual_translate_name(rest);
      ophashtbl *e = findop(rest);
      if (is_mnemonic(e)) entry = e;
    }
  }

  if (!entry) {
    const std::string base = name.substr(offset);
    size_t n = 0;
    entry = prefix_search(base, &n);
    if (!entry) return;  // a label or an unknown word stays an identifier
    // VADDL.S16, VCVTEQ.F32: the suffixes follow the whole word, read before it is cut.
    if (is_mnemonic(entry) && has_type_suffixes(entry)) parse_simd_suffix(entry->mnemonic());
    token *rest = LEX_newtkn(TK_OPCODE_REST, curtk->column + static_cast<int32_t>(offset + n));
    rest->line = curtk->line;
    LEX_set_text(rest, std::string_view(base).substr(n));
    rest->length = static_cast<uint32_t>(base.size() - n);
    curtk->length = static_cast<uint32_t>(offset + n);
    unget_token(&rest);
  }

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
