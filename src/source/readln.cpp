// Reading lines: the physical reader and the choice of the input to read from.
#include <algorithm>
#include <array>
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

// The line being gathered; reused from line to line.
char *raw_line = nullptr;
size_t raw_capacity = 0;

// Files in which a lone '\r' was met: they are read on a byte at a time, so
// that no further line costs a seek back. One for each file that can be open
// at once, the oldest forgotten first; only speed depends on this.
std::array<const FHM_FILE *, COPY_MAX + 1> lone_cr_files{};
size_t lone_cr_count = 0;

bool has_lone_cr(const FHM_FILE *f) {
  const size_t n = std::min(lone_cr_count, lone_cr_files.size());
  return std::find(lone_cr_files.begin(), lone_cr_files.begin() + static_cast<std::ptrdiff_t>(n), f) !=
         lone_cr_files.begin() + static_cast<std::ptrdiff_t>(n);
}

void grow_raw(size_t need) {
  if (need <= raw_capacity) return;
  size_t cap = raw_capacity ? raw_capacity : 400;
  while (cap < need) cap *= 2;
  raw_line = static_cast<char *>(saferealloc(raw_line, cap));
  raw_capacity = cap;
}

// The rules of mygetc, a byte at a time: the stream never moves backwards.
// The length of the line without its end.
size_t read_bytewise(FILE *fp, bool *ended) {
  size_t n = 0;
  for (;;) {
    int c = getc_unlocked(fp);
    if (c == EOF) return n;
    if (c == '\n') break;
    if (c == '\r') {
      c = getc_unlocked(fp);
      if (c != '\n' && c != EOF) ungetc(c, fp);
      break;
    }
    if (c == 26) continue;
    if (n + 1 > raw_capacity) grow_raw(n + 1);
    raw_line[n++] = static_cast<char>(c);
  }
  *ended = true;
  return n;
}

// Up to the next '\n' in one call; a lone '\r' inside puts the stream back
// behind it and makes the rest of the file go byte by byte.
size_t read_by_lines(FHM_FILE *f, FILE *fp, bool *ended) {
  const ssize_t got = ::getdelim(&raw_line, &raw_capacity, '\n', fp);
  if (got <= 0) return 0;
  const auto len = static_cast<size_t>(got);
  size_t end = raw_line[len - 1] == '\n' ? len - 1 : len;
  *ended = end < len;
  if (const void *cr = std::memchr(raw_line, '\r', end)) {
    const auto at = static_cast<size_t>(static_cast<const char *>(cr) - raw_line);
    const size_t resume = at + 1 < len && raw_line[at + 1] == '\n' ? at + 2 : at + 1;
    if (resume < len) {
      if (fseeko(fp, -static_cast<off_t>(len - resume), SEEK_CUR) != 0) SRC_fail(f->name(), errno);
      lone_cr_files[lone_cr_count++ % lone_cr_files.size()] = f;
    }
    end = at;
    *ended = true;
  }
  if (!std::memchr(raw_line, 26, end)) return end;
  size_t n = 0;
  for (size_t i = 0; i < end; ++i)
    if (raw_line[i] != 26) raw_line[n++] = raw_line[i];
  return n;
}

}  // namespace

// The text rules of mygetc: Ctrl-Z is dropped, and "\r\n" or a lone '\r'
// ends the line. Zero bytes are kept; *length tells where the line ends.
char *getline(FHM_FILE *f, uint32_t *length) {
  if (!f) return nullptr;
  // The handle cannot be evicted while one line is read.
  FILE *fp = f->fp();
  if (!fp) SRC_fail(f->name(), errno);  // it could not come back where it stood
  bool ended = false;
  const size_t n = lone_cr_count && has_lone_cr(f) ? read_bytewise(fp, &ended) : read_by_lines(f, fp, &ended);
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
