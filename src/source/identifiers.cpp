// Identifiers: names, scoped names (name? and $n) and built-in function names.
#include <cctype>
#include <cstdio>
#include <string>

#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/macro.h"
#include "source/ophash.h"
#include "source/subsym.h"

namespace {

std::string &name_buffer() {
  static std::string buf = [] {
    std::string s;
    s.reserve(500);
    return s;
  }();
  return buf;
}

void append_number(std::string &name, const char *fmt, int32_t n) {
  char text[32];
  std::snprintf(text, sizeof text, fmt, n);
  name += text;
}

}  // namespace

token *LEX_ident(int32_t column) {
  std::string &name = name_buffer();
  name.clear();
  const bool dot = ch == '.';
  if (dot) {
    name += '.';
    getch();
  }
  // The run of name characters at once, then the reader behind it.
  if (chtyp == CH_ALPHA || chtyp == CH_DIGIT || ch == '\'') {
    const auto start = static_cast<uint32_t>(chpos);
    uint32_t end = start;
    while (end < inbuf_len) {
      const char c = inbuf[end];
      const uint8_t k = LEX_char_class[static_cast<unsigned char>(c)];
      if (k != CH_ALPHA && k != CH_DIGIT && c != '\'') break;
      ++end;
    }
    // Most names are plain: no '$' in front, no '?' behind. They go from the
    // line into the token at once (the dot stands right before the run).
    if ((dot || inbuf[start] != '$') && !(end < inbuf_len && inbuf[end] == '?')) {
      const uint32_t from = dot ? start - 1 : start;
      chpos = static_cast<int32_t>(end) - 1;
      getch();
      token *tk = LEX_newtkn(TK_IDENT, column);
      tk->length = end - from;
      LEX_set_text(tk, std::string_view(inbuf + from, end - from));
      return tk;
    }
    name.append(inbuf + start, end - start);
    chpos = static_cast<int32_t>(end) - 1;
    getch();
  }

  const bool in_macro = MAC_lvl >= 0;
  bool renamed = false;
  if (ch == '?' && chtyp != CH_EOL) {
    getch();
    if (in_macro) append_number(name, "$%d$", mac_loclbl_cnt);
    else append_number(name, "$%d", file_loclbl_cnt);
    renamed = true;
  }

  if (name == "$") {
    token *tk = LEX_newtkn(TK_SPC, column);
    tk->length = 1;
    return tk;
  }
  const bool local_label = name.size() == 2 && name[0] == '$' && std::isdigit(static_cast<unsigned char>(name[1]));
  if (local_label) {
    if (in_macro) append_number(name, "_$%d$", mac_loclbl_cnt);
    else append_number(name, "_$%d", file_loclbl_cnt);
    renamed = true;
  }

  if (renamed && in_macro && subsym_expand == 1) {
    // The listing shows the scoped name, and the lexer reads it from the line.
    LST_expand(column, chpos, name, static_cast<int32_t>(name.size()));
    return nullptr;
  }

  if (name[0] == '$' && !local_label) {
    ophashtbl *entry = findop(name);
    if (entry && entry->kind == OPTYPE_BUILTIN) {
      token *tk = LEX_newtkn(TK_INTRINSIC, column);
      tk->length = static_cast<uint32_t>(name.size());
      tk->value.op = entry;
      return tk;
    }
  }

  token *tk = LEX_newtkn(TK_IDENT, column);
  tk->length = static_cast<uint32_t>(name.size());
  LEX_set_text(tk, name);
  return tk;
}
