// Numbers, character constants and strings.
#include <cctype>
#include <cstdlib>
#include <string>

#include "driver/diag.h"
#include "expr/fval.h"
#include "expr/int128.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "support/memory.h"

namespace {

std::string &number_buffer() {
  static std::string buf = [] {
    std::string s;
    s.reserve(500);
    return s;
  }();
  return buf;
}

bool has_letter(const std::string &s) {
  for (char c : s)
    if (!LEX_is_digit(c)) return true;
  return false;
}
int digit_value(char c) { return LEX_is_digit(c) ? c - '0' : c - 'A' + 10; }

// Digits of a power-of-two radix are shifted in; what leaves the top is lost.
INT128 shift_in(const std::string &digits, int bits) {
  if (digits.size() * static_cast<size_t>(bits) <= 64) {  // nothing can leave the top
    uint64_t u = 0;
    for (char c : digits) u = (u << bits) | static_cast<uint64_t>(digit_value(c));
    return xi_from_u64(u);
  }
  INT128 v{};
  for (char c : digits) {
    XI_shl(v.b, bits, v.b);
    const INT128 d = xi_from_int(digit_value(c));
    XI_add(v.b, d.b, v.b);
  }
  return v;
}

INT128 decimal(const std::string &digits) {
  if (digits.size() <= 19) {  // below 10^19: exact in 64 bits
    uint64_t u = 0;
    for (char c : digits) u = u * 10 + static_cast<uint64_t>(c - '0');
    return xi_from_u64(u);
  }
  INT128 v{};
  for (char c : digits) {
    XI_mpy(v.b, xi_ten, v.b);
    XI_add(v.b, xi_dig[c - '0'], v.b);
  }
  return v;
}

bool upper_is(char c, char letter) { return LEX_upper(c) == letter; }

// U, L, UL, LL, LU, ULL and LLU; anything else stays for the next token.
void integer_suffix(token *tk) {
  int state = 0;
  for (;;) {
    if (chtyp == CH_EOL) return;
    const bool u = upper_is(ch, 'U');
    const bool l = upper_is(ch, 'L');
    if (!u && !l) return;
    switch (state) {
      case 0:
        if (u) tk->usuffix = 1, state = 1;
        else tk->lsuffix = 1, state = 4;
        break;
      case 1:
        if (u) return;
        tk->lsuffix = 1, state = 2;
        break;
      case 2:
        if (u) return;
        tk->lsuffix = 0, tk->llsuffix = 1, state = 3;
        break;
      case 4:
        if (u) tk->usuffix = 1, state = 3;
        else tk->lsuffix = 0, tk->llsuffix = 1, state = 5;
        break;
      case 5:
        if (l) return;
        tk->usuffix = 1, state = 3;
        break;
      default:
        return;
    }
    getch();
    if (state == 3) return;
  }
}

void float_constant(token *tk, std::string &text) {
  bool bad = has_letter(text);
  text += '.';
  getch();
  while (chtyp == CH_DIGIT) {
    text += ch;
    getch();
  }
  if (chtyp != CH_EOL && upper_is(ch, 'E')) {
    text += 'E';
    getch();
    if (ch == '+' || ch == '-') {
      text += ch;
      getch();
    }
    if (chtyp != CH_DIGIT) bad = true;
    while (chtyp == CH_DIGIT) {
      text += ch;
      getch();
    }
  }
  if (chtyp != CH_EOL && (upper_is(ch, 'F') || upper_is(ch, 'L'))) getch();

  tk->kind = TK_FCON;
  auto *f = static_cast<simul_fval *>(safemalloc(sizeof(simul_fval)));
  *f = pos_zero;
  tk->value.fval = f;
  if (bad)
    error(curline, "E0003", "Invalid float constant specified");
  else if (f_atof(text.c_str(), f) != 0)
    error(curline, "E0004", "Invalid float constant specified");
}

}  // namespace

void LEX_const(token *tk) {
  std::string &run = number_buffer();
  run.clear();
  const int32_t start = chpos;
  // ch is a digit: the run of hexadecimal digits at once, then the reader behind it.
  auto end = static_cast<uint32_t>(start);
  while (end < inbuf_len && LEX_is_xdigit(inbuf[end])) run += LEX_upper(inbuf[end++]);
  chpos = static_cast<int32_t>(end) - 1;
  getch();
  tk->kind = TK_ICON;
  tk->value.ival = INT128{};

  if (chtyp != CH_EOL && ch == '.') {
    float_constant(tk, run);
    tk->length = static_cast<uint32_t>(chpos - start);
    return;
  }

  INT128 v{};
  const char stop = chtyp == CH_EOL ? ' ' : LEX_upper(ch);
  if (stop == 'H') {
    getch();
    v = shift_in(run, 4);
  } else if (stop == 'Q') {
    getch();
    v = shift_in(run, 3);
  } else if (stop == 'X') {
    getch();
    std::string hex;
    while (chtyp != CH_EOL && LEX_is_xdigit(ch)) {
      hex += LEX_upper(ch);
      getch();
    }
    if (run != "0") error(curline, "E0003", "Invalid hex constant specified");
    else v = shift_in(hex, 4);
  } else {
    const char last = run.back();
    if (last == 'B') {
      const std::string digits = run.substr(0, run.size() - 1);
      if (digits.find_first_not_of("01") != std::string::npos)
        error(curline, "E0003", "Invalid binary constant specified");
      else
        v = shift_in(digits, 1);
    } else if (run[0] == '0' && last != 'D') {
      if (run.find_first_not_of("01234567") != std::string::npos)
        error(curline, "E0003", "Invalid octal constant specified");
      else
        v = shift_in(run, 3);
    } else if (last == 'D' || LEX_is_digit(last)) {
      const std::string digits = last == 'D' ? run.substr(0, run.size() - 1) : run;
      if (has_letter(digits))
        error(curline, "E0003", "Invalid decimal constant specified");
      else
        v = decimal(digits);
    } else {
      error(curline, "E0003", "Invalid constant specification");
    }
  }
  tk->value.ival = v;
  integer_suffix(tk);
  tk->length = static_cast<uint32_t>(chpos - start);
}

void LEX_string(char quote, std::string *out) {
  std::string &s = *out;
  s.clear();
  bool zero_seen = false;
  for (;;) {
    getch();
    // String operands are C strings further on: a zero byte would cut them
    // short in silence, so it is refused like any byte that has no meaning.
    if (ch == '\0' && chtyp != CH_EOL) {
      if (!zero_seen) error(curline, "E0000", "Unrecognized special character");
      zero_seen = true;
      continue;
    }
    if (chtyp == CH_EOL || ch == '\n') {
      error(curline, "E0000", "Missing right quote of string constant");
      break;
    }
    if (ch == quote) {
      getch();
      if (chtyp != CH_EOL && ch == quote) {
        s += quote;
        continue;
      }
      break;
    }
    s += ch;
  }
}

void LEX_ccon(token *tk) {
  std::string &text = number_buffer();
  LEX_string('\'', &text);
  const size_t used = text.size() < 4 ? text.size() : 4;
  uint32_t v = 0;
  for (size_t i = 0; i < used; ++i) v |= static_cast<uint32_t>(static_cast<unsigned char>(text[i])) << (8 * i);
  tk->kind = TK_CCON;
  tk->value.ival = xi_from_uint(v);
  tk->length = static_cast<uint32_t>(used);
}
