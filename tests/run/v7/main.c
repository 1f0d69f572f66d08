/* Bit fields, RBIT, MOVW/MOVT and MLS against C. */
#include "check.h"

typedef uint32_t op3(uint32_t, uint32_t, uint32_t);
op3 v7_ubfx, v7_ubfx_top, v7_sbfx, v7_sbfx_one, v7_bfi, v7_bfi_full, v7_bfc, v7_rbit, v7_movw_movt, v7_movw_add,
    v7_mls;

static uint32_t field(uint32_t v, unsigned lsb, unsigned width) {
  return width == 32 ? v : (v >> lsb) & ((1u << width) - 1);
}
static uint32_t sfield(uint32_t v, unsigned lsb, unsigned width) {
  const uint32_t u = field(v, lsb, width), sign = 1u << (width - 1);
  return (u ^ sign) - sign;
}
static uint32_t insert(uint32_t into, uint32_t from, unsigned lsb, unsigned width) {
  const uint32_t mask = (width == 32 ? ~0u : (1u << width) - 1) << lsb;
  return (into & ~mask) | ((from << lsb) & mask);
}

static uint32_t c_ubfx(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return field(a, 5, 12); }
static uint32_t c_ubfx_top(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a >> 31; }
static uint32_t c_sbfx(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return sfield(a, 3, 7); }
static uint32_t c_sbfx_one(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return sfield(a, 0, 1); }
static uint32_t c_bfi(uint32_t a, uint32_t b, uint32_t c) { (void)c; return insert(a, b, 20, 9); }
static uint32_t c_bfi_full(uint32_t a, uint32_t b, uint32_t c) { (void)c; return insert(a, b, 0, 32); }
static uint32_t c_bfc(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return insert(a, 0, 4, 24); }
static uint32_t c_rbit(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  uint32_t r = 0;
  for (unsigned k = 0; k < 32; ++k) r |= ((a >> k) & 1u) << (31 - k);
  return r;
}
static uint32_t c_movw_movt(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a ^ 0xBEEF1234u; }
static uint32_t c_movw_add(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a + 0xFFFFu; }
static uint32_t c_mls(uint32_t a, uint32_t b, uint32_t c) { return c - a * b; }

static const struct {
  const char *name;
  op3 *got, *want;
} ops[] = {
    {"ubfx", v7_ubfx, c_ubfx},
    {"ubfx_top", v7_ubfx_top, c_ubfx_top},
    {"sbfx", v7_sbfx, c_sbfx},
    {"sbfx_one", v7_sbfx_one, c_sbfx_one},
    {"bfi", v7_bfi, c_bfi},
    {"bfi_full", v7_bfi_full, c_bfi_full},
    {"bfc", v7_bfc, c_bfc},
    {"rbit", v7_rbit, c_rbit},
    {"movw_movt", v7_movw_movt, c_movw_movt},
    {"movw_add", v7_movw_add, c_movw_add},
    {"mls", v7_mls, c_mls},
};

int main(void) {
  char what[96];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j], c = check_values[(3 * i + j) % CHECK_NVALUES];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, b, c);
        check32(what, ops[k].got(a, b, c), ops[k].want(a, b, c));
      }
  return check_done("v7");
}
