/* Loops against their C equivalents. */
#include <stdlib.h>
#include <string.h>

#include "check.h"

uint32_t lp_sum(const uint32_t *p, uint32_t n);
uint32_t lp_strlen(const char *s);
void *lp_memcpy(void *dst, const void *src, uint32_t n);
uint32_t lp_gcd(uint32_t a, uint32_t b);
uint32_t lp_popcount(uint32_t a);
uint32_t lp_fact(uint32_t n);
uint32_t lp_find(const uint32_t *p, uint32_t n, uint32_t v);
void lp_sort(int32_t *p, uint32_t n);

static int by_value(const void *x, const void *y) {
  const int32_t a = *(const int32_t *)x, b = *(const int32_t *)y;
  return (a > b) - (a < b);
}

int main(void) {
  char what[96];
  uint32_t sum = 0;
  for (uint32_t n = 0; n <= CHECK_NVALUES; ++n) {
    snprintf(what, sizeof what, "sum(%u)", n);
    check32(what, lp_sum(check_values, n), sum);
    if (n < CHECK_NVALUES) sum += check_values[n];
  }

  static const char *const texts[] = {"", "a", "zqasm", "a longer text of forty-one characters...."};
  for (unsigned k = 0; k < sizeof texts / sizeof texts[0]; ++k) {
    snprintf(what, sizeof what, "strlen(\"%s\")", texts[k]);
    check32(what, lp_strlen(texts[k]), (uint32_t)strlen(texts[k]));
  }

  unsigned char src[40], dst[40], want[40];
  for (unsigned k = 0; k < 40; ++k) src[k] = (unsigned char)(k * 7 + 1);
  for (uint32_t n = 0; n <= 33; n += 11) {
    memset(dst, 0xee, sizeof dst);
    memset(want, 0xee, sizeof want);
    memcpy(want, src, n);
    snprintf(what, sizeof what, "memcpy(%u) result", n);
    check32(what, (uint32_t)(uintptr_t)lp_memcpy(dst, src, n), (uint32_t)(uintptr_t)dst);
    snprintf(what, sizeof what, "memcpy(%u)", n);
    check_bytes(what, dst, want, sizeof dst);
  }

  static const uint32_t pairs[][3] = {{12, 18, 6}, {17, 5, 1}, {7, 7, 7}, {1000000, 37500, 12500}, {1, 1, 1}};
  for (unsigned k = 0; k < sizeof pairs / sizeof pairs[0]; ++k) {
    snprintf(what, sizeof what, "gcd(%u, %u)", pairs[k][0], pairs[k][1]);
    check32(what, lp_gcd(pairs[k][0], pairs[k][1]), pairs[k][2]);
  }
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    snprintf(what, sizeof what, "popcount(0x%x)", check_values[i]);
    check32(what, lp_popcount(check_values[i]), (uint32_t)__builtin_popcount(check_values[i]));
  }
  uint32_t fact = 1;
  for (uint32_t n = 0; n < 16; ++n) {
    if (n > 1) fact *= n;
    snprintf(what, sizeof what, "fact(%u)", n);
    check32(what, lp_fact(n), fact);
  }
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    snprintf(what, sizeof what, "find(0x%x)", check_values[i]);
    check32(what, lp_find(check_values, CHECK_NVALUES, check_values[i]), i);
  }
  check32("find(absent)", lp_find(check_values, CHECK_NVALUES, 0x5a5a5a5au), ~0u);
  check32("find(in nothing)", lp_find(check_values, 0, 0), ~0u);

  int32_t sorted[CHECK_NVALUES], by_c[CHECK_NVALUES];
  memcpy(sorted, check_values, sizeof sorted);
  memcpy(by_c, check_values, sizeof by_c);
  lp_sort(sorted, CHECK_NVALUES);
  qsort(by_c, CHECK_NVALUES, sizeof *by_c, by_value);
  check_bytes("sort", sorted, by_c, sizeof sorted);
  lp_sort(sorted, 1);
  lp_sort(sorted, 0);
  check_bytes("sort of one and of none", sorted, by_c, sizeof sorted);
  return check_done("loops");
}
