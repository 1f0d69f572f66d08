// Message headers, wrapping and caret lines.
#include "driver/diag_format.h"

#include <cctype>
#include <cstring>

const char *DIAG_label(int severity) {
  switch (severity) {
    case 0: return "ERROR!  ";
    case 1: return "WARNING!";
    case 2: return "REMARK  ";
    case 3: return "INTERNAL ERROR!";
    case 4: return "ERROR!  ";
    default: return "FATAL ERROR";
  }
}

std::string DIAG_header(const char *file, int severity, unsigned line_number, bool has_line, const char *id,
                        int width) {
  std::string h;
  if (file && *file) {
    h += '"';
    h += file;
    h += "\", ";
  }
  h += DIAG_label(severity);
  if (has_line) {
    h += " at line ";
    h += line_number == 65535 ? std::string(">65534") : std::to_string(line_number);
    h += ':';
  } else if (severity == 3 || severity == 4) {
    h += ':';
  } else {
    h += " at EOF:";
  }
  if (static_cast<int>(h.size()) > width - 15) h += '\n';
  if (id && *id) {
    h += " [";
    h += id;
    h += ']';
  }
  return h;
}

std::string DIAG_screen_text(const std::string &header, const std::string &body, int width) {
  std::string out = header;
  size_t col;
  if (static_cast<int>(header.size()) + 1 > width - 15) {
    out += "\n         ";
    col = 11;
  } else {
    out += ' ';
    size_t nl = header.rfind('\n');
    col = (nl == std::string::npos ? header.size() : header.size() - nl - 1) + 1;
  }
  const size_t start = col;
  const size_t limit = width > 0 ? static_cast<size_t>(width) : 80;
  size_t i = 0;
  bool first_on_line = true;
  while (i < body.size()) {
    if (body[i] == ' ') {
      ++i;
      continue;
    }
    size_t end = body.find(' ', i);
    if (end == std::string::npos) end = body.size();
    std::string_view word(body.data() + i, end - i);
    size_t need = word.size() + (first_on_line ? 0 : 1);
    if (!first_on_line && col + need > limit) {
      out += '\n';
      out.append(start, ' ');
      col = start;
      first_on_line = true;
      need = word.size();
    }
    if (!first_on_line) {
      out += ' ';
      ++col;
    }
    // A word longer than the room is broken where it stands.
    while (col + word.size() > limit && limit > col) {
      size_t room = limit - col;
      out.append(word.substr(0, room));
      word.remove_prefix(room);
      out += '\n';
      out.append(start, ' ');
      col = start;
    }
    out.append(word);
    col += word.size();
    first_on_line = false;
    i = end;
  }
  out += '\n';
  return out;
}

std::string DIAG_caret_line(const char *text, int column) {
  std::string copy;
  for (const char *p = text; *p && *p != '\n'; ++p) {
    unsigned char c = static_cast<unsigned char>(*p);
    copy += (std::isprint(c) && !std::isspace(c)) ? ' ' : static_cast<char>(c);
  }
  if (column >= 0) {
    // Positions are counted with a run of tabs as one.
    size_t at = 0;
    int pos = 0;
    for (; at < copy.size(); ++at) {
      if (copy[at] == '\t' && at > 0 && copy[at - 1] == '\t') continue;
      if (pos == column) break;
      ++pos;
    }
    if (at >= copy.size()) {
      at += static_cast<size_t>(column - pos);
      copy.resize(at + 1, ' ');
    }
    copy[at] = '^';
  }
  copy += '\n';
  return copy;
}
