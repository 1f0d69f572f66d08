// The software float: constants, forms, arithmetic and comparison.
#include <cstring>
#include <utility>

#include "driver/diag.h"
#include "expr/fval.h"
#include "expr/fval_internal.h"

uint32_t fp_error = 0;
uint32_t two_to_the[32];

const simul_fval pos_zero{{}, FV_ZEROEXP, 0};
const simul_fval neg_zero{{}, FV_ZEROEXP, 1};
const simul_fval pos_infin{{}, FV_MAXEXP, 0};
const simul_fval neg_infin{{}, FV_MAXEXP, 1};
const simul_fval a_nan{{1}, FV_MAXEXP, 0};
const simul_fval pos_huge{{1}, 32752, 0};
const simul_fval neg_huge{{1}, 32752, 1};
const simul_fval const_one{{1}, 16, 0};
const simul_fval const_ten{{10}, 16, 0};
const simul_fval const_sixteen{{16}, 16, 0};
const simul_fval one_half{{0x8000}, 0, 0};
const simul_fval three_q{{0xC000}, 0, 0};
const simul_fval neg_one{{1}, 16, 1};
const simul_fval one_p_five{{1, 0x8000}, 16, 0};
const simul_fval two{{2}, 16, 0};
const simul_fval neg_two{{2}, 16, 1};
const simul_fval const_dig[10] = {
    {{}, FV_ZEROEXP, 0}, {{1}, 16, 0}, {{2}, 16, 0}, {{3}, 16, 0}, {{4}, 16, 0},
    {{5}, 16, 0},        {{6}, 16, 0}, {{7}, 16, 0}, {{8}, 16, 0}, {{9}, 16, 0},
};

void math_init() {
  for (int i = 0; i < 32; ++i) two_to_the[i] = 1u << i;
}

bool fp_error_report(linebuf *line) {
  if (fp_error & FPE_OVERFLOW) {
    error(line, "E0201", "Floating-point overflow");
    return true;
  }
  if (fp_error & FPE_UNDERFLOW) {
    error(line, "E0201", "Floating-point underflow");
    return true;
  }
  return false;
}

// ---- Multi-word helpers ---------------------------------------------------------

namespace fv {

bool mant_zero(const uint16_t *m, int count) {
  for (int i = 0; i < count; ++i)
    if (m[i]) return false;
  return true;
}

void mw_shl(uint16_t *a, int count, int bits) {
  int words = bits / 16, part = bits % 16;
  for (int i = 0; i < count; ++i) {
    uint32_t hi = i + words < count ? a[i + words] : 0;
    uint32_t lo = i + words + 1 < count ? a[i + words + 1] : 0;
    a[i] = static_cast<uint16_t>(part ? (hi << part) | (lo >> (16 - part)) : hi);
  }
}

void mw_shr(uint16_t *a, int count, int bits) {
  int words = bits / 16, part = bits % 16;
  for (int i = count - 1; i >= 0; --i) {
    uint32_t lo = i - words >= 0 ? a[i - words] : 0;
    uint32_t hi = i - words - 1 >= 0 ? a[i - words - 1] : 0;
    a[i] = static_cast<uint16_t>(part ? (lo >> part) | (hi << (16 - part)) : lo);
  }
}

int mw_cmp(const uint16_t *a, const uint16_t *b, int count) {
  for (int i = 0; i < count; ++i)
    if (a[i] != b[i]) return a[i] < b[i] ? -1 : 1;
  return 0;
}

uint16_t mw_sub(uint16_t *a, const uint16_t *b, int count) {
  int32_t borrow = 0;
  for (int i = count - 1; i >= 0; --i) {
    int32_t t = int32_t(a[i]) - b[i] - borrow;
    borrow = t < 0;
    a[i] = static_cast<uint16_t>(t);
  }
  return static_cast<uint16_t>(borrow);
}

uint16_t mw_add(uint16_t *a, const uint16_t *b, int count) {
  uint32_t carry = 0;
  for (int i = count - 1; i >= 0; --i) {
    uint32_t t = uint32_t(a[i]) + b[i] + carry;
    carry = t >> 16;
    a[i] = static_cast<uint16_t>(t);
  }
  return static_cast<uint16_t>(carry);
}

bool is_special(const simul_fval *x) {
  return x->exponent >= FV_MAXEXP || mant_zero(x->mant, NWORDS);
}

simul_fval canonical(const simul_fval *x) {
  simul_fval c = *x;
  f_align_radix_pt(&c);
  return c;
}

int finish(uint16_t *w, int32_t exponent, int count, uint32_t sign, uint32_t zero_sign,
           simul_fval *r) {
  f_normalize(w, &exponent, count);
  if (mant_zero(w + 1, NWORDS)) {
    *r = signed_zero(zero_sign);
    return 0;
  }
  if (exponent < FV_ZEROEXP) {
    fp_error |= FPE_UNDERFLOW;
    *r = signed_zero(sign);
    return -1;
  }
  if (exponent >= FV_MAXEXP) {
    fp_error |= FPE_OVERFLOW;
    *r = signed_infin(sign);
    return -1;
  }
  std::memcpy(r->mant, w + 1, sizeof r->mant);
  r->exponent = exponent;
  r->sign = sign;
  return 0;
}

int from_justified(const uint16_t *mant, long exponent, uint32_t sign, simul_fval *r) {
  if (exponent > FV_MAXEXP) {
    fp_error |= FPE_OVERFLOW;
    *r = signed_infin(sign);
    return -1;
  }
  if (exponent < FV_ZEROEXP) {
    fp_error |= FPE_UNDERFLOW;
    *r = signed_zero(sign);
    return -1;
  }
  std::memcpy(r->mant, mant, sizeof r->mant);
  r->exponent = static_cast<int32_t>(exponent);
  r->sign = sign;
  return f_align_radix_pt(r);
}

int cmp_mag(const simul_fval *x, const simul_fval *y) {
  bool ix = f_isinf(x), iy = f_isinf(y);
  if (ix || iy) return ix == iy ? 0 : ix ? 1 : -1;
  simul_fval a = *x, b = *y;
  f_left_justify(&a);
  f_left_justify(&b);
  if (a.exponent != b.exponent) return a.exponent < b.exponent ? -1 : 1;
  return mw_cmp(a.mant, b.mant, NWORDS);
}

}  // namespace fv

using namespace fv;

// ---- Forms ---------------------------------------------------------------------

bool f_isnan(const simul_fval *x) {
  return x->exponent >= FV_MAXEXP && !mant_zero(x->mant, NWORDS);
}

bool f_isinf(const simul_fval *x) {
  return x->exponent >= FV_MAXEXP && mant_zero(x->mant, NWORDS);
}

bool f_iszero(const simul_fval *x) {
  return x->exponent < FV_MAXEXP && mant_zero(x->mant, NWORDS);
}

int f_left_justify(simul_fval *x) {
  if (is_special(x)) return 0;
  int shift = 0;
  while (x->mant[shift / 16] == 0) shift += 16;
  shift += __builtin_clz(uint32_t(x->mant[shift / 16])) - 16;
  mw_shl(x->mant, NWORDS, shift);
  x->exponent -= shift;
  return 0;
}

int f_align_radix_pt(simul_fval *x) {
  if (is_special(x)) return 0;
  f_left_justify(x);
  int rem = ((x->exponent % 16) + 16) % 16;
  int shift = rem ? 16 - rem : 0;
  mw_shr(x->mant, NWORDS, shift);
  x->exponent += shift;
  if (x->exponent >= FV_MAXEXP) {
    fp_error |= FPE_OVERFLOW;
    *x = signed_infin(x->sign);
    return -1;
  }
  if (x->exponent < FV_ZEROEXP) {
    fp_error |= FPE_UNDERFLOW;
    *x = signed_zero(x->sign);
    return -1;
  }
  return 0;
}

void f_normalize(uint16_t *w, int32_t *exponent, int count) {
  for (int i = 7; i < count; ++i) w[i] = 0;
  for (;;) {
    if (w[0] != 0) {
      for (int i = count - 1; i > 0; --i) w[i] = w[i - 1];
      w[0] = 0;
      *exponent += 16;
    }
    int first = 1;
    while (first < count && w[first] == 0) ++first;
    if (first == count) {
      *exponent = 0;
      return;
    }
    if (first > 1) {
      for (int i = 1; i < count; ++i) w[i] = i + first - 1 < count ? w[i + first - 1] : 0;
      *exponent -= 16 * (first - 1);
    }
    if (count < 8 || !(w[7] & 0x8000)) return;
    // Round up at word 6: reached only when a carry pushed word 6 out.
    w[7] = 0;
    uint32_t carry = 1;
    for (int i = 6; i >= 0 && carry; --i) {
      uint32_t t = uint32_t(w[i]) + carry;
      w[i] = static_cast<uint16_t>(t);
      carry = t >> 16;
    }
    if (w[0] == 0) return;
  }
}

// ---- Arithmetic -------------------------------------------------------------------

namespace {

int invalid(simul_fval *r) {
  fp_error |= FPE_INVALID;
  *r = a_nan;
  return -1;
}

// Moves the first non-zero word of w[1..count) to w[1] before f_normalize
// clears the words behind the sixth, so that no digit is lost needlessly.
void lift(uint16_t *w, int count, int32_t *exponent) {
  if (w[0]) return;
  int first = 1;
  while (first < count && w[first] == 0) ++first;
  if (first == count || first == 1) return;
  int by = first - 1;
  for (int i = 1; i < count; ++i) w[i] = i + by < count ? w[i + by] : 0;
  *exponent -= 16 * by;
}

}  // namespace

int f_add(const simul_fval *x, const simul_fval *y, simul_fval *r) {
  if (f_isnan(x)) return *r = *x, 0;
  if (f_isnan(y)) return *r = *y, 0;
  if (f_isinf(x)) {
    if (f_isinf(y) && x->sign != y->sign) return invalid(r);
    return *r = *x, 0;
  }
  if (f_isinf(y)) return *r = *y, 0;
  if (f_iszero(x)) {
    if (f_iszero(y)) return *r = signed_zero(x->sign & y->sign), 0;
    return *r = *y, 0;
  }
  if (f_iszero(y)) return *r = *x, 0;

  simul_fval a = canonical(x), b = canonical(y);
  if (is_special(&a) || is_special(&b)) return f_add(&a, &b, r);
  if (cmp_mag(&a, &b) < 0) std::swap(a, b);
  constexpr int N = 13;
  uint16_t w[N] = {}, v[N] = {};
  std::memcpy(w + 1, a.mant, sizeof a.mant);
  int shift = (a.exponent - b.exponent) / 16;
  for (int i = 0; i < NWORDS && 1 + shift + i < N; ++i) v[1 + shift + i] = b.mant[i];
  if (a.sign == b.sign)
    mw_add(w, v, N);
  else
    mw_sub(w, v, N);
  int32_t e = a.exponent;
  lift(w, N, &e);
  return finish(w, e, N, a.sign, 0, r);
}

int f_sub(const simul_fval *x, const simul_fval *y, simul_fval *r) {
  if (f_isnan(y) && !f_isnan(x)) return *r = *y, 0;
  simul_fval ny = *y;
  ny.sign ^= 1;
  return f_add(x, &ny, r);
}

int f_mul(const simul_fval *x, const simul_fval *y, simul_fval *r) {
  uint32_t sign = (x->sign ^ y->sign) & 1;
  if (f_isnan(x)) return *r = *x, 0;
  if (f_isnan(y)) return *r = *y, 0;
  if ((f_iszero(x) && f_isinf(y)) || (f_isinf(x) && f_iszero(y))) return invalid(r);
  if (f_isinf(x) || f_isinf(y)) return *r = signed_infin(sign), 0;
  if (f_iszero(x) || f_iszero(y)) return *r = signed_zero(sign), 0;

  simul_fval a = canonical(x), b = canonical(y);
  if (is_special(&a) || is_special(&b)) return f_mul(&a, &b, r);
  constexpr int N = 13;
  uint32_t acc[N] = {};
  for (int i = NWORDS - 1; i >= 0; --i)
    for (int j = NWORDS - 1; j >= 0; --j) {
      uint32_t t = uint32_t(a.mant[i]) * b.mant[j];
      int k = i + j + 2;  // word 0 of w is carry room
      uint32_t lo = acc[k] + (t & 0xFFFF);
      acc[k] = lo & 0xFFFF;
      uint32_t carry = (lo >> 16) + (t >> 16);
      for (int m = k - 1; carry && m >= 0; --m) {
        uint32_t s = acc[m] + carry;
        acc[m] = s & 0xFFFF;
        carry = s >> 16;
      }
    }
  uint16_t w[N];
  for (int i = 0; i < N; ++i) w[i] = static_cast<uint16_t>(acc[i]);
  int32_t e = a.exponent + b.exponent;
  lift(w, N, &e);
  return finish(w, e, N, sign, sign, r);
}

int f_div(const simul_fval *x, const simul_fval *y, simul_fval *r) {
  uint32_t sign = (x->sign ^ y->sign) & 1;
  if (f_isnan(x)) return *r = *x, 0;
  if (f_isnan(y)) return *r = *y, 0;
  if ((f_iszero(x) && f_iszero(y)) || (f_isinf(x) && f_isinf(y))) return invalid(r);
  if (f_isinf(x)) return *r = signed_infin(sign), 0;
  if (f_isinf(y) || f_iszero(x)) return *r = signed_zero(sign), 0;
  if (f_iszero(y)) {
    fp_error |= FPE_DIVZERO;
    *r = signed_infin(sign);
    return -1;
  }

  simul_fval a = canonical(x), b = canonical(y);
  if (is_special(&a) || is_special(&b)) return f_div(&a, &b, r);
  // Quotient of the mantissas scaled by 2^112, kept to its low 128 bits: the
  // integer part first, then the fraction 32 bits at a time (the remainder
  // stays below the 96-bit divisor, so a step never overflows).
  using u128 = unsigned __int128;
  auto mant_value = [](const uint16_t *m) {
    u128 v = 0;
    for (int i = 0; i < NWORDS; ++i) v = (v << 16) | m[i];
    return v;
  };
  const u128 num = mant_value(a.mant), den = mant_value(b.mant);
  u128 q = num / den, rem = num % den;
  for (int step : {32, 32, 32, 16}) {
    const u128 part = rem << step;
    q = (q << step) | (part / den);
    rem = part % den;
  }
  constexpr int N = 8;
  uint16_t w[N];
  for (int i = N - 1; i >= 0; --i, q >>= 16) w[i] = static_cast<uint16_t>(q);
  return finish(w, a.exponent - b.exponent, N, sign, sign, r);
}

int f_neg(const simul_fval *x, simul_fval *r) {
  *r = *x;
  r->sign ^= 1;
  return 0;
}

int f_abs(const simul_fval *x, simul_fval *r) {
  *r = *x;
  r->sign = 0;
  return 0;
}

// ---- Comparison ---------------------------------------------------------------------

namespace {

// -1, 0, 1, or 2 when unordered.
int compare(const simul_fval *x, const simul_fval *y) {
  if (f_isnan(x) || f_isnan(y)) return 2;
  int sx = f_iszero(x) ? 0 : x->sign ? -1 : 1;
  int sy = f_iszero(y) ? 0 : y->sign ? -1 : 1;
  if (sx != sy) return sx < sy ? -1 : 1;
  if (sx == 0) return 0;
  int m = cmp_mag(x, y);
  return sx > 0 ? m : -m;
}

}  // namespace

bool f_eq(const simul_fval *x, const simul_fval *y) { return compare(x, y) == 0; }
bool f_ne(const simul_fval *x, const simul_fval *y) { return compare(x, y) != 0; }
bool f_lt(const simul_fval *x, const simul_fval *y) { return compare(x, y) == -1; }
bool f_le(const simul_fval *x, const simul_fval *y) {
  int c = compare(x, y);
  return c == -1 || c == 0;
}
bool f_gt(const simul_fval *x, const simul_fval *y) { return compare(x, y) == 1; }
bool f_ge(const simul_fval *x, const simul_fval *y) {
  int c = compare(x, y);
  return c == 1 || c == 0;
}

bool f_bit_eq(const simul_fval *x, const simul_fval *y) {
  return std::memcmp(x->mant, y->mant, sizeof x->mant) == 0 && x->exponent == y->exponent &&
         x->sign == y->sign;
}
