/* What every driver under tests/run shares: each result of an assembled
   function is compared with the value C computes, the first mismatches are
   printed, and main fails when there was any. */
#ifndef ZQ_RUN_CHECK_H
#define ZQ_RUN_CHECK_H

#include <stdint.h>
#include <stdio.h>

static int check_failures;
static int check_count;
enum { CHECK_SHOWN = 20 }; /* mismatches printed; the rest are only counted */

static inline int check_show(void) { return ++check_failures <= CHECK_SHOWN; }

static inline void check32(const char *what, uint32_t got, uint32_t want) {
  ++check_count;
  if (got == want || !check_show()) return;
  printf("MISMATCH %s: got 0x%08x, want 0x%08x\n", what, (unsigned)got, (unsigned)want);
}

static inline void check64(const char *what, uint64_t got, uint64_t want) {
  ++check_count;
  if (got == want || !check_show()) return;
  printf("MISMATCH %s: got 0x%016llx, want 0x%016llx\n", what, (unsigned long long)got,
         (unsigned long long)want);
}

/* Compares two byte ranges, naming the first byte that differs. */
static inline void check_bytes(const char *what, const void *got, const void *want, unsigned n) {
  const unsigned char *g = (const unsigned char *)got, *w = (const unsigned char *)want;
  ++check_count;
  for (unsigned i = 0; i < n; ++i)
    if (g[i] != w[i]) {
      if (check_show()) printf("MISMATCH %s: byte %u is 0x%02x, want 0x%02x\n", what, i, g[i], w[i]);
      return;
    }
}

/* The end of main: a run that compared nothing is a failure too. */
static inline int check_done(const char *program) {
  if (check_count == 0) {
    printf("%s: nothing was compared\n", program);
    return 1;
  }
  printf("%s: %d of %d checks passed\n", program, check_count - check_failures, check_count);
  return check_failures != 0;
}

/* A few operands worth trying on every operation: zero, one, signs, the edges
   of the signed and unsigned ranges, and patterns that expose a wrong shift. */
static const uint32_t check_values[] = {
    0u,          1u,          2u,          3u,          7u,          31u,         32u,
    0x80u,       0xffu,       0x7fffu,     0x8000u,     0xffffu,     0x12345678u, 0x87654321u,
    0x7fffffffu, 0x80000000u, 0x80000001u, 0xfffffffeu, 0xffffffffu, 0xdeadbeefu, 0x0f0f0f0fu,
};
enum { CHECK_NVALUES = sizeof check_values / sizeof check_values[0] };

#endif
