// Files named by --copy_file and --include_file, read as made .copy/.include lines.
#include <string>

#include "driver/driver.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/lexer_internal.h"
#include "source/subsym.h"

namespace {
int16_t saved_count = 0;
int16_t next_row = 0;
uint32_t made_uid = 0;  // inbuf_uid of the last made line; 0 for none
}  // namespace

void cmdline_include_init() {
  if (pass1) saved_count = cmd_line_includes_cnt;
  else cmd_line_includes_cnt = saved_count;
  next_row = 0;
}

bool cmdline_includes_pending() { return next_row < cmd_line_includes_cnt; }

char *include_file_get_line() {
  if (!cmdline_includes_pending()) return nullptr;
  const cmd_line_include &row = cmd_line_includes[next_row++];
  const char *directive = row.is_include ? ".include" : ".copy";
  std::string text = "\t";
  text += directive;
  text += "\t\"";
  // A quote in the name is doubled, as the string reader wants it.
  for (const char *p = row.name ? row.name : ""; *p; ++p) {
    if (*p == '"') text += '"';
    text += *p;
  }
  text += "\" ; ";
  text += directive;
  text += " from the command line\n";
  f_lnum = -1;  // made lines do not count in the numbering of the source
  sstr_end_pos = -1;
  made_uid = ++inbuf_uid;
  return LEX_strdup(text);
}

bool cmdline_include_current() { return made_uid != 0 && made_uid == inbuf_uid; }
