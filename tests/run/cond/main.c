/* Conditions and flags against a C model of NZCV. */
#include <string.h>

#include "check.h"

typedef uint32_t op2(uint32_t, uint32_t);
op2 cond_cmp, cond_cmn, cond_tst, cond_teq, cond_adds, cond_subs_imm, cond_rsbs_shift, cond_ands_rot,
    cond_ands_plain, cond_flags, flags_adds, flags_subs_sbcs, flags_msr_imm, flags_roundtrip;
uint32_t cond_clamp(uint32_t a, uint32_t lo, uint32_t hi);
uint32_t cond_abs(uint32_t a);
uint32_t cond_sign(uint32_t a);
uint32_t cond_pick(const uint32_t *p, uint32_t sel);
void cond_store(uint32_t *p, uint32_t v);

struct nzcv {
  unsigned n, z, c, v;
};

static struct nzcv of_result(uint32_t r, unsigned c, unsigned v) {
  struct nzcv f = {r >> 31, r == 0, c, v};
  return f;
}
static struct nzcv of_sub(uint32_t a, uint32_t b) {
  const uint32_t r = a - b;
  return of_result(r, a >= b, ((a ^ b) & (a ^ r)) >> 31);
}
static struct nzcv of_add(uint32_t a, uint32_t b) {
  const uint32_t r = a + b;
  return of_result(r, r < a, (~(a ^ b) & (a ^ r)) >> 31);
}
static uint32_t as_bits(struct nzcv f) { return f.n << 31 | f.z << 30 | f.c << 29 | f.v << 28; }

/* The bits the assembled functions set: one per condition, bit 14 always. */
static uint32_t mask_of(struct nzcv f) {
  const unsigned ge = f.n == f.v;
  const unsigned held[14] = {f.z,         !f.z,       f.c,  !f.c, f.n,        !f.n,         f.v,
                             !f.v,        f.c && !f.z, !f.c || f.z, ge, !ge, !f.z && ge, f.z || !ge};
  uint32_t m = 1u << 14;
  for (unsigned i = 0; i < 14; ++i) m |= (uint32_t)held[i] << i;
  return m;
}

static uint32_t asr(uint32_t v, unsigned n) { return n >= 32 ? ((v >> 31) ? ~0u : 0u) : (uint32_t)((int32_t)v >> n); }

static uint32_t c_cmp(uint32_t a, uint32_t b) { return mask_of(of_sub(a, b)); }
static uint32_t c_cmn(uint32_t a, uint32_t b) { return mask_of(of_add(a, b)); }
static uint32_t c_tst(uint32_t a, uint32_t b) { return mask_of(of_result(a & (b << 1), b >> 31, 0)); }
static uint32_t c_teq(uint32_t a, uint32_t b) { return mask_of(of_result(a ^ (b >> 1), b & 1, 0)); }
static uint32_t c_subs_imm(uint32_t a, uint32_t b) { (void)b; return mask_of(of_sub(a, 0x80000000u)); }
static uint32_t c_rsbs_shift(uint32_t a, uint32_t b) { return mask_of(of_sub(asr(b, b & 0xff), a)); }
static uint32_t c_ands_rot(uint32_t a, uint32_t b) { (void)b; return mask_of(of_result(a & 0x3FCu, 0, 0)); }
static uint32_t c_ands_plain(uint32_t a, uint32_t b) { (void)b; return mask_of(of_result(a & 0xFFu, 1, 0)); }
static uint32_t c_flags(uint32_t a, uint32_t b) {
  (void)b;
  const struct nzcv f = {a >> 31, (a >> 30) & 1, (a >> 29) & 1, (a >> 28) & 1};
  return mask_of(f);
}
static uint32_t c_flags_adds(uint32_t a, uint32_t b) { return as_bits(of_add(a, b)); }
/* b:a - a:b, the flags of the high word's subtract with borrow. */
static uint32_t c_flags_subs_sbcs(uint32_t a, uint32_t b) {
  const uint64_t x = (uint64_t)b << 32 | a, y = (uint64_t)a << 32 | b;
  const uint32_t hi = (uint32_t)((x - y) >> 32);
  return as_bits(of_result(hi, x >= y, ((b ^ a) & (b ^ hi)) >> 31));
}
static uint32_t c_flags_msr_imm(uint32_t a, uint32_t b) { (void)b; return a + 0xA0000000u; }
static uint32_t c_flags_roundtrip(uint32_t a, uint32_t b) { (void)b; return a & 0xF0000000u; }

static const struct {
  const char *name;
  op2 *got, *want;
} ops[] = {
    {"cmp", cond_cmp, c_cmp},
    {"cmn", cond_cmn, c_cmn},
    {"tst", cond_tst, c_tst},
    {"teq", cond_teq, c_teq},
    {"adds", cond_adds, c_cmn},
    {"subs_imm", cond_subs_imm, c_subs_imm},
    {"rsbs_shift", cond_rsbs_shift, c_rsbs_shift},
    {"ands_rot", cond_ands_rot, c_ands_rot},
    {"ands_plain", cond_ands_plain, c_ands_plain},
    {"flags", cond_flags, c_flags},
    {"flags_adds", flags_adds, c_flags_adds},
    {"flags_subs_sbcs", flags_subs_sbcs, c_flags_subs_sbcs},
    {"flags_msr_imm", flags_msr_imm, c_flags_msr_imm},
    {"flags_roundtrip", flags_roundtrip, c_flags_roundtrip},
};

int main(void) {
  char what[96];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k) {
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x)", ops[k].name, a, b);
        check32(what, ops[k].got(a, b), ops[k].want(a, b));
      }
    /* Every combination of the four flags, with noise below them. */
    for (uint32_t f = 0; f < 16; ++f) {
      const uint32_t a = f << 28 | 0x0a5a5a5u;
      snprintf(what, sizeof what, "%s(0x%x, 0)", ops[k].name, a);
      check32(what, ops[k].got(a, 0), ops[k].want(a, 0));
    }
  }

  const uint32_t table[3] = {0x11111111u, 0x22222222u, 0x33333333u};
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    const uint32_t a = check_values[i];
    const int32_t s = (int32_t)a;
    snprintf(what, sizeof what, "abs(0x%x)", a);
    check32(what, cond_abs(a), s < 0 ? 0u - a : a);
    snprintf(what, sizeof what, "sign(0x%x)", a);
    check32(what, cond_sign(a), s > 0 ? 1u : s < 0 ? ~0u : 0u);
    snprintf(what, sizeof what, "pick(0x%x)", a);
    check32(what, cond_pick(table, a), table[a > 100 ? 2 : a & 1]);
    for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
      const uint32_t lo = check_values[j], hi = check_values[(j + 5) % CHECK_NVALUES];
      const uint32_t want = s < (int32_t)lo ? lo : s > (int32_t)hi ? hi : a;
      snprintf(what, sizeof what, "clamp(0x%x, 0x%x, 0x%x)", a, lo, hi);
      check32(what, cond_clamp(a, lo, hi), want);
    }

    uint32_t got[4] = {0xeeeeeeeeu, 0xeeeeeeeeu, 0xeeeeeeeeu, 0xeeeeeeeeu};
    uint32_t want[4];
    memcpy(want, got, sizeof want);
    if (s < 0) want[0] = a;
    if (s == 0) want[1] = a;
    if (s > 0) want[2] = a;
    if (a & 1) memcpy((unsigned char *)want + 12, &a, 1);
    cond_store(got, a);
    snprintf(what, sizeof what, "store(0x%x)", a);
    check_bytes(what, got, want, sizeof got);
  }
  return check_done("cond");
}
