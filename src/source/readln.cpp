// Reading lines: the physical reader and the choice of the input to read from.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "source/copy.h"
#include "support/fhm.h"
#include "source/lexer.h"
#include "source/subsym.h"
#include "support/memory.h"

namespace {

// The line as the C library reads it, up to and with its '\n'.
char *raw_line = nullptr;
size_t raw_capacity = 0;

}  // namespace

// The text rules of mygetc on whole lines: Ctrl-Z is dropped, and "\r\n"
// or a lone '\r' ends the line. A lone '\r' inside the raw line puts the
// file back just behind it, so the next line starts there.
char *getline(FHM_FILE *f) {
  // The handle cannot be evicted while one line is read.
  FILE *fp = f ? f->fp() : nullptr;
  if (!fp) return nullptr;
  const ssize_t got = ::getdelim(&raw_line, &raw_capacity, '\n', fp);
  if (got <= 0) return nullptr;
  const auto len = static_cast<size_t>(got);
  size_t end = raw_line[len - 1] == '\n' ? len - 1 : len;  // the body, without '\n'
  bool ended = end < len;
  if (const void *cr = std::memchr(raw_line, '\r', end)) {
    const auto at = static_cast<size_t>(static_cast<const char *>(cr) - raw_line);
    const size_t resume = at + 1 < len && raw_line[at + 1] == '\n' ? at + 2 : at + 1;
    if (resume < len && fseeko(fp, -static_cast<off_t>(len - resume), SEEK_CUR) != 0)
      error_internal(1, curline, "can't reposition the source file after a carriage return");
    end = at;
    ended = true;
  }
  auto *buf = static_cast<char *>(safemalloc(end + 2));
  size_t n = 0;
  if (!std::memchr(raw_line, 26, end)) {
    std::memcpy(buf, raw_line, end);
    n = end;
  } else {
    for (size_t i = 0; i < end; ++i)
      if (raw_line[i] != 26) buf[n++] = raw_line[i];
  }
  if (n == 0 && !ended) {  // only Ctrl-Z before the end of the file
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
