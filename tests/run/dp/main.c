/* Data processing results against the same operations in C. */
#include "check.h"

typedef uint32_t op3(uint32_t, uint32_t, uint32_t);
typedef uint64_t op64(uint32_t, uint32_t, uint32_t, uint32_t);

op3 dp_imm_chain, dp_mvn, dp_mvn_imm, dp_lsl_imm, dp_lsr_imm, dp_asr_imm, dp_ror_imm, dp_lsr32, dp_asr32,
    dp_rrx, dp_lsl_reg, dp_lsr_reg, dp_asr_reg, dp_ror_reg, dp_rsb_shift, dp_bic_shift;
uint32_t *dp_mov_shifts(uint32_t a, uint32_t b, uint32_t *out);
op64 dp_add64, dp_sub64, dp_neg64, dp_rsc64;

static uint32_t asr(uint32_t v, unsigned n) { return n >= 32 ? ((v >> 31) ? ~0u : 0u) : (uint32_t)((int32_t)v >> n); }
static uint32_t ror(uint32_t v, unsigned n) { n &= 31; return n ? (v >> n) | (v << (32 - n)) : v; }
/* Register-specified shifts use the low byte of the register. */
static uint32_t lsl_r(uint32_t v, uint32_t s) { s &= 0xff; return s >= 32 ? 0 : v << s; }
static uint32_t lsr_r(uint32_t v, uint32_t s) { s &= 0xff; return s >= 32 ? 0 : v >> s; }

static uint32_t c_imm_chain(uint32_t a, uint32_t b, uint32_t c) {
  (void)b, (void)c;
  uint32_t x = (((a + 0xFF000000u) ^ 0xF000000Fu) & ~0x00AB0000u) | 0x104u;
  return (0x3FCu - x - 1u) ^ 0xC0000001u;
}
static uint32_t c_mvn(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return ~a; }
static uint32_t c_mvn_imm(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a + ~0xFF0u; }
static uint32_t c_lsl_imm(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a + (b << 3); }
static uint32_t c_lsr_imm(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a - (b >> 7); }
static uint32_t c_asr_imm(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a ^ asr(b, 5); }
static uint32_t c_ror_imm(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a | ror(b, 11); }
static uint32_t c_lsr32(uint32_t a, uint32_t b, uint32_t c) { (void)b, (void)c; return a; }
static uint32_t c_asr32(uint32_t a, uint32_t b, uint32_t c) { (void)c; return a + asr(b, 32); }
static uint32_t c_rrx(uint32_t a, uint32_t b, uint32_t c) { (void)a; return ((c & 1u) << 31) | (b >> 1); }
static uint32_t c_lsl_reg(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lsl_r(a, b); }
static uint32_t c_lsr_reg(uint32_t a, uint32_t b, uint32_t c) { (void)c; return lsr_r(a, b); }
static uint32_t c_asr_reg(uint32_t a, uint32_t b, uint32_t c) { (void)c; return asr(a, b & 0xff); }
static uint32_t c_ror_reg(uint32_t a, uint32_t b, uint32_t c) { (void)c; return ror(a, b & 0xff); }
static uint32_t c_rsb_shift(uint32_t a, uint32_t b, uint32_t c) {
  uint32_t x = (b << 4) - a;
  return x - (c << (x & 7));
}
static uint32_t c_bic_shift(uint32_t a, uint32_t b, uint32_t c) {
  return ((a & ~asr(b, 3)) | ror(c, 28)) ^ lsr_r(b, c);
}

static const struct {
  const char *name;
  op3 *got, *want;
} ops[] = {
    {"imm_chain", dp_imm_chain, c_imm_chain}, {"mvn", dp_mvn, c_mvn},
    {"mvn_imm", dp_mvn_imm, c_mvn_imm},       {"lsl_imm", dp_lsl_imm, c_lsl_imm},
    {"lsr_imm", dp_lsr_imm, c_lsr_imm},       {"asr_imm", dp_asr_imm, c_asr_imm},
    {"ror_imm", dp_ror_imm, c_ror_imm},       {"lsr32", dp_lsr32, c_lsr32},
    {"asr32", dp_asr32, c_asr32},             {"rrx", dp_rrx, c_rrx},
    {"lsl_reg", dp_lsl_reg, c_lsl_reg},       {"lsr_reg", dp_lsr_reg, c_lsr_reg},
    {"asr_reg", dp_asr_reg, c_asr_reg},       {"ror_reg", dp_ror_reg, c_ror_reg},
    {"rsb_shift", dp_rsb_shift, c_rsb_shift}, {"bic_shift", dp_bic_shift, c_bic_shift},
};

static uint64_t c_add64(uint32_t al, uint32_t ah, uint32_t bl, uint32_t bh) {
  return (((uint64_t)ah << 32) | al) + (((uint64_t)bh << 32) | bl);
}
static uint64_t c_sub64(uint32_t al, uint32_t ah, uint32_t bl, uint32_t bh) {
  return (((uint64_t)ah << 32) | al) - (((uint64_t)bh << 32) | bl);
}
static uint64_t c_neg64(uint32_t al, uint32_t ah, uint32_t bl, uint32_t bh) {
  (void)bl, (void)bh;
  return 0 - (((uint64_t)ah << 32) | al);
}
static uint64_t c_rsc64(uint32_t al, uint32_t ah, uint32_t bl, uint32_t bh) { return c_sub64(bl, bh, al, ah); }

static const struct {
  const char *name;
  op64 *got, *want;
} ops64[] = {
    {"add64", dp_add64, c_add64},
    {"sub64", dp_sub64, c_sub64},
    {"neg64", dp_neg64, c_neg64},
    {"rsc64", dp_rsc64, c_rsc64},
};

/* Shift amounts that cross every edge of a register-specified shift. */
static const uint32_t shifts[] = {0, 1, 5, 31, 32, 33, 63, 255, 256, 0x101, 0xffffff20u};

int main(void) {
  char what[96];
  for (unsigned k = 0; k < sizeof ops / sizeof ops[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
      for (unsigned j = 0; j < CHECK_NVALUES; ++j)
        for (unsigned c = 0; c < 3; ++c) {
          const uint32_t a = check_values[i], b = check_values[j], z = check_values[c * 7 + 1];
          snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, b, z);
          check32(what, ops[k].got(a, b, z), ops[k].want(a, b, z));
        }
      for (unsigned s = 0; s < sizeof shifts / sizeof shifts[0]; ++s) {
        const uint32_t a = check_values[i], b = shifts[s], z = shifts[(s + 3) % 11];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x)", ops[k].name, a, b, z);
        check32(what, ops[k].got(a, b, z), ops[k].want(a, b, z));
      }
    }

  for (unsigned k = 0; k < sizeof ops64 / sizeof ops64[0]; ++k)
    for (unsigned i = 0; i < CHECK_NVALUES; ++i)
      for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
        const uint32_t a = check_values[i], b = check_values[j];
        snprintf(what, sizeof what, "%s(0x%x, 0x%x, 0x%x, 0x%x)", ops64[k].name, a, b, b, a);
        check64(what, ops64[k].got(a, b, b, a), ops64[k].want(a, b, b, a));
      }

  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    const uint32_t a = check_values[i], b = check_values[CHECK_NVALUES - 1 - i];
    uint32_t out[6] = {0, 0, 0, 0, 0, 0xa5a5a5a5u};
    const uint32_t want[6] = {a << 1, a >> 31, asr(b, 31), ror(b, 1), ~(b << 16), 0xa5a5a5a5u};
    snprintf(what, sizeof what, "mov_shifts(0x%x, 0x%x) returns its pointer", a, b);
    check32(what, (uint32_t)(uintptr_t)dp_mov_shifts(a, b, out), (uint32_t)(uintptr_t)out);
    snprintf(what, sizeof what, "mov_shifts(0x%x, 0x%x)", a, b);
    check_bytes(what, out, want, sizeof out);
  }
  return check_done("dp");
}
