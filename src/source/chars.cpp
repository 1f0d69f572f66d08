// The character layer: the reading position in the current line.
#include <array>
#include <cctype>
#include <cstring>

#include "driver/diag.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/macro.h"
#include "support/memory.h"

char *inbuf = nullptr;
uint32_t inbuf_len = 0;
uint32_t inbuf_uid = 0;
char ch = ' ';
uint32_t chtyp = CH_EOL;
int32_t chpos = -1;

// The classes in the "C" locale, looked up once per character read.
constexpr std::array<uint8_t, 256> LEX_char_class = [] {
  std::array<uint8_t, 256> t{};
  for (int c = 0; c < 256; ++c) {
    uint8_t k = CH_OTHER;
    if (c == ' ' || (c >= '\t' && c <= '\r')) k = CH_SPACE;
    else if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$') k = CH_ALPHA;
    else if (c >= '0' && c <= '9') k = CH_DIGIT;
    t[static_cast<size_t>(c)] = k;
  }
  return t;
}();

uint32_t LEX_classify(char c) { return LEX_char_class[static_cast<unsigned char>(c)]; }

char LEX_peek(int32_t pos) {
  if (!inbuf || pos < 0 || pos >= static_cast<int32_t>(inbuf_len)) return 0;
  return inbuf[pos];
}

void LEX_reset() {
  ch = ' ';
  chtyp = CH_EOL;
  chpos = -1;
}

void LEX_inbuf_update(char *text, short length) {
  inbuf = text;
  inbuf_len = length < 0 ? 0 : static_cast<uint32_t>(length);
}

void LEX_drop_line() {
  ch = ' ';
  chtyp = CH_EOL;
  chpos = inbuf_len ? static_cast<int32_t>(inbuf_len) - 1 : 0;
}

void nextch() {
  getch();
  if (chtyp == CH_EOL) return;
  const bool first = chpos == 0;
  if (ch == ';' || (first && (ch == '*' || (ch == '!' && MAC_lvl >= 0)))) LEX_drop_line();
}

void LEX_setpos(int32_t pos) {
  chpos = pos - 1;
  getch();
}

void ungetch() {
  if (chpos <= 0 || !inbuf) {
    error_internal(1, curline, "can't unget first character in buffer");
    return;
  }
  --chpos;
  ch = inbuf[chpos];
  chtyp = LEX_classify(ch);
}

void skip_to_nextch() {
  if (chtyp != CH_SPACE) return;
  // Past a blank the reader is never in the first column, so of the comment
  // rules of nextch only ';' applies, and only to the character that ends the run.
  auto i = static_cast<uint32_t>(chpos) + 1;
  // Indentation and column alignment are runs of blanks: eight at a time.
  constexpr uint64_t blanks = 0x2020202020202020ull;
  for (uint64_t word; i + 8 <= inbuf_len && (std::memcpy(&word, inbuf + i, 8), word == blanks);) i += 8;
  while (i < inbuf_len && LEX_char_class[static_cast<unsigned char>(inbuf[i])] == CH_SPACE) ++i;
  chpos = static_cast<int32_t>(i) - 1;
  getch();
  if (chtyp != CH_EOL && ch == ';') LEX_drop_line();
}

void skip_to_space() {
  while (chtyp != CH_SPACE && chtyp != CH_EOL) nextch();
}

char curch() { return ch; }

char *strupper(char *s) {
  for (char *p = s; p && *p; ++p) *p = LEX_upper(*p);
  return s;
}

void strupper(std::string &s) {
  for (char &c : s) c = LEX_upper(c);
}

char *strlower(char *s) {
  for (char *p = s; p && *p; ++p) *p = static_cast<char>(std::tolower(static_cast<unsigned char>(*p)));
  return s;
}

char *strip_escape(char *s) {
  if (!s) return s;
  char *out = s;
  for (const char *in = s; *in; ++in)
    if (*in != '|') *out++ = *in;
  *out = '\0';
  return s;
}

char *LEX_strdup(const std::string &s) {
  auto *p = static_cast<char *>(safemalloc(s.size() + 1));
  std::memcpy(p, s.data(), s.size());
  p[s.size()] = '\0';
  return p;
}
