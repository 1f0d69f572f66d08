// Text input and output with uniform line ends.
#include <cstdio>

#include "driver/driver.h"
#include "support/fhm.h"

namespace {
constexpr int CTRL_Z = 26;
}

int mygetc(FHM_FILE *f) {
  FILE *fp = f ? f->fp() : nullptr;
  if (!fp) return -1;
  for (;;) {
    int c = getc(fp);
    if (c == EOF) return -1;
    if (c == CTRL_Z) continue;
    if (c == '\r') {
      const int next = getc(fp);
      if (next != '\n' && next != EOF) ungetc(next, fp);
      return '\n';
    }
    return c;
  }
}

char *myfgets(char *buf, short n, FHM_FILE *f) {
  if (!buf || n <= 0) return nullptr;
  int i = 0;
  while (i < n - 1) {
    const int c = mygetc(f);
    if (c < 0) break;
    buf[i++] = static_cast<char>(c);
    if (c == '\n') break;
  }
  buf[i] = '\0';
  return i == 0 ? nullptr : buf;
}

int myfputs(const char *s, FHM_FILE *f) {
  FILE *fp = f ? f->fp() : nullptr;
  if (!fp) return -1;
  for (; s && *s; ++s) putc(*s, fp);
  return ferror(fp) ? -1 : 0;
}
