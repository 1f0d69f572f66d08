#pragma once
// Source lines, characters and tokens.
//
// Ownership: token strings (TK_IDENT, TK_SCON, TK_OPCODE_REST) are held in
// the token when short and allocated with malloc otherwise; the simul_fval of
// a TK_FCON is allocated with malloc. LEX_droptkn releases a token together
// with them, LEX_release_value only what it owns.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "driver/records.h"

class FHM_FILE;

// ---- Character state -------------------------------------------------------

// Classes of chtyp.
enum : uint32_t {
  CH_SPACE = 0,
  CH_EOL = 1,
  CH_ALPHA = 2,  // letters, '_' and '$'
  CH_DIGIT = 4,
  CH_OTHER = 8,
};

extern char *inbuf;          // the line being read, with its line feed
extern uint32_t inbuf_len;
extern uint32_t inbuf_uid;   // one serial number per physical line read
extern char ch;              // current character
extern uint32_t chtyp;       // class of ch
extern int32_t chpos;        // index of ch in inbuf; -1 before the first

// ---- Token state -------------------------------------------------------------

extern token *curtk;         // the current token
extern token *availtkn;      // pushed-back tokens, newest first
extern linebuf *curline;     // line of the last token read
extern uint32_t LEX_live_tokens;

// ---- Lines ---------------------------------------------------------------------

// Reads one line (any length) through mygetc; a fresh malloc'd text that ends
// in one line feed, or null at the end of the file with nothing read.
char *getline(FHM_FILE *f);
// The same; *length gets the length with the line feed (zero bytes count).
char *getline(FHM_FILE *f, uint32_t *length);
// Next input line: command-line includes, then ASSY_SRC, popping finished
// copied files. Null at the end of all input (endfile is then set).
char *LEX_readln();
// Forget the rest of the current line: the next token request reads a new one.
void LEX_reset();
// Puts a changed line in inbuf (the lexer does not own the text).
void LEX_inbuf_update(char *text, short length);

// ---- Character layer --------------------------------------------------------------

// Class of each character, indexed by its unsigned value.
extern const std::array<uint8_t, 256> LEX_char_class;

// Next character, no comment rules. Inline: the reader calls it per character.
inline void getch() {
  const auto len = static_cast<int32_t>(inbuf ? inbuf_len : 0);
  if (chpos < len) ++chpos;
  if (chpos >= len) {
    ch = ' ';
    chtyp = CH_EOL;
    return;
  }
  ch = inbuf[chpos];
  chtyp = LEX_char_class[static_cast<unsigned char>(ch)];
}
void nextch();           // next character; ';' and a first-column '*' end the line
void ungetch();          // one character back
void skip_to_nextch();   // over white space, with the rules of nextch
void skip_to_space();    // over everything up to white space or the line end
char curch();
// A token of a plain operand, read from the line without a token record:
// its kind as LEX_tkn would give it, and where it stands in inbuf.
struct plain_token {
  uint16_t kind;
  uint16_t start;
  uint16_t length;
};
// From the current character to the next comma, comment or line end: the
// tokens that the lexer would make there, when each is plain (a name, a
// decimal, hexadecimal, octal or binary integer without suffix letters, a
// character constant 'c', a parenthesis or an operator of expressions; with
// `floats`, decimal floating constants too) and no token is pushed back.
// *separator gets the index of the comma, the ';' or the line feed. Nothing
// is consumed; false when the text holds anything else.
bool LEX_plain_operand(bool floats, std::vector<plain_token> *out, uint32_t *separator);
// Puts the reader on index pos of the line, which must hold a character.
void LEX_resume_at(uint32_t pos);
int curchpos();

// ---- Tokens -------------------------------------------------------------------------

token *LEX_tkn();                // the next token straight from the line
token *get_a_token();            // pushed-back token, or LEX_tkn with substitution
token *next_token();             // drops curtk, then curtk = get_a_token()
token *get_token();              // curtk = get_a_token(), the old curtk is the caller's
void unget_token(token **tk);    // pushes *tk in front of availtkn and nulls *tk
void LEX_droptkn(token *tk);     // null is accepted
token *copy_curtk_for_unget();   // a deep copy of curtk
bool LEX_eol();                  // curtk is the end of the line (or there is none)
// The file name operand of .copy/.include/.mlib: curtk becomes a TK_SCON
// holding it (quoted, or raw text up to white space) and is returned.
token *LEX_getfname();
// At a token other than TK_EOL: "E0003" "Unexpected trailing operand(s)" and
// curtk moves on to the end of the line.
void skip_to_expected_eol(linebuf *line);
// Moves curtk on to the end of the line without a message.
void LEX_skip_to_eol();

// ---- Constants and strings ----------------------------------------------------------

// Reads a number starting at ch (a digit) into tk: TK_ICON, or TK_FCON.
void LEX_const(token *tk);
// Reads a string whose opening quote is the current character into *out.
void LEX_string(char quote, std::string *out);
// Gives a string token (TK_IDENT, TK_SCON, TK_OPCODE_REST) its text: a
// short one is held in the token itself, a longer one on the heap.
void LEX_set_text(token *tk, std::string_view text);
// Releases what a token owns (its text or floating value) and clears it.
void LEX_release_value(token *tk);

// Forced substitution of :name: forms on a fresh line.
void LEX_prescan();

// ---- String utilities (in place) --------------------------------------------------------

// The upper case and the digits of the "C" locale, in which the tool runs.
constexpr char LEX_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr bool LEX_is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool LEX_is_xdigit(char c) { return LEX_is_digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

char *strupper(char *s);
char *strlower(char *s);
char *strip_escape(char *s);   // removes every '|'
void strupper(std::string &s);
