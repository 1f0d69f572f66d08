#pragma once
// What the files of the software float share among themselves.
#include <cstdint>

#include "expr/fval.h"

namespace fv {

inline constexpr int NWORDS = 6;

bool mant_zero(const uint16_t *m, int count);

inline simul_fval signed_zero(uint32_t sign) {
  simul_fval r{{}, FV_ZEROEXP, sign};
  return r;
}
inline simul_fval signed_infin(uint32_t sign) {
  simul_fval r{{}, FV_MAXEXP, sign};
  return r;
}

// Zero, infinity or NaN.
bool is_special(const simul_fval *x);

// x in the normal form (finite non-zero values only): word 0 non-zero,
// exponent a multiple of 16.
simul_fval canonical(const simul_fval *x);

// Sets *r from a work array of `count` words (word 0 carry room, mantissa
// from word 1) after f_normalize, with the range checks of the arithmetic.
// A zero result takes `zero_sign`.
int finish(uint16_t *w, int32_t exponent, int count, uint32_t sign, uint32_t zero_sign,
           simul_fval *r);

// A finite non-zero left-justified value: the top bit of mant[0] set. Sets
// the exponent to `exponent` (checked against the range), aligns, stores.
int from_justified(const uint16_t *mant, long exponent, uint32_t sign, simul_fval *r);

// Unsigned magnitude compare of two finite non-zero or infinite values.
int cmp_mag(const simul_fval *x, const simul_fval *y);

// 10^(2^i), i = 0 to 8, rounded to the simulated precision (made on first use).
const simul_fval &pow10_entry(int i);
// x times 10^n (n of any size), by the entries above.
int scale10(simul_fval *x, long n);

// Multi-word unsigned integers, most significant word first.
void mw_shl(uint16_t *a, int count, int bits);
void mw_shr(uint16_t *a, int count, int bits);
int mw_cmp(const uint16_t *a, const uint16_t *b, int count);
uint16_t mw_sub(uint16_t *a, const uint16_t *b, int count);  // a -= b; borrow
uint16_t mw_add(uint16_t *a, const uint16_t *b, int count);  // a += b; carry

// Value semantics over the f_* functions, for the longer formulas of the
// elementary functions; errors collect in fp_error as usual.
struct F {
  simul_fval v;
};
inline F operator+(F a, F b) { F r; f_add(&a.v, &b.v, &r.v); return r; }
inline F operator-(F a, F b) { F r; f_sub(&a.v, &b.v, &r.v); return r; }
inline F operator*(F a, F b) { F r; f_mul(&a.v, &b.v, &r.v); return r; }
inline F operator/(F a, F b) { F r; f_div(&a.v, &b.v, &r.v); return r; }
inline F operator-(F a) { F r; f_neg(&a.v, &r.v); return r; }
inline bool operator<(F a, F b) { return f_lt(&a.v, &b.v); }
inline bool operator>(F a, F b) { return f_gt(&a.v, &b.v); }
inline bool operator<=(F a, F b) { return f_le(&a.v, &b.v); }
inline bool operator>=(F a, F b) { return f_ge(&a.v, &b.v); }
F lit(const char *text);  // f_atof of a coefficient
inline F fval(const simul_fval &v) { return F{v}; }

}  // namespace fv
