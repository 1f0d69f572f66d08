#pragma once
// Pieces of the lexer shared between its files.
#include <cstdint>
#include <string>

#include "driver/records.h"

// Class of one character as getch sees it.
uint32_t LEX_classify(char c);
// Puts the reader on index pos (getch rules).
void LEX_setpos(int32_t pos);
// Character at index pos of inbuf, or 0 outside it.
char LEX_peek(int32_t pos);
// Drops the rest of the line: the next token is TK_EOL.
void LEX_drop_line();
// A fresh zeroed token of that kind at the given column of curline.
token *LEX_newtkn(uint16_t kind, int32_t column);
// A malloc'd copy.
char *LEX_strdup(const std::string &s);
// The identifier rule; ch is its first character (a letter, '_', '$' or the
// '.' before one). Null when the name was rewritten into the line and has to
// be read again.
token *LEX_ident(int32_t column);
// The character constant; ch is the opening quote.
void LEX_ccon(token *tk);
