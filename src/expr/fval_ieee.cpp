// Rounding the software float to IEEE 754 single and double, and back.
#include "expr/fval.h"
#include "expr/fval_internal.h"

using namespace fv;

namespace {

struct ieee_format {
  int frac_bits;  // 23 or 52
  int bias;       // 127 or 1023
  int max_biased; // 254 or 2046
};
constexpr ieee_format single_fmt{23, 127, 254};
constexpr ieee_format double_fmt{52, 1023, 2046};

// Bit i of the 96-bit mantissa, counted from the least significant.
int mant_bit(const uint16_t *m, int i) {
  if (i < 0 || i >= 96) return 0;
  return (m[5 - i / 16] >> (i % 16)) & 1;
}

bool any_below(const uint16_t *m, int i) {
  for (int k = 0; k < i && k < 96; ++k)
    if (mant_bit(m, k)) return true;
  return false;
}

// The 96-bit mantissa divided by 2^shift, rounded to nearest, ties to even.
uint64_t round_shift(const uint16_t *m, int shift) {
  uint64_t v = 0;
  for (int i = 95; i >= shift; --i) v = (v << 1) | mant_bit(m, i);
  int guard = mant_bit(m, shift - 1);
  bool sticky = any_below(m, shift - 1);
  if (guard && (sticky || (v & 1))) ++v;
  return v;
}

// Bits of the format in a 64-bit word; sign in the top bit of the format.
int to_ieee(const simul_fval *x, const ieee_format &f, uint64_t *out) {
  int width = 1 + (f.frac_bits == 23 ? 8 : 11) + f.frac_bits;
  uint64_t sign = uint64_t(x->sign & 1) << (width - 1);
  uint64_t exp_all = ((uint64_t(1) << (width - 1 - f.frac_bits)) - 1) << f.frac_bits;
  if (f_isnan(x)) {
    *out = sign | exp_all | (uint64_t(1) << (f.frac_bits - 1));
    return 0;
  }
  if (f_isinf(x)) {
    *out = sign | exp_all;
    return 0;
  }
  if (f_iszero(x)) {
    *out = sign;
    return 0;
  }
  simul_fval c = *x;
  f_left_justify(&c);
  // c is 0.1f * 2^e, that is 1.f * 2^(e - 1).
  long biased = long(c.exponent) - 1 + f.bias;
  int shift = 96 - (f.frac_bits + 1);
  if (biased < 1) shift += int(1 - biased > 200 ? 200 : 1 - biased);
  uint64_t sig = round_shift(c.mant, shift);
  if (biased < 1) {
    // A denormal; rounding may carry it into the smallest normal, which
    // the same bit pattern expresses.
    if (sig == 0) {
      fp_error |= FPE_UNDERFLOW;
      *out = sign;
      return 1;
    }
    *out = sign | sig;
    return 0;
  }
  if (sig >> (f.frac_bits + 1)) {
    sig >>= 1;
    ++biased;
  }
  if (biased > f.max_biased) {
    fp_error |= FPE_OVERFLOW;
    *out = sign | exp_all;
    return 1;
  }
  *out = sign | (uint64_t(biased) << f.frac_bits) | (sig & ((uint64_t(1) << f.frac_bits) - 1));
  return 0;
}

int from_ieee(uint64_t bits, const ieee_format &f, simul_fval *x) {
  int exp_width = f.frac_bits == 23 ? 8 : 11;
  uint32_t sign = uint32_t(bits >> (exp_width + f.frac_bits)) & 1;
  long biased = long((bits >> f.frac_bits) & ((1u << exp_width) - 1));
  uint64_t frac = bits & ((uint64_t(1) << f.frac_bits) - 1);
  if (biased == (1L << exp_width) - 1) {
    *x = frac ? a_nan : signed_infin(sign);
    return 0;
  }
  if (biased == 0 && frac == 0) {
    *x = signed_zero(sign);
    return 0;
  }
  uint64_t sig = biased ? frac | (uint64_t(1) << f.frac_bits) : frac;
  if (biased == 0) biased = 1;
  // sig * 2^(biased - bias - frac_bits), with sig at the top of 96 bits.
  uint16_t m[NWORDS] = {};
  int top = f.frac_bits + 1;  // bits of sig's field
  for (int i = 0; i < top; ++i)
    if ((sig >> i) & 1) m[5 - (i + 96 - top) / 16] |= uint16_t(1u << ((i + 96 - top) % 16));
  simul_fval v{{}, 0, sign};
  for (int i = 0; i < NWORDS; ++i) v.mant[i] = m[i];
  v.exponent = int32_t(biased - f.bias - f.frac_bits + top);
  f_left_justify(&v);
  *x = v;
  return f_align_radix_pt(x);
}

}  // namespace

int ieee_cvt_stof(const simul_fval *x, uint32_t *word) {
  uint64_t bits;
  int ret = to_ieee(x, single_fmt, &bits);
  *word = uint32_t(bits);
  return ret;
}

int ieee_cvt_stod(const simul_fval *x, uint32_t *high, uint32_t *low) {
  uint64_t bits;
  int ret = to_ieee(x, double_fmt, &bits);
  *high = uint32_t(bits >> 32);
  *low = uint32_t(bits);
  return ret;
}

int ieee_cvt_ftos(uint32_t word, simul_fval *x) { return from_ieee(word, single_fmt, x); }

int ieee_cvt_dtos(uint32_t high, uint32_t low, simul_fval *x) {
  return from_ieee((uint64_t(high) << 32) | low, double_fmt, x);
}

int f_cvt_stot(const simul_fval *x, trg_fval *out, int mode) {
  int ret;
  if (mode == 0) {
    ret = ieee_cvt_stof(x, &out->word[0]);
    out->word[1] = 0;
  } else {
    ret = ieee_cvt_stod(x, &out->word[0], &out->word[1]);
  }
  return ret ? -1 : 0;
}

int f_cvt_ttos(const trg_fval *in, simul_fval *x, int mode) {
  if (mode == 0) return ieee_cvt_ftos(in->word[0], x);
  return ieee_cvt_dtos(in->word[0], in->word[1], x);
}

uint32_t get_ieee_flt_fmt(const simul_fval *x) {
  uint32_t w;
  ieee_cvt_stof(x, &w);
  return w;
}

uint64_t get_ieee_dbl_fmt(const simul_fval *x) {
  uint32_t hi, lo;
  ieee_cvt_stod(x, &hi, &lo);
  return (uint64_t(hi) << 32) | lo;
}
