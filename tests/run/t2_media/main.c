/* Bit fields, saturation, byte reversal, extension and multiplies in
   Thumb-2, against C. */
#include "check.h"

typedef uint32_t op3(uint32_t, uint32_t, uint32_t);
op3 tm_ubfx, tm_sbfx, tm_bfi, tm_bfc, tm_rbit, tm_clz, tm_ssat, tm_usat, tm_ssat_shift, tm_qadd_flag, tm_rev,
    tm_rev16, tm_revsh, tm_sxtb_add, tm_uxth_ror, tm_mls, tm_mla, tm_umull_hi;

static uint32_t field(uint32_t v, unsigned lsb, unsigned width) { return (v >> lsb) & ((1u << width) - 1); }
static uint32_t sext(uint32_t v, unsigned width) {
  const uint32_t sign = 1u << (width - 1);
  return ((v & ((sign << 1) - 1)) ^ sign) - sign;
}
static int32_t sat(int64_t v, int64_t lo, int64_t hi) { return (int32_t)(v < lo ? lo : v > hi ? hi : v); }

static uint32_t c_ubfx(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return field(a, 5, 12); }
static uint32_t c_sbfx(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return sext(field(a, 3, 7), 7); }
static uint32_t c_bfi(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  const uint32_t mask = 0x1ffu << 20;
  return (a & ~mask) | ((b << 20) & mask);
}
static uint32_t c_bfc(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a & ~(0xffffffu << 4); }
static uint32_t c_rbit(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  uint32_t r = 0;
  for (unsigned k = 0; k < 32; ++k) r |= ((a >> k) & 1u) << (31 - k);
  return r;
}
static uint32_t c_clz(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  uint32_t n = 0;
  while (n < 32 && !(a & (0x80000000u >> n))) ++n;
  return n;
}
static uint32_t c_ssat(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (uint32_t)sat((int32_t)a, -2048, 2047); }
static uint32_t c_usat(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (uint32_t)sat((int32_t)a, 0, 255); }
static uint32_t c_ssat_shift(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return (uint32_t)sat((int32_t)a >> 4, -32768, 32767);
}
static uint32_t c_qadd_flag(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  const int64_t s = (int64_t)(int32_t)a + (int32_t)b;
  return s > INT32_MAX || s < INT32_MIN;
}
static uint32_t c_rev(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return a >> 24 | (a >> 8 & 0xff00u) | (a << 8 & 0xff0000u) | a << 24;
}
static uint32_t c_rev16(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return (a >> 8 & 0x00ff00ffu) | (a << 8 & 0xff00ff00u);
}
static uint32_t c_revsh(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return sext((a >> 8 & 0xffu) | (a << 8 & 0xff00u), 16);
}
static uint32_t c_sxtb_add(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a + sext(b & 0xffu, 8); }
static uint32_t c_uxth_ror(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return field(a, 8, 16); }
static uint32_t c_mls(uint32_t a, uint32_t b, uint32_t c) { return c - a * b; }
static uint32_t c_mla(uint32_t a, uint32_t b, uint32_t c) { return a * b + c; }
static uint32_t c_umull_hi(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)(((uint64_t)a * b) >> 32); }

static const struct {
  const char *name;
  op3 *got, *want;
} ops[] = {
    {"ubfx", tm_ubfx, c_ubfx},         {"sbfx", tm_sbfx, c_sbfx},
    {"bfi", tm_bfi, c_bfi},            {"bfc", tm_bfc, c_bfc},
    {"rbit", tm_rbit, c_rbit},         {"clz", tm_clz, c_clz},
    {"ssat", tm_ssat, c_ssat},         {"usat", tm_usat, c_usat},
    {"ssat_shift", tm_ssat_shift, c_ssat_shift}, {"qadd_flag", tm_qadd_flag, c_qadd_flag},
    {"rev", tm_rev, c_rev},            {"rev16", tm_rev16, c_rev16},
    {"revsh", tm_revsh, c_revsh},      {"sxtb_add", tm_sxtb_add, c_sxtb_add},
    {"uxth_ror", tm_uxth_ror, c_uxth_ror}, {"mls", tm_mls, c_mls},
    {"mla", tm_mla, c_mla},            {"umull_hi", tm_umull_hi, c_umull_hi},
};

int main(void) {
  char what[64];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j], c = check_values[(i * 7 + j) % CHECK_NVALUES];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, b, c);
        check32(what, ops[k].got(a, b, c), ops[k].want(a, b, c));
      }
  return check_done("t2_media");
}
