// Reading lines: the physical reader and the choice of the input to read from.
#include <cstdlib>
#include <cstring>

#include "driver/driver.h"
#include "source/copy.h"
#include "support/fhm.h"
#include "source/lexer.h"
#include "source/subsym.h"
#include "support/memory.h"

namespace {
constexpr size_t LINE_STEP = 400;
}

char *getline(FHM_FILE *f) {
  // The handle cannot be evicted while one line is read.
  FILE *fp = f ? f->fp() : nullptr;
  if (!fp) return nullptr;
  size_t cap = LINE_STEP;
  size_t n = 0;
  auto *buf = static_cast<char *>(safemalloc(cap));
  bool any = false;
  for (int c; (c = text_getc(fp)) >= 0;) {
    any = true;
    if (c == '\n') break;
    if (n + 2 >= cap) {
      cap += LINE_STEP;
      buf = static_cast<char *>(saferealloc(buf, cap));
    }
    buf[n++] = static_cast<char>(c);
  }
  if (!any) {
    std::free(buf);
    return nullptr;
  }
  buf[n++] = '\n';
  buf[n] = '\0';
  sstr_end_pos = -1;
  ++inbuf_uid;
  return buf;
}

char *LEX_readln() {
  for (;;) {
    char *line;
    if (copytop < 0 && cmdline_includes_pending()) {
      line = include_file_get_line();
    } else {
      line = getline(ASSY_SRC);
      if (!line) {
        endfile = 1;
        if (pop_copy()) continue;  // the parent goes on
        inbuf = nullptr;
        inbuf_len = 0;
        return nullptr;
      }
    }
    endfile = 0;
    if (line[0] == '\0') {  // begins with a zero byte
      std::free(line);
      continue;
    }
    inbuf = line;
    inbuf_len = static_cast<uint32_t>(std::strlen(line));
    return line;
  }
}
