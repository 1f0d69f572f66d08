/* The media instructions against C models of their lanes. */
#include "check.h"

typedef uint32_t op3(uint32_t, uint32_t, uint32_t);
op3 med_rev, med_rev16, med_revsh, med_ssat, med_ssat_lsl, med_usat, med_usat_asr, med_ssat16, med_usat16, med_sxtb,
    med_sxth_ror, med_uxtb_ror, med_uxth, med_sxtab, med_uxtah_ror, med_uxtb16, med_pkhbt, med_pkhtb, med_uadd8,
    med_sadd16, med_usub16, med_qadd8, med_qsub16, med_uhadd8, med_shsub16, med_usad8, med_usada8, med_smuad,
    med_smusdx, med_smlad, med_smmul, med_smmulr, med_smmla, med_sel_after_usub8, med_ge_after_sadd16;
uint64_t med_umaal(uint32_t a, uint32_t b, uint32_t c, uint32_t d);
uint32_t med_ldrex_strex(uint32_t *p, uint32_t v);

static uint32_t ror(uint32_t v, unsigned n) { return n ? (v >> n) | (v << (32 - n)) : v; }
static int32_t bot(uint32_t v) { return (int16_t)(v & 0xffff); }
static int32_t top(uint32_t v) { return (int16_t)(v >> 16); }
static int64_t clamp(int64_t v, int64_t lo, int64_t hi) { return v < lo ? lo : v > hi ? hi : v; }
static int64_t ssat(int64_t v, unsigned n) { return clamp(v, -(1LL << (n - 1)), (1LL << (n - 1)) - 1); }
static int64_t usat(int64_t v, unsigned n) { return clamp(v, 0, (1LL << n) - 1); }

/* Lane k of width w bits, unsigned and signed, and a lane put back. */
static uint32_t ulane(uint32_t v, unsigned w, unsigned k) { return (v >> (k * w)) & ((1u << w) - 1); }
static int32_t slane(uint32_t v, unsigned w, unsigned k) {
  const uint32_t u = ulane(v, w, k);
  return (int32_t)(u ^ (1u << (w - 1))) - (int32_t)(1u << (w - 1));
}
static uint32_t put(uint32_t acc, unsigned w, unsigned k, int64_t lane) {
  return acc | (((uint32_t)lane & ((1u << w) - 1)) << (k * w));
}

static uint32_t c_rev(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return __builtin_bswap32(a); }
static uint32_t c_rev16(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return ((a & 0x00ff00ffu) << 8) | ((a >> 8) & 0x00ff00ffu);
}
static uint32_t c_revsh(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return (uint32_t)(int32_t)(int16_t)(((a & 0xff) << 8) | ((a >> 8) & 0xff));
}
static uint32_t c_ssat(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (uint32_t)ssat((int32_t)a, 9); }
static uint32_t c_ssat_lsl(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return (uint32_t)ssat((int32_t)(a << 4), 16);
}
static uint32_t c_usat(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (uint32_t)usat((int32_t)a, 8); }
static uint32_t c_usat_asr(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return (uint32_t)usat((int32_t)a >> 3, 31);
}
static uint32_t c_ssat16(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return put(put(0, 16, 0, ssat(bot(a), 5)), 16, 1, ssat(top(a), 5));
}
static uint32_t c_usat16(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return put(put(0, 16, 0, usat(bot(a), 7)), 16, 1, usat(top(a), 7));
}
static uint32_t c_sxtb(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (uint32_t)(int32_t)(int8_t)a; }
static uint32_t c_sxth_ror(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return (uint32_t)bot(ror(a, 8)); }
static uint32_t c_uxtb_ror(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return ror(a, 24) & 0xff; }
static uint32_t c_uxth(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a & 0xffff; }
static uint32_t c_sxtab(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a + (uint32_t)(int32_t)(int8_t)b; }
static uint32_t c_uxtah_ror(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a + (ror(b, 16) & 0xffff); }
static uint32_t c_uxtb16(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a & 0x00ff00ffu; }
static uint32_t c_pkhbt(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (a & 0xffff) | ((b << 8) & 0xffff0000u); }
static uint32_t c_pkhtb(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  return (a & 0xffff0000u) | ((uint32_t)((int32_t)b >> 12) & 0xffff);
}

/* Lane-wise operations: w is the lane width, f combines two lanes. */
static uint32_t lanes(uint32_t a, uint32_t b, unsigned w, int sign, int64_t (*f)(int64_t, int64_t)) {
  uint32_t r = 0;
  for (unsigned k = 0; k < 32 / w; ++k) {
    const int64_t x = sign ? (int64_t)slane(a, w, k) : (int64_t)ulane(a, w, k);
    const int64_t y = sign ? (int64_t)slane(b, w, k) : (int64_t)ulane(b, w, k);
    r = put(r, w, k, f(x, y));
  }
  return r;
}
static int64_t add(int64_t x, int64_t y) { return x + y; }
static int64_t sub(int64_t x, int64_t y) { return x - y; }
static int64_t sat_add8(int64_t x, int64_t y) { return ssat(x + y, 8); }
static int64_t sat_sub16(int64_t x, int64_t y) { return ssat(x - y, 16); }
static int64_t half_add(int64_t x, int64_t y) { return (x + y) >> 1; }
static int64_t half_sub(int64_t x, int64_t y) { return (x - y) >> 1; }

static uint32_t c_uadd8(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 8, 0, add); }
static uint32_t c_sadd16(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 16, 1, add); }
static uint32_t c_usub16(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 16, 0, sub); }
static uint32_t c_qadd8(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 8, 1, sat_add8); }
static uint32_t c_qsub16(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 16, 1, sat_sub16); }
static uint32_t c_uhadd8(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 8, 0, half_add); }
static uint32_t c_shsub16(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lanes(a, b, 16, 1, half_sub); }
static uint32_t c_usada8(uint32_t a, uint32_t b, uint32_t c) {
  uint32_t sum = c;
  for (unsigned k = 0; k < 4; ++k) {
    const int32_t d = (int32_t)ulane(a, 8, k) - (int32_t)ulane(b, 8, k);
    sum += (uint32_t)(d < 0 ? -d : d);
  }
  return sum;
}
static uint32_t c_usad8(uint32_t a, uint32_t b, uint32_t c) { (void)c; return c_usada8(a, b, 0); }
static uint32_t c_smuad(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  return (uint32_t)((int64_t)bot(a) * bot(b) + (int64_t)top(a) * top(b));
}
static uint32_t c_smusdx(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  return (uint32_t)((int64_t)bot(a) * top(b) - (int64_t)top(a) * bot(b));
}
static uint32_t c_smlad(uint32_t a, uint32_t b, uint32_t c) { return c_smuad(a, b, 0) + c; }
static uint32_t c_smmul(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  return (uint32_t)((uint64_t)((int64_t)(int32_t)a * (int32_t)b) >> 32);
}
static uint32_t c_smmulr(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  return (uint32_t)(((uint64_t)((int64_t)(int32_t)a * (int32_t)b) + 0x80000000u) >> 32);
}
static uint32_t c_smmla(uint32_t a, uint32_t b, uint32_t c) {
  return (uint32_t)((((uint64_t)c << 32) + (uint64_t)((int64_t)(int32_t)a * (int32_t)b)) >> 32);
}
static uint32_t c_sel_after_usub8(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  uint32_t r = 0;
  for (unsigned k = 0; k < 4; ++k) r = put(r, 8, k, ulane(a, 8, k) >= ulane(b, 8, k) ? ulane(a, 8, k) : ulane(b, 8, k));
  return r;
}
static uint32_t c_ge_after_sadd16(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  uint32_t ge = 0;
  if (bot(a) + bot(b) >= 0) ge |= 0x3;
  if (top(a) + top(b) >= 0) ge |= 0xc;
  return ge << 16;
}

static const struct {
  const char *name;
  op3 *got, *want;
} ops[] = {
    {"rev", med_rev, c_rev},
    {"rev16", med_rev16, c_rev16},
    {"revsh", med_revsh, c_revsh},
    {"ssat", med_ssat, c_ssat},
    {"ssat_lsl", med_ssat_lsl, c_ssat_lsl},
    {"usat", med_usat, c_usat},
    {"usat_asr", med_usat_asr, c_usat_asr},
    {"ssat16", med_ssat16, c_ssat16},
    {"usat16", med_usat16, c_usat16},
    {"sxtb", med_sxtb, c_sxtb},
    {"sxth_ror", med_sxth_ror, c_sxth_ror},
    {"uxtb_ror", med_uxtb_ror, c_uxtb_ror},
    {"uxth", med_uxth, c_uxth},
    {"sxtab", med_sxtab, c_sxtab},
    {"uxtah_ror", med_uxtah_ror, c_uxtah_ror},
    {"uxtb16", med_uxtb16, c_uxtb16},
    {"pkhbt", med_pkhbt, c_pkhbt},
    {"pkhtb", med_pkhtb, c_pkhtb},
    {"uadd8", med_uadd8, c_uadd8},
    {"sadd16", med_sadd16, c_sadd16},
    {"usub16", med_usub16, c_usub16},
    {"qadd8", med_qadd8, c_qadd8},
    {"qsub16", med_qsub16, c_qsub16},
    {"uhadd8", med_uhadd8, c_uhadd8},
    {"shsub16", med_shsub16, c_shsub16},
    {"usad8", med_usad8, c_usad8},
    {"usada8", med_usada8, c_usada8},
    {"smuad", med_smuad, c_smuad},
    {"smusdx", med_smusdx, c_smusdx},
    {"smlad", med_smlad, c_smlad},
    {"smmul", med_smmul, c_smmul},
    {"smmulr", med_smmulr, c_smmulr},
    {"smmla", med_smmla, c_smmla},
    {"sel_after_usub8", med_sel_after_usub8, c_sel_after_usub8},
    {"ge_after_sadd16", med_ge_after_sadd16, c_ge_after_sadd16},
};

int main(void) {
  char what[96];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j], c = check_values[(5 * i + j) % CHECK_NVALUES];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, b, c);
        check32(what, ops[k].got(a, b, c), ops[k].want(a, b, c));
      }
  for (unsigned i = 0; i < CHECK_NVALUES; ++i)
    for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
      const uint32_t a = check_values[i], b = check_values[j], c = ~a, d = check_values[(i + j) % CHECK_NVALUES];
      snprintf(what, sizeof what, "umaal(0x%x, 0x%x, 0x%x, 0x%x)", a, b, c, d);
      check64(what, med_umaal(a, b, c, d), (uint64_t)a * b + c + d);
    }
  uint32_t cell = 0x7ffffff0u;
  check32("ldrex_strex result", med_ldrex_strex(&cell, 0x20), 0x7ffffff0u);
  check32("ldrex_strex stored", cell, 0x80000010u);
  return check_done("media");
}
