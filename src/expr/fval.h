#pragma once
// Software floating value: six base-65536 digits, a power-of-two exponent, a
// sign. The value is the sum of mant[i] * 2^(exponent - 16 * (i + 1)); in the
// normal form mant[0] is not zero and the exponent is a multiple of 16.
// Nothing here uses host floating point.
//
// Functions returning int give 0, or -1 after an overflow, underflow or
// invalid case (the result is set all the same); fp_error then says which.
#include <cstdint>

struct simul_fval {
  uint16_t mant[6];
  int32_t exponent;
  uint32_t sign;  // 0 positive, 1 negative
};
static_assert(sizeof(simul_fval) == 20);

// A 160-bit value, used for the table of powers of ten.
struct precise_sim_fval {
  uint16_t mant[10];
  int32_t exponent;
};

// The target's form of a floating value. Single: word[0]. Double: word[0] is
// the high word (sign and exponent), word[1] the low word.
struct trg_fval {
  uint32_t word[2];
  uint32_t &operator[](int i) { return word[i]; }
  const uint32_t &operator[](int i) const { return word[i]; }
};

// ---- fp_error: sticky bits, cleared by whoever wants to look at them ---------

enum : uint32_t {
  FPE_INVALID = 1,    // the result is a NaN or the function's stated limit
  FPE_DIVZERO = 2,
  FPE_OVERFLOW = 4,
  FPE_UNDERFLOW = 8,
};
extern uint32_t fp_error;

struct linebuf;
// Reports the overflow (4) or underflow (8) bit of fp_error as error E0201
// "Floating-point overflow" / "Floating-point underflow" on `line`; true if
// one was reported. fp_error is left as it is.
bool fp_error_report(linebuf *line);

// ---- Constants ---------------------------------------------------------------

inline constexpr int32_t FV_MAXEXP = 32767;  // exponent of infinities and NaNs
inline constexpr int32_t FV_ZEROEXP = -32767;

extern const simul_fval pos_zero, neg_zero, pos_infin, neg_infin, a_nan, pos_huge, neg_huge;
extern const simul_fval const_one, const_ten, const_sixteen, one_half, three_q, neg_one,
    one_p_five, two, neg_two;
extern const simul_fval const_dig[10];
// 10^(2^i) for i = 0 to 8, exact or rounded to 160 bits.
extern const precise_sim_fval prec_pow10[9];

// 2^0 to 2^31, filled by math_init.
extern uint32_t two_to_the[32];
void math_init();

bool f_isnan(const simul_fval *x);
bool f_isinf(const simul_fval *x);
bool f_iszero(const simul_fval *x);

// ---- Conversion ------------------------------------------------------------------

int f_itof(long n, simul_fval *r);
int f_utof(unsigned long n, simul_fval *r);
int f_ftoi(const simul_fval *x, long *n);            // truncates; saturates at 2^63 - 1
int f_ftou(const simul_fval *x, unsigned long *n);
int f_xtof(const uint8_t *a, simul_fval *r);         // INT128 bytes in
int f_ftox(const simul_fval *x, uint8_t *a);         // INT128 bytes out, saturating
// Decimal, "0x" hexadecimal with optional "p" exponent, "nan", "inf".
int f_atof(const char *text, simul_fval *r);

// mode 0: IEEE single into out->word[0]; mode 1: IEEE double. Rounds to
// nearest, ties to even; overflow sets fp_error to 4 and gives an infinity,
// total underflow sets it to 8 and gives a zero. Returns 0, or -1 then.
int f_cvt_stot(const simul_fval *x, trg_fval *out, int mode);
int f_cvt_ttos(const trg_fval *in, simul_fval *x, int mode);
int ieee_cvt_stof(const simul_fval *x, uint32_t *word);           // 0, or 1 as above
int ieee_cvt_stod(const simul_fval *x, uint32_t *high, uint32_t *low);
int ieee_cvt_ftos(uint32_t word, simul_fval *x);
int ieee_cvt_dtos(uint32_t high, uint32_t low, simul_fval *x);
uint32_t get_ieee_flt_fmt(const simul_fval *x);
uint64_t get_ieee_dbl_fmt(const simul_fval *x);

// ---- Arithmetic --------------------------------------------------------------------

int f_add(const simul_fval *x, const simul_fval *y, simul_fval *r);
int f_sub(const simul_fval *x, const simul_fval *y, simul_fval *r);
int f_mul(const simul_fval *x, const simul_fval *y, simul_fval *r);
int f_div(const simul_fval *x, const simul_fval *y, simul_fval *r);
int f_neg(const simul_fval *x, simul_fval *r);
int f_abs(const simul_fval *x, simul_fval *r);

// ---- Comparison (false with a NaN, but f_ne true) ---------------------------------

bool f_eq(const simul_fval *x, const simul_fval *y);
bool f_ne(const simul_fval *x, const simul_fval *y);
bool f_lt(const simul_fval *x, const simul_fval *y);
bool f_le(const simul_fval *x, const simul_fval *y);
bool f_gt(const simul_fval *x, const simul_fval *y);
bool f_ge(const simul_fval *x, const simul_fval *y);
bool f_bit_eq(const simul_fval *x, const simul_fval *y);  // all fields

// ---- Rounding to integers --------------------------------------------------------

int f_trunc(const simul_fval *x, simul_fval *r);
int f_round(const simul_fval *x, simul_fval *r);  // halves away from zero
int f_floor(const simul_fval *x, simul_fval *r);
int f_ceil(const simul_fval *x, simul_fval *r);
int f_int(const simul_fval *x, long *r);          // 1 if x has no fraction
int f_sgn(const simul_fval *x, long *r);          // -1, 0, 1
int f_modf(const simul_fval *x, simul_fval *ipart, simul_fval *frac);
int f_fmod(const simul_fval *x, const simul_fval *y, simul_fval *r);

// ---- Scale ---------------------------------------------------------------------------

int f_ldexp(const simul_fval *x, long n, simul_fval *r);
int f_frexp(const simul_fval *x, long *n, simul_fval *r);  // r in [0.5, 1)
long f_findexp(const simul_fval *x);  // n of f_frexp
int f_align_radix_pt(simul_fval *x);
int f_left_justify(simul_fval *x);
// The working form of a result: `count` words, word 0 room for a carry.
void f_normalize(uint16_t *words, int32_t *exponent, int count);

// ---- Functions -------------------------------------------------------------------

int f_sqrt(const simul_fval *x, simul_fval *r);
int f_exp(const simul_fval *x, simul_fval *r);
int f_log(const simul_fval *x, simul_fval *r);
int f_log10(const simul_fval *x, simul_fval *r);
int f_pow(const simul_fval *x, const simul_fval *y, simul_fval *r);
int f_sin(const simul_fval *x, simul_fval *r);
int f_cos(const simul_fval *x, simul_fval *r);
int f_tan(const simul_fval *x, simul_fval *r);
int f_asin(const simul_fval *x, simul_fval *r);
int f_acos(const simul_fval *x, simul_fval *r);
int f_atan(const simul_fval *x, simul_fval *r);
int f_atan2(const simul_fval *y, const simul_fval *x, simul_fval *r);
int f_sinh(const simul_fval *x, simul_fval *r);
int f_cosh(const simul_fval *x, simul_fval *r);
int f_tanh(const simul_fval *x, simul_fval *r);
// The few that built-in functions add on top.
int f_cvf(const simul_fval *x, simul_fval *r);
int f_max(const simul_fval *list, simul_fval *r, int count);
int f_min(const simul_fval *list, simul_fval *r, int count);

// ---- Text ----------------------------------------------------------------------------

// printf-style: %e, %E, %f, %F, %g and %G conversions with flags, width and
// precision (at most 500), %% for a percent sign; other text and other
// conversions are copied. Digits are the exact decimal expansion of x,
// rounded to nearest with ties to even, as the C library prints a double.
// `buffer` needs room for the text: %e fits in precision + 16 bytes, %f of
// the largest values takes about 9900 bytes. Returns the length.
int f_ftoa(char *buffer, const char *format, const simul_fval *x);
// One conversion: `conv` is e, E, f, F, g or G; `flags` holds any of "-+ #0".
int f_f2ascii(char *buffer, const simul_fval *x, char conv, const char *flags, int width,
              int precision);
// Digit strings without point, sign or exponent, like ecvt/fcvt: `ndigit`
// significant digits (ecvt) or digits up to `ndigit` places behind the point
// (fcvt); the value is 0.d1d2... * 10^*decpt, *sign is 1 for negative. The
// text goes to `buf`: ndigit + 1 bytes for ecvt, *decpt + ndigit + 2 for fcvt.
char *f_ecvt(const simul_fval *x, int ndigit, int *decpt, int *sign, char *buf);
char *f_fcvt(const simul_fval *x, int ndigit, int *decpt, int *sign, char *buf);
// The digit generator of f_ecvt: `count` significant digits (at most 11000).
char *f_acvt(const simul_fval *x, int count, int *decpt, int *sign, char *buf);
