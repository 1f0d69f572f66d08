/* Halfword multiplies, saturation, CLZ and doublewords against C. */
#include <string.h>

#include "check.h"

typedef uint32_t op3(uint32_t, uint32_t, uint32_t);
op3 dsp_smulbb, dsp_smulbt, dsp_smultb, dsp_smultt, dsp_smulwb, dsp_smulwt, dsp_smlabb, dsp_smlatt, dsp_smlawb,
    dsp_qadd, dsp_qsub, dsp_qdadd, dsp_qdsub, dsp_q_after_qadd, dsp_clz;
uint64_t dsp_smlalbt(uint32_t a, uint32_t b, uint32_t c, uint32_t d);
uint32_t dsp_ldrd_strd(const uint32_t *p, uint32_t *out);

static int32_t bot(uint32_t v) { return (int16_t)(v & 0xffff); }
static int32_t top(uint32_t v) { return (int16_t)(v >> 16); }
static uint32_t sat(int64_t v) {
  return v > INT32_MAX ? (uint32_t)INT32_MAX : v < INT32_MIN ? (uint32_t)INT32_MIN : (uint32_t)v;
}
static int64_t s(uint32_t v) { return (int32_t)v; }

static uint32_t c_smulbb(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)(bot(a) * bot(b)); }
static uint32_t c_smulbt(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)(bot(a) * top(b)); }
static uint32_t c_smultb(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)(top(a) * bot(b)); }
static uint32_t c_smultt(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)(top(a) * top(b)); }
static uint32_t c_smulwb(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)((s(a) * bot(b)) >> 16); }
static uint32_t c_smulwt(uint32_t a, uint32_t b, uint32_t c) { (void)c; return (uint32_t)((s(a) * top(b)) >> 16); }
static uint32_t c_smlabb(uint32_t a, uint32_t b, uint32_t c) { return (uint32_t)(bot(a) * bot(b)) + c; }
static uint32_t c_smlatt(uint32_t a, uint32_t b, uint32_t c) { return (uint32_t)(top(a) * top(b)) + c; }
static uint32_t c_smlawb(uint32_t a, uint32_t b, uint32_t c) { return (uint32_t)((s(a) * bot(b)) >> 16) + c; }
static uint32_t c_qadd(uint32_t a, uint32_t b, uint32_t c) { (void)c; return sat(s(a) + s(b)); }
static uint32_t c_qsub(uint32_t a, uint32_t b, uint32_t c) { (void)c; return sat(s(a) - s(b)); }
static uint32_t c_qdadd(uint32_t a, uint32_t b, uint32_t c) { (void)c; return sat(s(a) + s(sat(2 * s(b)))); }
static uint32_t c_qdsub(uint32_t a, uint32_t b, uint32_t c) { (void)c; return sat(s(a) - s(sat(2 * s(b)))); }
static uint32_t c_q_after_qadd(uint32_t a, uint32_t b, uint32_t c) {
  (void)c;
  const int64_t sum = s(a) + s(b);
  return sum > INT32_MAX || sum < INT32_MIN ? 0x08000000u : 0;
}
static uint32_t c_clz(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  return a ? (uint32_t)__builtin_clz(a) : 32;
}

static const struct {
  const char *name;
  op3 *got, *want;
} ops[] = {
    {"smulbb", dsp_smulbb, c_smulbb}, {"smulbt", dsp_smulbt, c_smulbt}, {"smultb", dsp_smultb, c_smultb},
    {"smultt", dsp_smultt, c_smultt}, {"smulwb", dsp_smulwb, c_smulwb}, {"smulwt", dsp_smulwt, c_smulwt},
    {"smlabb", dsp_smlabb, c_smlabb}, {"smlatt", dsp_smlatt, c_smlatt}, {"smlawb", dsp_smlawb, c_smlawb},
    {"qadd", dsp_qadd, c_qadd},       {"qsub", dsp_qsub, c_qsub},       {"qdadd", dsp_qdadd, c_qdadd},
    {"qdsub", dsp_qdsub, c_qdsub},    {"q_after_qadd", dsp_q_after_qadd, c_q_after_qadd},
    {"clz", dsp_clz, c_clz},
};

int main(void) {
  char what[96];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j], c = check_values[(i + 2 * j) % CHECK_NVALUES];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, b, c);
        check32(what, ops[k].got(a, b, c), ops[k].want(a, b, c));
      }
  for (unsigned i = 0; i < CHECK_NVALUES; ++i)
    for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
      const uint32_t a = check_values[i], b = check_values[j], c = b ^ a, d = check_values[(i + j) % CHECK_NVALUES];
      snprintf(what, sizeof what, "smlalbt(0x%x, 0x%x, 0x%x, 0x%x)", a, b, c, d);
      check64(what, dsp_smlalbt(a, b, c, d), (uint64_t)(int64_t)(bot(a) * top(b)) + ((uint64_t)d << 32 | c));
    }

  uint32_t p[12] __attribute__((aligned(8)));
  uint32_t out[16] __attribute__((aligned(8)));
  for (unsigned k = 0; k < 12; ++k) p[k] = 0x10203040u * (k + 1);
  memset(out, 0xee, sizeof out);
  const uint32_t want[16] = {p[0], p[1], 0xeeeeeeeeu, 0xeeeeeeeeu, p[4], p[5], p[6], p[7],
                             p[6], p[7], p[6],        p[7],        p[6], p[7], p[10], p[11]};
  check32("ldrd_strd base", dsp_ldrd_strd(p, out), 8 * 4);
  check_bytes("ldrd_strd", out, want, sizeof out);
  return check_done("dsp");
}
