// The software float against integers: conversions, rounding, scaling.
#include <climits>
#include <cstring>

#include "expr/fval.h"
#include "expr/fval_internal.h"
#include "expr/int128.h"

using namespace fv;

namespace {

int invalid_limit() {
  fp_error |= FPE_INVALID;
  return -1;
}

// The top 64 bits of the mantissa of a left-justified value.
uint64_t top64(const simul_fval &c) {
  uint64_t v = 0;
  for (int i = 0; i < 4; ++i) v = (v << 16) | c.mant[i];
  return v;
}

int from_u64(uint64_t mag, uint32_t sign, simul_fval *r) {
  if (mag == 0) {
    *r = pos_zero;
    return 0;
  }
  uint16_t m[NWORDS] = {uint16_t(mag >> 48), uint16_t(mag >> 32), uint16_t(mag >> 16),
                        uint16_t(mag)};
  simul_fval v{{}, 64, sign};
  std::memcpy(v.mant, m, sizeof m);
  f_left_justify(&v);
  *r = v;
  return f_align_radix_pt(r);
}

// Clears the fraction bits of a finite value; true if any was set.
bool chop(simul_fval *x) {
  if (is_special(x)) return false;
  f_left_justify(x);
  if (x->exponent <= 0) {
    *x = signed_zero(x->sign);
    return true;
  }
  bool lost = false;
  for (int i = 0; i < 96 - x->exponent; ++i) {
    uint16_t &w = x->mant[5 - i / 16];
    uint16_t bit = uint16_t(1u << (i % 16));
    if (w & bit) lost = true;
    w &= uint16_t(~bit);
  }
  f_align_radix_pt(x);
  return lost;
}

}  // namespace

// ---- Integers --------------------------------------------------------------------

int f_itof(long n, simul_fval *r) {
  uint64_t mag = n < 0 ? 0 - static_cast<uint64_t>(n) : static_cast<uint64_t>(n);
  return from_u64(mag, n < 0, r);
}

int f_utof(unsigned long n, simul_fval *r) { return from_u64(n, 0, r); }

int f_ftoi(const simul_fval *x, long *n) {
  *n = 0;
  if (f_isnan(x)) return invalid_limit();
  if (f_iszero(x)) return 0;
  simul_fval c = *x;
  f_left_justify(&c);
  if (c.exponent < 1) return 0;
  if (f_isinf(&c) || c.exponent >= 64) {
    *n = c.sign ? -LONG_MAX : LONG_MAX;
    return invalid_limit();
  }
  long mag = long(top64(c) >> (64 - c.exponent));
  *n = c.sign ? -mag : mag;
  return 0;
}

int f_ftou(const simul_fval *x, unsigned long *n) {
  *n = 0;
  if (f_isnan(x)) return invalid_limit();
  if (f_iszero(x)) return 0;
  if (x->sign) {
    long v;
    int ret = f_ftoi(x, &v);
    *n = static_cast<unsigned long>(v);
    return ret;
  }
  simul_fval c = *x;
  f_left_justify(&c);
  if (c.exponent < 1) return 0;
  if (f_isinf(&c) || c.exponent > 64) {
    *n = ULONG_MAX;
    return invalid_limit();
  }
  *n = c.exponent == 64 ? top64(c) : top64(c) >> (64 - c.exponent);
  return 0;
}

int f_xtof(const uint8_t *a, simul_fval *r) {
  INT128 mag = xi_from_bytes(a);
  uint32_t sign = mag.is_negative();
  if (sign) XI_neg(a, mag.b);  // the smallest value reads as 2^127 unsigned
  int len = 0;
  for (int i = 0; i < 128; ++i)
    if ((mag.b[15 - i / 8] >> (i % 8)) & 1) len = i + 1;
  if (len == 0) {
    *r = pos_zero;
    return 0;
  }
  // The top 96 of the `len` bits, left-justified.
  uint16_t m[NWORDS] = {};
  for (int k = 0; k < 96 && len - 1 - k >= 0; ++k) {
    int i = len - 1 - k;
    if ((mag.b[15 - i / 8] >> (i % 8)) & 1) m[k / 16] |= uint16_t(0x8000 >> (k % 16));
  }
  return from_justified(m, len, sign, r);
}

int f_ftox(const simul_fval *x, uint8_t *a) {
  XI_asg(xi_zero, a);
  if (f_isnan(x)) return invalid_limit();
  if (f_iszero(x)) return 0;
  simul_fval c = *x;
  f_left_justify(&c);
  if (c.exponent < 1) return 0;
  bool minint = c.sign && c.exponent == 128 && c.mant[0] == 0x8000 &&
                mant_zero(c.mant + 1, NWORDS - 1);
  if (f_isinf(&c) || c.exponent > 127) {
    XI_asg(c.sign ? xi_minint : xi_maxint, a);
    if (minint) return 0;
    return invalid_limit();
  }
  INT128 v{};
  for (int i = 0; i < NWORDS; ++i) {
    v.b[4 + 2 * i] = uint8_t(c.mant[i] >> 8);
    v.b[5 + 2 * i] = uint8_t(c.mant[i]);
  }
  // v holds the mantissa as a 96-bit integer; the value is v * 2^(e - 96).
  if (c.exponent >= 96)
    XI_shl(v.b, c.exponent - 96, v.b);
  else
    XI_shr(v.b, 96 - c.exponent, v.b);
  if (c.sign) XI_neg(v.b, v.b);
  XI_asg(v.b, a);
  return 0;
}

// ---- Rounding to integers -------------------------------------------------------

int f_trunc(const simul_fval *x, simul_fval *r) {
  *r = *x;
  chop(r);
  return 0;
}

int f_round(const simul_fval *x, simul_fval *r) {
  if (is_special(x)) return *r = *x, 0;
  simul_fval half = one_half;
  half.sign = x->sign;
  int ret = f_add(x, &half, r);
  chop(r);
  return ret;
}

int f_floor(const simul_fval *x, simul_fval *r) {
  simul_fval t = *x;
  if (chop(&t) && x->sign) return f_sub(&t, &const_one, r);
  *r = t;
  return 0;
}

int f_ceil(const simul_fval *x, simul_fval *r) {
  simul_fval t = *x;
  if (chop(&t) && !x->sign) return f_add(&t, &const_one, r);
  *r = t;
  return 0;
}

int f_int(const simul_fval *x, long *r) {
  simul_fval t = *x;
  *r = f_isnan(x) || f_isinf(x) ? 0 : !chop(&t);
  return 0;
}

int f_sgn(const simul_fval *x, long *r) {
  if (f_isnan(x)) {
    *r = 0;
    return invalid_limit();
  }
  *r = f_iszero(x) ? 0 : x->sign ? -1 : 1;
  return 0;
}

int f_modf(const simul_fval *x, simul_fval *ipart, simul_fval *frac) {
  if (f_isnan(x)) return *ipart = *frac = *x, 0;
  if (f_isinf(x)) {
    *ipart = *x;
    *frac = signed_zero(x->sign);
    return 0;
  }
  simul_fval t = *x;
  chop(&t);
  *ipart = t;
  int ret = f_sub(x, &t, frac);
  frac->sign = x->sign;  // also for a zero fraction
  return ret;
}

int f_fmod(const simul_fval *x, const simul_fval *y, simul_fval *r) {
  if (f_isnan(x)) return *r = *x, 0;
  if (f_isnan(y)) return *r = *y, 0;
  if (f_isinf(x) || f_iszero(y)) {
    *r = a_nan;
    return invalid_limit();
  }
  if (f_isinf(y) || f_iszero(x)) return *r = *x, 0;
  simul_fval a = *x, b = *y;
  f_left_justify(&a);
  f_left_justify(&b);
  if (cmp_mag(&a, &b) < 0) return *r = *x, 0;
  // Exact remainder of the mantissas, one exponent step at a time.
  constexpr int W = NWORDS + 1;
  uint16_t rem[W] = {}, den[W] = {};
  std::memcpy(rem + 1, a.mant, sizeof a.mant);
  std::memcpy(den + 1, b.mant, sizeof b.mant);
  for (long d = long(a.exponent) - b.exponent;; --d) {
    if (mw_cmp(rem, den, W) >= 0) mw_sub(rem, den, W);
    if (d == 0) break;
    mw_shl(rem, W, 1);
  }
  if (mant_zero(rem, W)) return *r = signed_zero(x->sign), 0;
  // rem < den < 2^96: words 1 to 6 hold it, in units of 2^(e_b - 96).
  simul_fval v{{}, b.exponent, x->sign};
  std::memcpy(v.mant, rem + 1, sizeof v.mant);
  f_left_justify(&v);
  return from_justified(v.mant, v.exponent, x->sign, r);
}

// ---- Scale -------------------------------------------------------------------------

int f_ldexp(const simul_fval *x, long n, simul_fval *r) {
  if (is_special(x)) return *r = *x, 0;
  simul_fval c = *x;
  f_left_justify(&c);
  if (n > 2L * FV_MAXEXP) n = 2L * FV_MAXEXP;
  if (n < -2L * FV_MAXEXP) n = -2L * FV_MAXEXP;
  return from_justified(c.mant, c.exponent + n, c.sign, r);
}

int f_frexp(const simul_fval *x, long *n, simul_fval *r) {
  *n = 0;
  if (is_special(x)) return *r = *x, 0;
  simul_fval c = *x;
  f_left_justify(&c);
  *n = c.exponent;
  c.exponent = 0;
  *r = c;
  return 0;
}

long f_findexp(const simul_fval *x) {
  long n;
  simul_fval r;
  f_frexp(x, &n, &r);
  return n;
}

// ---- What built-in functions add ---------------------------------------------

int f_cvf(const simul_fval *x, simul_fval *r) {
  *r = *x;
  return 0;
}

int f_max(const simul_fval *list, simul_fval *r, int count) {
  if (count < 1) return *r = a_nan, invalid_limit();
  simul_fval best = list[0];
  for (int i = 1; i < count; ++i)
    if (f_gt(&list[i], &best)) best = list[i];
  *r = best;
  return 0;
}

int f_min(const simul_fval *list, simul_fval *r, int count) {
  if (count < 1) return *r = a_nan, invalid_limit();
  simul_fval best = list[0];
  for (int i = 1; i < count; ++i)
    if (f_lt(&list[i], &best)) best = list[i];
  *r = best;
  return 0;
}
