#pragma once
// Pure text forming of messages, kept apart from printing so it can be tested alone.
#include <string>

// "file", LABEL at line N: [ID]  (or the label alone when there is no file name).
std::string DIAG_header(const char *file, int severity, unsigned line_number, bool has_line, const char *id,
                        int width);
// Header, a blank or a line break, and the body wrapped to width; ends in a line end.
std::string DIAG_screen_text(const std::string &header, const std::string &body, int width);
// Copy of the line with every printable non-blank turned into a blank and '^' at column.
std::string DIAG_caret_line(const char *text, int column);
const char *DIAG_label(int severity);
