// Plain operands read straight from the line: pass 1 of the data directives
// only needs their names and shape, not token records.
#include "driver/records.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"

namespace {

uint8_t class_of(char c) { return LEX_char_class[static_cast<unsigned char>(c)]; }

// Characters that would continue a name or a number, or change how one is
// read (a structure dot, a scoped name, a quote inside a name).
bool joins(char c) { return class_of(c) == CH_ALPHA || LEX_is_digit(c) || c == '\'' || c == '.' || c == '?'; }

class reader {
public:
  explicit reader(bool floats) : floats_(floats) {}

  bool run(std::vector<plain_token> *out, uint32_t *separator) {
    out->clear();
    for (uint32_t i = static_cast<uint32_t>(chpos); i < inbuf_len;) {
      const char c = inbuf[i];
      if (c == '\n' || c == ',' || c == ';') {
        // The line feed ends every line; without one the reader is not plain.
        if (c != '\n' || i + 1 == inbuf_len) *separator = i;
        return c != '\n' || i + 1 == inbuf_len;
      }
      if (class_of(c) == CH_SPACE) {
        ++i;
        continue;
      }
      uint32_t end = i;
      uint16_t kind = 0;
      if (LEX_is_digit(c)) kind = number(i, &end);
      else if (class_of(c) == CH_ALPHA && c != '$') kind = name(i, &end);
      else if (c == '\'') kind = character(i, &end);
      else kind = op(i, &end);
      if (!kind || end - i > 0xFFFF || i > 0xFFFF) return false;
      out->push_back({kind, static_cast<uint16_t>(i), static_cast<uint16_t>(end - i)});
      i = end;
    }
    return false;
  }

private:
  char at(uint32_t i) const { return i < inbuf_len ? inbuf[i] : '\n'; }

  // As LEX_const reads: hexadecimal digits, then an H or Q, or an X with more
  // hexadecimal digits; a floating constant at a point. Suffix letters and
  // anything else that joins are not plain.
  uint16_t number(uint32_t i, uint32_t *end) const {
    uint32_t j = i;
    bool decimal = true;
    for (; LEX_is_xdigit(at(j)); ++j)
      if (!LEX_is_digit(at(j))) decimal = false;
    if (at(j) == '.') {
      if (!floats_ || !decimal) return 0;
      for (++j; LEX_is_digit(at(j));) ++j;
      if (LEX_upper(at(j)) == 'E') {
        ++j;
        if (at(j) == '+' || at(j) == '-') ++j;
        if (!LEX_is_digit(at(j))) return 0;
        while (LEX_is_digit(at(j))) ++j;
      }
      if (joins(at(j))) return 0;
      *end = j;
      return TK_FCON;
    }
    if (LEX_upper(at(j)) == 'H' || LEX_upper(at(j)) == 'Q') {
      ++j;
    } else if (LEX_upper(at(j)) == 'X') {
      for (++j; LEX_is_xdigit(at(j));) ++j;
    }
    if (joins(at(j))) return 0;
    *end = j;
    return TK_ICON;
  }

  uint16_t name(uint32_t i, uint32_t *end) const {
    uint32_t j = i;
    while (class_of(at(j)) == CH_ALPHA || LEX_is_digit(at(j))) ++j;
    if (joins(at(j))) return 0;  // '$', a quote, a dot or '?' behind the name
    *end = j;
    return TK_IDENT;
  }

  // 'c': one character that is neither a quote nor the line's end.
  uint16_t character(uint32_t i, uint32_t *end) const {
    const char c = at(i + 1);
    if (c == '\'' || c == '\n' || at(i + 2) != '\'' || at(i + 3) == '\'') return 0;
    *end = i + 3;
    return TK_CCON;
  }

  // The operators of expressions as the lexer pairs their characters.
  uint16_t op(uint32_t i, uint32_t *end) const {
    const char next = at(i + 1);
    auto pair = [&](uint16_t kind) {
      *end = i + 2;
      return kind;
    };
    *end = i + 1;
    switch (at(i)) {
      case '!': return next == '=' ? pair(TK_NE) : uint16_t{TK_NOT};
      case '%': case '&': case '(': case ')': case '*': case '+': case '-': case '/': case '^': case '~':
        return static_cast<uint16_t>(static_cast<unsigned char>(at(i)));
      case '<':
        if (next == '=') return pair(TK_LE);
        if (next == '<') return pair(TK_ASHLEFT);
        if (next == '>') return pair(TK_NE);
        return TK_LT;
      case '=': return next == '=' ? pair(TK_EQ) : uint16_t{TK_EQ};
      case '>':
        if (next == '=') return pair(TK_GE);
        if (next == '>') return pair(TK_ASHRIGHT);
        return TK_GT;
      case '|': return next == '|' ? 0 : TK_OR;  // "||" is the parallel bar or a quoted name
      default: return 0;
    }
  }

  bool floats_;
};

}  // namespace

bool LEX_plain_operand(bool floats, std::vector<plain_token> *out, uint32_t *separator) {
  if (availtkn || !inbuf || chtyp == CH_EOL || chpos < 0) return false;
  return reader(floats).run(out, separator);
}

void LEX_resume_at(uint32_t pos) { LEX_setpos(static_cast<int32_t>(pos)); }
