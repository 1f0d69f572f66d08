// Text to software float: decimal, hexadecimal, NaN and infinity.
#include <cctype>
#include <cstring>

#include "expr/fval.h"
#include "expr/fval_internal.h"

using namespace fv;

const precise_sim_fval prec_pow10[9] = {
    {{0x000A, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000}, 16},
    {{0x0064, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000}, 16},
    {{0x2710, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000}, 16},
    {{0x05F5, 0xE100, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000}, 32},
    {{0x0023, 0x86F2, 0x6FC1, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000}, 64},
    {{0x04EE, 0x2D6D, 0x415B, 0x85AC, 0xEF81, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000}, 112},
    {{0x0018, 0x4F03, 0xE93F, 0xF9F4, 0xDAA7, 0x97ED, 0x6E38, 0xED64, 0xBF6A, 0x1F01}, 224},
    // 10^128 and 10^256 are rounded to 160 bits.
    {{0x024E, 0xE91F, 0x2603, 0xA633, 0x7F19, 0xBCCD, 0xB0DA, 0xC404, 0xDC08, 0xD3D0}, 432},
    {{0x0005, 0x53F7, 0x5FDC, 0xEFCE, 0xF46E, 0xEDDC, 0x80DC, 0xC7F7, 0x55BC, 0x28F2}, 864},
};

namespace {

simul_fval pow10_table[9];
bool pow10_ready = false;

// The table of powers rounded to six words: one in the last place when the
// seventh word has its top bit set.
void f_rnd_prectbl() {
  for (int i = 0; i < 9; ++i) {
    const precise_sim_fval &p = prec_pow10[i];
    uint16_t w[NWORDS + 1] = {};
    std::memcpy(w + 1, p.mant, NWORDS * sizeof(uint16_t));
    int32_t e = p.exponent;
    if (p.mant[NWORDS] & 0x8000) {
      uint16_t one[NWORDS + 1] = {0, 0, 0, 0, 0, 0, 1};
      mw_add(w, one, NWORDS + 1);
    }
    if (w[0]) {
      mw_shr(w, NWORDS + 1, 16);
      e += 16;
    }
    simul_fval &t = pow10_table[i];
    std::memcpy(t.mant, w + 1, sizeof t.mant);
    t.exponent = e;
    t.sign = 0;
  }
  pow10_ready = true;
}

bool prefix_nocase(const char *s, const char *word) {
  for (; *word; ++s, ++word)
    if (std::tolower(static_cast<unsigned char>(*s)) != *word) return false;
  return true;
}

int hex_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// An optionally signed decimal exponent, kept from growing without bound.
long read_exponent(const char *&p) {
  const char *s = p;
  bool neg = false;
  if (*s == '+' || *s == '-') neg = *s++ == '-';
  if (!std::isdigit(static_cast<unsigned char>(*s))) return 0;
  long v = 0;
  for (; std::isdigit(static_cast<unsigned char>(*s)); ++s)
    if (v < 100000000) v = v * 10 + (*s - '0');
  p = s;
  return neg ? -v : v;
}

int add_digit(simul_fval *acc, const simul_fval *base, int digit) {
  int ret = f_mul(acc, base, acc);
  simul_fval d;
  if (digit < 10)
    d = const_dig[digit];
  else
    f_itof(digit, &d);
  return f_add(acc, &d, acc) | ret;
}

int read_hex(const char *p, simul_fval *r) {
  simul_fval acc = pos_zero;
  int ret = 0;
  long scale = 0;
  bool point = false;
  for (;; ++p) {
    if (*p == '.' && !point) {
      point = true;
      continue;
    }
    int d = hex_value(*p);
    if (d < 0) break;
    ret |= add_digit(&acc, &const_sixteen, d);
    if (point) scale -= 4;
  }
  if (*p == 'p' || *p == 'P') {
    ++p;
    scale += read_exponent(p);
  }
  ret |= f_ldexp(&acc, scale, r);
  return ret;
}

// m * 10^e when that is an integer below 2^64, or an integer below 2^48
// over a power of two: exact, so no rounding can differ from scale10's, and
// the common short constants skip its multiplications and divisions.
bool exact_scale(uint64_t m, long e, simul_fval *r) {
  if (e >= 0) {
    for (; e > 0; --e) {
      if (m > UINT64_MAX / 10) return false;
      m *= 10;
    }
    f_utof(m, r);
    return true;
  }
  const long k = -e;
  if (k > 27) return false;  // 5^27 is the last power of five below 2^63
  uint64_t five = 1;
  for (long i = 0; i < k; ++i) five *= 5;
  if (m % five != 0) return false;
  const uint64_t q = m / five;
  // q / 2^k, with the binary exponent kept a multiple of 16: q is shifted up
  // to make k a multiple of 16, and the exponent of the integer goes down.
  const long shift = (16 - k % 16) % 16;
  if (q >> (48 - shift) != 0) return false;
  f_utof(q << shift, r);
  r->exponent -= static_cast<int32_t>(k + shift);
  return true;
}

int read_decimal(const char *p, simul_fval *r) {
  if (!pow10_ready) f_rnd_prectbl();
  // The first 19 significant digits are gathered as an integer: below 10^19
  // the digit-by-digit arithmetic is exact, so only longer mantissas need it.
  constexpr int EXACT_DIGITS = 19;
  uint64_t head = 0;
  int head_digits = 0;
  bool all_in_head = true;
  simul_fval acc = pos_zero;
  int ret = 0;
  auto push = [&](int d) {
    if (head_digits < EXACT_DIGITS) {
      head = head * 10 + static_cast<uint64_t>(d);
      if (++head_digits == EXACT_DIGITS) f_utof(head, &acc);
    } else {
      all_in_head = false;
      ret |= add_digit(&acc, &const_ten, d);
    }
  };
  long frac_digits = 0, pending_zeros = 0;
  bool point = false, leading = true;
  for (;; ++p) {
    if (*p == '.' && !point) {
      point = true;
      continue;
    }
    if (!std::isdigit(static_cast<unsigned char>(*p))) break;
    int d = *p - '0';
    if (leading && d == 0) {
      if (point) ++frac_digits;
      continue;
    }
    leading = false;
    if (point && d == 0) {  // dropped if no other digit follows
      ++pending_zeros;
      continue;
    }
    for (; pending_zeros > 0; --pending_zeros) {
      push(0);
      ++frac_digits;
    }
    push(d);
    if (point) ++frac_digits;
  }
  if (head_digits > 0 && head_digits < EXACT_DIGITS) f_utof(head, &acc);
  long exp10 = 0;
  if (*p == 'e' || *p == 'E') {
    ++p;
    exp10 = read_exponent(p);
  }
  exp10 -= frac_digits;
  long mag = exp10 < 0 ? -exp10 : exp10;
  if (mag >= 512) {
    fp_error |= FPE_OVERFLOW;
    *r = pos_infin;
    return -1;
  }
  if (all_in_head && head != 0 && exact_scale(head, exp10, &acc)) {
    *r = acc;
    return 0;
  }
  ret |= scale10(&acc, exp10);
  *r = acc;
  return ret;
}

}  // namespace

const simul_fval &fv::pow10_entry(int i) {
  if (!pow10_ready) f_rnd_prectbl();
  return pow10_table[i];
}

int fv::scale10(simul_fval *x, long n) {
  int ret = 0;
  bool up = n > 0;
  long mag = up ? n : -n;
  while (mag > 0) {
    long chunk = mag > 511 ? 511 : mag;
    for (int i = 0; i < 9; ++i)
      if (chunk & (1L << i))
        ret |= up ? f_mul(x, &pow10_entry(i), x) : f_div(x, &pow10_entry(i), x);
    mag -= chunk;
  }
  return ret;
}

int f_atof(const char *text, simul_fval *r) {
  const char *p = text;
  while (*p == ' ' || *p == '\t') ++p;
  if (prefix_nocase(p, "nan")) return *r = a_nan, 0;
  if (prefix_nocase(p, "-inf")) return *r = neg_infin, 0;
  if (prefix_nocase(p, "+inf")) return *r = pos_infin, 0;
  if (prefix_nocase(p, "inf")) return *r = pos_infin, 0;
  uint32_t sign = 0;
  if (*p == '+' || *p == '-') sign = *p++ == '-';
  int ret;
  if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X'))
    ret = read_hex(p + 2, r);
  else
    ret = read_decimal(p, r);
  r->sign = sign;
  return ret ? -1 : 0;
}
