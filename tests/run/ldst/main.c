/* Loads and stores on arrays passed from C, in every addressing mode. */
#include <string.h>

#include "check.h"

uint32_t ld_words(const uint32_t *p, uint32_t *out, uint32_t i);
uint32_t st_words(uint32_t *p, uint32_t v, uint32_t i);
uint32_t ld_bytes(const uint8_t *p, uint32_t *out, uint32_t i);
uint32_t ld_halves(const uint16_t *p, uint32_t *out, uint32_t i);
uint32_t st_small(uint8_t *p, uint32_t v, uint32_t i);

enum { OUT = 24, FILL = 0xee };

static uint32_t s8(uint8_t x) { return (uint32_t)(int32_t)(int8_t)x; }
static uint32_t s16(uint16_t x) { return (uint32_t)(int32_t)(int16_t)x; }

static void put16(uint8_t *p, unsigned at, uint32_t v) {
  const uint16_t h = (uint16_t)v;
  memcpy(p + at, &h, 2);
}

int main(void) {
  uint32_t words[16];
  uint8_t bytes[48];
  uint16_t halves[16];
  for (unsigned k = 0; k < 16; ++k) words[k] = 0x01010101u * k ^ 0x80000000u * (k & 1);
  for (unsigned k = 0; k < 48; ++k) bytes[k] = (uint8_t)(k * 37 + 0x80);
  for (unsigned k = 0; k < 16; ++k) halves[k] = (uint16_t)(k * 0x1357 + 0x7ff0);

  char what[64];
  for (uint32_t i = 0; i < 4; ++i) {
    uint32_t out[OUT], want[OUT];
    const uint32_t *p = words;
    const uint32_t w[] = {p[0], p[3], p[i], p[i], p[i], p[2 * i], p[i], p[6], p[8 - i],
                          p[9], p[9], p[7 + i], p[7 + i], p[7], p[7], p[8], p[6]};
    memset(out, FILL, sizeof out);
    memset(want, FILL, sizeof want);
    memcpy(want, w, sizeof w);
    snprintf(what, sizeof what, "ld_words(%u) base", i);
    check32(what, ld_words(words, out, i), 6 * 4);
    snprintf(what, sizeof what, "ld_words(%u)", i);
    check_bytes(what, out, want, sizeof out);

    const uint32_t v = 0x89abcdefu + i;
    uint32_t st[16], st_want[16];
    memset(st, FILL, sizeof st);
    memset(st_want, FILL, sizeof st_want);
    st_want[0] = v, st_want[1] = v + 1, st_want[i] = v + 2, st_want[9] = v + 3, st_want[10 - i] = v + 4;
    st_want[11] = v + 5, st_want[11] = v + 6, st_want[8 + i] = v + 7, st_want[8 + i] = v + 8;
    st_want[8] = v + 9, st_want[9] = v + 10;
    snprintf(what, sizeof what, "st_words(%u) base", i);
    check32(what, st_words(st, v, i), 11 * 4);
    snprintf(what, sizeof what, "st_words(%u)", i);
    check_bytes(what, st, st_want, sizeof st);

    const uint8_t *b = bytes;
    const uint32_t wb[] = {b[0],  b[5],      b[i],     b[2 * i],  s8(b[7]),     s8(b[i]),    b[13],
                           b[16 - i], s8(b[15]), s8(b[16 - i]), b[17], b[17],  s8(b[18]),   s8(b[18]),
                           s8(b[18]), b[18 + i], b[18 + i], b[19 + i], s8(b[19])};
    memset(out, FILL, sizeof out);
    memset(want, FILL, sizeof want);
    memcpy(want, wb, sizeof wb);
    snprintf(what, sizeof what, "ld_bytes(%u) base", i);
    check32(what, ld_bytes(bytes, out, i), 16);
    snprintf(what, sizeof what, "ld_bytes(%u)", i);
    check_bytes(what, out, want, sizeof out);

    const uint16_t *h = halves;
    const uint32_t wh[] = {h[0],      h[3],      h[i],       s16(h[5]),         s16(h[i]),  h[7],
                           s16(h[8 - i]), h[10], s16(h[10]), h[9 + i], s16(h[9 + i]), s16(h[10])};
    memset(out, FILL, sizeof out);
    memset(want, FILL, sizeof want);
    memcpy(want, wh, sizeof wh);
    snprintf(what, sizeof what, "ld_halves(%u) base", i);
    check32(what, ld_halves(halves, out, i), 20);
    snprintf(what, sizeof what, "ld_halves(%u)", i);
    check_bytes(what, out, want, sizeof out);

    uint8_t sm[48], sm_want[48];
    memset(sm, FILL, sizeof sm);
    memset(sm_want, FILL, sizeof sm_want);
    sm_want[0] = (uint8_t)v, sm_want[3] = (uint8_t)(v + 1), sm_want[i] = (uint8_t)(v + 2);
    put16(sm_want, 4, v + 3), put16(sm_want, 8 + 2 * i, v + 4);
    sm_want[31] = (uint8_t)(v + 5), put16(sm_want, 28, v + 6), sm_want[32 - 4 * i] = (uint8_t)(v + 7);
    put16(sm_want, 34 - 4 * i, v + 8), put16(sm_want, 34 - 4 * i, v + 9), put16(sm_want, 38 - 4 * i, v + 10);
    sm_want[38] = (uint8_t)(v + 11), sm_want[39] = (uint8_t)(v + 12), put16(sm_want, 40, v + 13);
    snprintf(what, sizeof what, "st_small(%u) base", i);
    check32(what, st_small(sm, v, i), 40);
    snprintf(what, sizeof what, "st_small(%u)", i);
    check_bytes(what, sm, sm_want, sizeof sm);
  }
  return check_done("ldst");
}
