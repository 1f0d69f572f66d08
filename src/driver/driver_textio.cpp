// Text input and output with uniform line ends.
#include <cstdio>

#include "driver/driver.h"
#include "support/fhm.h"

namespace {

// One character of text: "\r\n" and a lone '\r' read as '\n', Ctrl-Z is
// dropped, -1 at the end.
int text_getc(FILE *fp) {
  for (;;) {
    const int c = getc_unlocked(fp);
    if (c == 26) continue;
    if (c != '\r') return c == EOF ? -1 : c;
    const int next = getc_unlocked(fp);
    if (next != '\n' && next != EOF) ungetc(next, fp);
    return '\n';
  }
}

}  // namespace

int mygetc(FHM_FILE *f) {
  FILE *fp = f ? f->fp() : nullptr;
  return fp ? text_getc(fp) : -1;
}

char *myfgets(char *buf, short n, FHM_FILE *f) {
  FILE *fp = f ? f->fp() : nullptr;
  if (!buf || n <= 0 || !fp) return nullptr;
  int i = 0;
  while (i < n - 1) {
    const int c = text_getc(fp);
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
  if (s) fputs(s, fp);
  return ferror(fp) ? -1 : 0;
}
