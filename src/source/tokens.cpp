// Tokens: the token stream, the special characters and the pushed-back list.
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/diag.h"
#include "listing/listing.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/subsym.h"
#include "support/memory.h"

token *curtk = nullptr;
token *availtkn = nullptr;
linebuf *curline = nullptr;
uint32_t LEX_live_tokens = 0;

namespace {
// Released tokens, kept for reuse: a statement makes and drops several.
token *spare_tokens = nullptr;

token *alloc_token() {
  token *tk = spare_tokens;
  if (!tk) return new token{};
  spare_tokens = tk->next;
  *tk = token{};
  return tk;
}
}  // namespace

token *LEX_newtkn(uint16_t kind, int32_t column) {
  token *tk = alloc_token();
  tk->kind = kind;
  tk->column = column;
  tk->line = curline;
  ++LEX_live_tokens;
  return tk;
}

namespace {

token *make(uint16_t kind, int32_t column, uint32_t length) {
  token *tk = LEX_newtkn(kind, column);
  tk->length = length;
  return tk;
}

// After the first character of an operator: an optional second one. The
// reader steps on with getch: a ';' right behind an operator is read as the
// comment token, so the line still ends in TK_EOL.
bool second(char c) {
  if (ch != c || chtyp == CH_EOL) return false;
  getch();
  return true;
}

// "||name||": letters, digits and dots between double bars.
token *bar_identifier(int32_t column) {
  if (LEX_peek(column + 1) != '|') return nullptr;
  int32_t q = column + 2;
  const auto first = static_cast<unsigned char>(LEX_peek(q));
  if (!(std::isalpha(first) || first == '.')) return nullptr;
  while (std::isalnum(static_cast<unsigned char>(LEX_peek(q))) || LEX_peek(q) == '.') ++q;
  if (LEX_peek(q) != '|' || LEX_peek(q + 1) != '|') return nullptr;
  q += 2;
  token *tk = make(TK_IDENT, column, static_cast<uint32_t>(q - column));
  LEX_set_text(tk, std::string_view(inbuf + column, static_cast<size_t>(q - column)));
  LEX_setpos(q);
  return tk;
}

// A token of class 8. Null when an identifier was rewritten into the line.
token *special(int32_t column) {
  const char c = ch;
  const auto uc = static_cast<unsigned char>(c);
  if (uc > 126) {
    error(curline, "E0000", "Unrecognized special character");
    LEX_drop_line();
    return make(TK_EOL, column, 1);
  }
  switch (c) {
    case '!':
      getch();
      if (second('=')) return make(TK_NE, column, 2);
      return make(TK_NOT, column, 1);
    case '"': {
      token *tk = make(TK_SCON, column, 0);
      static std::string text;
      LEX_string('"', &text);
      LEX_set_text(tk, text);
      tk->length = static_cast<uint32_t>(text.size());
      return tk;
    }
    case '\'': {
      token *tk = make(TK_CCON, column, 0);
      LEX_ccon(tk);
      return tk;
    }
    case '#': case '%': case '&': case '(': case ')': case '*': case '+': case ',':
    case '-': case '/': case ':': case '@': case '[': case ']': case '^': case '{':
    case '}': case '~':
      getch();
      return make(static_cast<uint16_t>(uc), column, 1);
    case '.':
      if (LEX_classify(LEX_peek(column + 1)) == CH_ALPHA) return LEX_ident(column);
      getch();
      return make(TK_DOT, column, 1);
    case ';':
      LEX_drop_line();
      return make(TK_EOL, column, 1);
    case '<':
      getch();
      if (second('=')) return make(TK_LE, column, 2);
      if (second('<')) return make(TK_ASHLEFT, column, 2);
      if (second('>')) return make(TK_NE, column, 2);
      return make(TK_LT, column, 1);
    case '=':
      getch();
      if (second('=')) return make(TK_EQ, column, 2);
      return make(TK_EQ, column, 1);
    case '>':
      getch();
      if (second('=')) return make(TK_GE, column, 2);
      if (second('>')) return make(TK_ASHRIGHT, column, 2);
      return make(TK_GT, column, 1);
    case '|':
      if (token *tk = bar_identifier(column)) return tk;
      getch();
      if (second('|')) return make(TK_PARALLEL, column, 2);
      return make(TK_OR, column, 1);
    default:
      error(curline, "E0000", "Unrecognized special character");
      LEX_drop_line();
      return make(TK_EOL, column, 1);
  }
}

}  // namespace

token *LEX_tkn() {
  for (;;) {
    if (chtyp == CH_EOL) {
      LST_getln();
      LEX_prescan();
      nextch();
    }
    if (chtyp == CH_SPACE) skip_to_nextch();
    const int32_t column = chpos;
    token *tk = nullptr;
    switch (chtyp) {
      case CH_EOL:
        return make(TK_EOL, column, 1);
      case CH_DIGIT:
        tk = LEX_newtkn(TK_ICON, column);
        LEX_const(tk);
        return tk;
      case CH_ALPHA:
        tk = LEX_ident(column);
        break;
      default:
        tk = special(column);
        break;
    }
    if (tk) return tk;
  }
}

token *get_a_token() {
  if (token *tk = availtkn) {
    availtkn = tk->next;
    tk->next = nullptr;
    curline = tk->line;
    return tk;
  }
  for (;;) {
    token *tk = LEX_tkn();
    if (subsym_expand && tk->kind == TK_IDENT) {
      s_sym *entry = nullptr;
      if (subsymtbl.SUBSYM_find(tk, &entry) && entry && subsymtbl.SUBSYM_check(tk->value.sval)) {
        subsymtbl.SUBSYM_expand(tk, entry);
        LEX_droptkn(tk);
        continue;
      }
    }
    subsymtbl.top = -1;
    return tk;
  }
}

token *next_token() {
  LEX_droptkn(curtk);
  curtk = get_a_token();
  return curtk;
}

token *get_token() {
  curtk = get_a_token();
  return curtk;
}

void unget_token(token **tk) {
  if (!tk || !*tk) return;
  (*tk)->next = availtkn;
  availtkn = *tk;
  *tk = nullptr;
}

void LEX_set_text(token *tk, std::string_view text) {
  char *to = tk->short_text;
  if (text.size() >= sizeof tk->short_text) to = static_cast<char *>(safemalloc(text.size() + 1));
  std::memcpy(to, text.data(), text.size());
  to[text.size()] = '\0';
  tk->value.sval = to;
}

void LEX_release_value(token *tk) {
  switch (tk->kind) {
    case TK_IDENT: case TK_SCON: case TK_OPCODE_REST:
      if (tk->value.sval != tk->short_text) std::free(tk->value.sval);
      tk->value.sval = nullptr;
      break;
    case TK_FCON:
      std::free(tk->value.fval);
      tk->value.fval = nullptr;
      break;
    default:
      break;
  }
}

void LEX_droptkn(token *tk) {
  if (!tk) return;
  LEX_release_value(tk);
  tk->next = spare_tokens;
  spare_tokens = tk;
  --LEX_live_tokens;
}

token *copy_curtk_for_unget() {
  if (!curtk) return nullptr;
  token *tk = alloc_token();
  *tk = *curtk;
  tk->next = nullptr;
  ++LEX_live_tokens;
  switch (tk->kind) {
    case TK_IDENT: case TK_SCON: case TK_OPCODE_REST:
      if (curtk->value.sval) LEX_set_text(tk, curtk->value.sval);
      break;
    case TK_FCON:
      if (tk->value.fval) {
        auto *f = static_cast<simul_fval *>(safemalloc(sizeof(simul_fval)));
        *f = *tk->value.fval;
        tk->value.fval = f;
      }
      break;
    default:
      break;
  }
  return tk;
}

bool LEX_eol() { return !curtk || curtk->kind == TK_EOL; }

token *LEX_getfname() {
  next_token();
  if (curtk->kind == TK_SCON || curtk->kind == TK_EOL || !curtk->line || curtk->line != curline) return curtk;
  // Unquoted: the raw characters from the token's start up to white space
  // or a comment, which is left for the next token: the line ends in TK_EOL.
  // A zero byte is left there too, for the lexer to report.
  const int32_t start = curtk->column;
  LEX_droptkn(curtk);
  chpos = start - 1;
  getch();
  std::string name;
  while (chtyp != CH_SPACE && chtyp != CH_EOL && ch != ';' && ch != '\0') {
    name += ch;
    getch();
  }
  curtk = LEX_newtkn(TK_SCON, start);
  curtk->length = static_cast<uint32_t>(name.size());
  LEX_set_text(curtk, name);
  return curtk;
}

void LEX_skip_to_eol() {
  while (curtk && curtk->kind != TK_EOL) next_token();
}

void skip_to_expected_eol(linebuf *line) {
  if (LEX_eol()) return;
  error(line, "E0003", "Unexpected trailing operand(s)");
  LEX_skip_to_eol();
}
