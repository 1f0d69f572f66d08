/* IT blocks, conditional branches and CBZ/CBNZ loops in Thumb-2, against C. */
#include "check.h"

typedef uint32_t op3(uint32_t, uint32_t, uint32_t);
op3 it_max_s, it_min_u, it_abs, it_clamp, it_sign, it_sel, it_carry, it_overflow, it_branch;
uint32_t it_sum(const uint32_t *p, uint32_t n);
uint32_t it_count_zero(const uint8_t *p, uint32_t n);
uint32_t it_count_above(const uint32_t *p, uint32_t n, uint32_t b);

static uint32_t c_max_s(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (int32_t)a < (int32_t)b ? b : a; }
static uint32_t c_min_u(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a > b ? b : a; }
static uint32_t c_abs(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (int32_t)a < 0 ? 0u - a : a; }
static uint32_t c_clamp(uint32_t a, uint32_t b, uint32_t c) {
  int32_t r = (int32_t)a < (int32_t)b ? (int32_t)b : (int32_t)a;
  return (uint32_t)(r > (int32_t)c ? (int32_t)c : r);
}
static uint32_t c_sign(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  return (int32_t)a > (int32_t)b ? 1u : (int32_t)a < (int32_t)b ? 0xffffffffu : 0u;
}
static uint32_t c_sel(uint32_t a, uint32_t b, uint32_t c) { return a == b ? (a + c) << 1 : (a - c) >> 1; }
static uint32_t c_carry(uint32_t a, uint32_t b, uint32_t c) {
  return (uint64_t)a + b > 0xffffffffu ? c + 1 : (a + b) ^ c;
}
static uint32_t c_overflow(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  const int64_t s = (int64_t)(int32_t)a + (int32_t)b;
  if (s != (int32_t)(a + b)) return 1;
  return (int32_t)(a + b) < 0 ? 2 : 3;
}
static uint32_t c_branch(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (int32_t)a < (int32_t)b ? 10 : 20; }

static const struct {
  const char *name;
  op3 *got, *want;
} ops[] = {
    {"max_s", it_max_s, c_max_s}, {"min_u", it_min_u, c_min_u},    {"abs", it_abs, c_abs},
    {"clamp", it_clamp, c_clamp}, {"sign", it_sign, c_sign},       {"sel", it_sel, c_sel},
    {"carry", it_carry, c_carry}, {"overflow", it_overflow, c_overflow}, {"branch", it_branch, c_branch},
};

int main(void) {
  char what[64];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j], c = check_values[(i + j) % CHECK_NVALUES];
        /* clamp wants an ordered range */
        const uint32_t lo = (int32_t)b < (int32_t)c ? b : c, hi = (int32_t)b < (int32_t)c ? c : b;
        const uint32_t x = k == 3 ? lo : b, y = k == 3 ? hi : c;
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, x, y);
        check32(what, ops[k].got(a, x, y), ops[k].want(a, x, y));
        if (k == 5) check32("sel equal", it_sel(a, a, c), c_sel(a, a, c));
      }

  uint32_t total = 0;
  for (unsigned n = 0; n <= CHECK_NVALUES; ++n) {
    snprintf(what, sizeof what, "sum of %u", n);
    check32(what, it_sum(check_values, n), total);
    if (n < CHECK_NVALUES) total += check_values[n];
  }

  const uint8_t bytes[] = {0, 1, 0, 0, 7, 0, 255, 0, 3};
  for (unsigned n = 0; n <= sizeof bytes; ++n) {
    uint32_t zeros = 0;
    for (unsigned i = 0; i < n; ++i) zeros += bytes[i] == 0;
    snprintf(what, sizeof what, "zero bytes of %u", n);
    check32(what, it_count_zero(bytes, n), zeros);
  }

  for (unsigned k = 0; k < CHECK_NVALUES; ++k)
    for (unsigned n = 0; n <= CHECK_NVALUES; n += 4) {
      uint32_t above = 0;
      for (unsigned i = 0; i < n; ++i) above += (int32_t)check_values[i] > (int32_t)check_values[k];
      snprintf(what, sizeof what, "count_above(%u, 0x%x)", n, check_values[k]);
      check32(what, it_count_above(check_values, n, check_values[k]), above);
    }
  return check_done("t2_it");
}
