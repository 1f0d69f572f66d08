// INTERIM: weak stand-ins so that the number-system tests link before the
// message functions and the lexer land in zq_asm. The real definitions win.
#include <cstdarg>
#include <cstdint>
#include <cstdio>

struct linebuf;

[[gnu::weak]] uint32_t num_errors = 0;

[[gnu::weak]] void error(linebuf *, const char *id, const char *fmt, ...) {
  std::fprintf(stderr, "[%s] ", id);
  va_list ap;
  va_start(ap, fmt);
  std::vfprintf(stderr, fmt, ap);
  va_end(ap);
  std::fputc('\n', stderr);
  ++num_errors;
}
