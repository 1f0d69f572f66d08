/* Stack frames and block transfers against C. */
#include <string.h>

#include "check.h"

uint32_t stk_sum8(uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t);
uint32_t stk_clobber(uint32_t);
uint32_t stk_locals(uint32_t, uint32_t, uint32_t, uint32_t);
uint32_t *stk_copy8(uint32_t *dst, const uint32_t *src);
uint32_t stk_ldm_modes(const uint32_t *p, uint32_t *out);
uint32_t stk_stm_modes(uint32_t *p, uint32_t v);
uint32_t stk_call_kept(uint32_t (*fn)(uint32_t), uint32_t a, uint32_t *out);

static uint32_t ror(uint32_t v, unsigned n) { return n ? (v >> n) | (v << (32 - n)) : v; }

/* Also called from assembly: it must stay a function of its own. */
__attribute__((noinline)) static uint32_t c_clobber(uint32_t a) {
  const uint32_t r4 = a + 1, r5 = r4 * 3, r6 = r5 ^ ror(a, 7), r7 = r6 - r4, r8 = ~r7, r9 = r8 + (r5 >> 3);
  const uint32_t r10 = r9 | 0x8000u, r11 = r6 - r10;
  return ((((((r4 + r5 + r6) ^ r7) + r8) - r9) ^ r10) + r11);
}

int main(void) {
  char what[96];
  for (unsigned i = 0; i < CHECK_NVALUES; ++i) {
    const uint32_t a = check_values[i];
    snprintf(what, sizeof what, "clobber(0x%x)", a);
    check32(what, stk_clobber(a), c_clobber(a));
    uint32_t result = 0;
    snprintf(what, sizeof what, "registers kept by clobber(0x%x)", a);
    check32(what, stk_call_kept(stk_clobber, a, &result), 0);
    snprintf(what, sizeof what, "clobber(0x%x) called from assembly", a);
    check32(what, result, c_clobber(a));
    snprintf(what, sizeof what, "registers kept by C's clobber(0x%x)", a);
    check32(what, stk_call_kept(c_clobber, a, &result), 0);
    snprintf(what, sizeof what, "C's clobber(0x%x) called from assembly", a);
    check32(what, result, c_clobber(a));

    const uint32_t v[8] = {a, a * 3, ~a, a >> 3, a + 7, a ^ 0x5555u, a << 2, 0x7fffffffu - a};
    uint32_t want = 0;
    for (unsigned k = 0; k < 8; ++k) want += (k + 1) * v[k];
    snprintf(what, sizeof what, "sum8(0x%x, ...)", a);
    check32(what, stk_sum8(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]), want);
    snprintf(what, sizeof what, "locals(0x%x, ...)", a);
    check32(what, stk_locals(v[0], v[1], v[2], v[3]), (v[1] - v[2] + ror(v[3], 8)) ^ v[0]);
  }
  uint32_t src[10], dst[10], want[10];
  for (unsigned k = 0; k < 10; ++k) src[k] = 0x11111111u * k, dst[k] = want[k] = 0xeeeeeeeeu;
  memcpy(want, src, 8 * sizeof *src);
  check32("copy8 end", (uint32_t)(uintptr_t)stk_copy8(dst, src), (uint32_t)(uintptr_t)(dst + 8));
  check_bytes("copy8", dst, want, sizeof dst);

  const uint32_t *p = src;
  uint32_t out[16];
  const uint32_t ldm_want[16] = {p[5], p[6], p[3], p[4], p[2], p[3], p[4], p[5],
                                 p[5], p[5], p[2], p[3], p[2], p[3], 0xeeeeeeeeu, 0xeeeeeeeeu};
  memset(out, 0xee, sizeof out);
  check32("ldm_modes base", stk_ldm_modes(src, out), 4 * 4);
  check_bytes("ldm_modes", out, ldm_want, sizeof out);

  const uint32_t v = 0xc0de0000u;
  uint32_t stm[16], stm_want[16];
  memset(stm, 0xee, sizeof stm);
  memset(stm_want, 0xee, sizeof stm_want);
  stm_want[0] = v, stm_want[1] = v + 1, stm_want[4] = v, stm_want[5] = v + 2, stm_want[6] = v + 1;
  stm_want[7] = v + 2, stm_want[8] = v, stm_want[9] = v + 1, stm_want[10] = v + 2, stm_want[12] = v + 2;
  stm_want[13] = v, stm_want[14] = v + 2, stm_want[11] = v + 1;
  check32("stm_modes base", stk_stm_modes(stm, v), 11 * 4);
  check_bytes("stm_modes", stm, stm_want, sizeof stm);
  return check_done("stack");
}
