// Reading lines: the physical reader and the choice of the input to read from.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "source/copy.h"
#include "source/input_files.h"
#include "support/fhm.h"
#include "source/lexer.h"
#include "source/subsym.h"
#include "support/memory.h"

namespace {

// The line being gathered, without its line end; reused from line to line.
char *raw_line = nullptr;
size_t raw_capacity = 0;

void grow_raw(size_t need) {
  if (need <= raw_capacity) return;
  size_t cap = raw_capacity ? raw_capacity : 400;
  while (cap < need) cap *= 2;
  raw_line = static_cast<char *>(saferealloc(raw_line, cap));
  raw_capacity = cap;
}

}  // namespace

// The text rules of mygetc, a byte at a time from the stream's own buffer, so
// that every line end costs the same and the stream never moves backwards:
// Ctrl-Z is dropped, and "\r\n" or a lone '\r' ends the line. Zero bytes are
// kept; *length tells where the line really ends.
char *getline(FHM_FILE *f, uint32_t *length) {
  if (!f) return nullptr;
  // The handle cannot be evicted while one line is read.
  FILE *fp = f->fp();
  if (!fp) SRC_fail(f->name(), errno);  // it could not come back where it stood
  size_t n = 0;
  bool ended = false;
  for (;;) {
    int c = getc_unlocked(fp);
    if (c == EOF) break;
    if (c == '\n') {
      ended = true;
      break;
    }
    if (c == '\r') {
      c = getc_unlocked(fp);
      if (c != '\n' && c != EOF) ungetc(c, fp);
      ended = true;
      break;
    }
    if (c == 26) continue;
    if (n + 2 > raw_capacity) grow_raw(n + 2);
    raw_line[n++] = static_cast<char>(c);
  }
  // A read that fails must not pass for the end of the text.
  if (!ended && std::ferror(fp)) SRC_fail(f->name(), errno);
  if (n == 0 && !ended) return nullptr;  // nothing, or only Ctrl-Z, before the end
  auto *buf = static_cast<char *>(safemalloc(n + 2));
  if (n) std::memcpy(buf, raw_line, n);
  buf[n] = '\n';
  buf[n + 1] = '\0';
  if (length) *length = static_cast<uint32_t>(n + 1);
  sstr_end_pos = -1;
  ++inbuf_uid;
  return buf;
}

char *getline(FHM_FILE *f) { return getline(f, nullptr); }

char *LEX_readln() {
  for (;;) {
    char *line;
    uint32_t length = 0;
    if (copytop < 0 && cmdline_includes_pending()) {
      line = include_file_get_line();
      length = static_cast<uint32_t>(std::strlen(line));
    } else {
      line = getline(ASSY_SRC, &length);
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
    // A zero byte inside the line stays in it (the lexer reports it), so the
    // text behind it and the line end are still this line's.
    inbuf_len = length;
    return line;
  }
}
