// Software float to text, printf-style, for the cross-reference listing.
#include <cstring>

#include "expr/fval.h"
#include "expr/fval_internal.h"

using namespace fv;

namespace {

// Bounds of what one conversion prints.
constexpr int MAX_PRECISION = 500;
constexpr int MAX_DIGITS = 11000;
// Limbs of 32 bits for the integer part or the fraction of any finite value.
constexpr int LIMBS = (32767 + 96) / 32 + 4;
constexpr int MAX_INT_DIGITS = 9880;

// The exact decimal expansion of a finite non-zero value, digit by digit
// from the first significant one. The value is M * 2^s with M the 96-bit
// mantissa; its integer part is turned to text at once, its fraction
// (F / 2^k) gives one digit per multiplication by ten.
class digit_source {
 public:
  void reset(const simul_fval *x) {
    simul_fval c = *x;
    f_left_justify(&c);
    long s = long(c.exponent) - 96;
    uint32_t m[3] = {uint32_t(c.mant[4]) << 16 | c.mant[5], uint32_t(c.mant[2]) << 16 | c.mant[3],
                     uint32_t(c.mant[0]) << 16 | c.mant[1]};
    uint32_t ipart[LIMBS] = {};
    int in = 0;
    std::memset(frac_, 0, sizeof frac_);
    k_ = 0;
    fn_ = 0;
    pos_ = 0;
    pending_ = -1;
    if (s >= 0) {
      int w = int(s / 32), b = int(s % 32);
      for (int i = 0; i < 3; ++i) {
        uint64_t v = uint64_t(m[i]) << b;
        ipart[i + w] |= uint32_t(v);
        ipart[i + w + 1] |= uint32_t(v >> 32);
      }
      in = w + 4;
    } else {
      k_ = -s;
      fn_ = int(k_ / 32) + 2;
      for (int i = 0; i < 3; ++i) frac_[i] = m[i];
      if (k_ < 96) {
        // integer part M >> k; the fraction keeps the low k bits
        int w = int(k_ / 32), b = int(k_ % 32);
        for (int i = 0; i < 3; ++i) {
          uint64_t lo = i + w < 3 ? m[i + w] : 0, hi = i + w + 1 < 3 ? m[i + w + 1] : 0;
          ipart[i] = uint32_t(b ? (lo >> b) | (hi << (32 - b)) : lo);
        }
        in = 3;
        for (int i = fn_; i < 3; ++i) frac_[i] = 0;
        mask_fraction();
      }
    }
    while (in > 0 && ipart[in - 1] == 0) --in;
    // The integer part in decimal, nine digits per division.
    int len = 0;
    char rev[MAX_INT_DIGITS];
    while (in > 0) {
      uint64_t rem = 0;
      for (int i = in - 1; i >= 0; --i) {
        uint64_t cur = (rem << 32) | ipart[i];
        ipart[i] = uint32_t(cur / 1000000000u);
        rem = cur % 1000000000u;
      }
      while (in > 0 && ipart[in - 1] == 0) --in;
      for (int d = 0; d < 9 && (in > 0 || rem); ++d) {
        rev[len++] = char('0' + rem % 10);
        rem /= 10;
      }
    }
    for (int i = 0; i < len; ++i) int_digits_[i] = rev[len - 1 - i];
    int_len_ = len;
    decpt_ = len;
    if (len == 0) {
      // Leading zeros of the fraction only move the point.
      for (;;) {
        int d = next_fraction();
        if (d) {
          pending_ = d;
          break;
        }
        --decpt_;
      }
    }
  }

  int decpt() const { return decpt_; }

  int next() {
    if (pending_ >= 0) {
      int d = pending_;
      pending_ = -1;
      return d;
    }
    if (pos_ < int_len_) return int_digits_[pos_++] - '0';
    return next_fraction();
  }

  bool rest_nonzero() const {
    if (pending_ > 0) return true;
    for (int i = pos_; i < int_len_; ++i)
      if (int_digits_[i] != '0') return true;
    for (int i = 0; i < fn_; ++i)
      if (frac_[i]) return true;
    return false;
  }

 private:
  // Clears the bits from k on: what has gone in front of the point.
  void mask_fraction() {
    int top = int(k_ / 32), bit = int(k_ % 32);
    frac_[top] &= bit ? (1u << bit) - 1 : 0;
    for (int i = top + 1; i < fn_; ++i) frac_[i] = 0;
  }

  // The digit in front of the point after multiplying the fraction by 10.
  int next_fraction() {
    if (k_ == 0) return 0;
    uint64_t carry = 0;
    for (int i = 0; i < fn_; ++i) {
      uint64_t t = uint64_t(frac_[i]) * 10 + carry;
      frac_[i] = uint32_t(t);
      carry = t >> 32;
    }
    int top = int(k_ / 32), bit = int(k_ % 32);
    uint64_t above = (uint64_t(frac_[top + 1]) << 32 | frac_[top]) >> bit;
    mask_fraction();
    return int(above & 15);
  }

  char int_digits_[MAX_INT_DIGITS];
  int int_len_ = 0, pos_ = 0, decpt_ = 0, pending_ = -1;
  uint32_t frac_[LIMBS];
  long k_ = 0;
  int fn_ = 0;
};

digit_source source;  // large: one shared instance

// `total` digits of the expansion into buf, rounded to nearest (ties to
// even); true if the rounding carried into a new leading digit.
bool exact_digits(digit_source &src, int total, char *buf) {
  for (int i = 0; i < total; ++i) buf[i] = char('0' + src.next());
  buf[total > 0 ? total : 0] = '\0';
  int next = src.next();
  int last = total > 0 ? buf[total - 1] - '0' : 0;
  bool up = next > 5 || (next == 5 && (src.rest_nonzero() || last % 2 == 1));
  if (!up) return false;
  if (total <= 0) {
    buf[0] = '1';
    buf[1] = '\0';
    return true;
  }
  for (int i = total - 1; i >= 0; --i) {
    if (buf[i] != '9') {
      ++buf[i];
      return false;
    }
    buf[i] = '0';
  }
  buf[0] = '1';
  return true;
}

bool not_finite_or_zero(const simul_fval *x) { return f_iszero(x) || f_isnan(x) || f_isinf(x); }

}  // namespace

char *f_acvt(const simul_fval *x, int count, int *decpt, int *sign, char *buf) {
  *sign = x->sign & 1;
  if (count < 1) count = 1;
  if (count > MAX_DIGITS) count = MAX_DIGITS;
  if (not_finite_or_zero(x)) {
    std::memset(buf, '0', count);
    buf[count] = '\0';
    *decpt = 1;
    return buf;
  }
  source.reset(x);
  *decpt = source.decpt();
  if (exact_digits(source, count, buf)) ++*decpt;
  return buf;
}

char *f_ecvt(const simul_fval *x, int ndigit, int *decpt, int *sign, char *buf) {
  return f_acvt(x, ndigit, decpt, sign, buf);
}

char *f_fcvt(const simul_fval *x, int ndigit, int *decpt, int *sign, char *buf) {
  *sign = x->sign & 1;
  if (ndigit < 0) ndigit = 0;
  if (not_finite_or_zero(x)) {
    std::memset(buf, '0', ndigit + 1);
    buf[ndigit + 1] = '\0';
    *decpt = 1;
    return buf;
  }
  source.reset(x);
  *decpt = source.decpt();
  int total = *decpt + ndigit;
  if (total > MAX_DIGITS) total = MAX_DIGITS;
  if (total < 0) {
    // Nothing up to the last place asked for, nor can rounding reach it.
    buf[0] = '\0';
    *decpt = -ndigit;
    return buf;
  }
  if (exact_digits(source, total, buf)) {
    ++*decpt;
    if (total > 0) {  // one more place behind the new leading digit
      buf[total] = '0';
      buf[total + 1] = '\0';
    }
  }
  return buf;
}

int f_f2ascii(char *buffer, const simul_fval *x, char conv, const char *flags, int width,
              int precision) {
  bool left = std::strchr(flags, '-'), plus = std::strchr(flags, '+'),
       space = std::strchr(flags, ' '), alt = std::strchr(flags, '#'),
       zero = std::strchr(flags, '0');
  bool upper = conv == 'E' || conv == 'F' || conv == 'G';
  char kind = char(conv | 0x20);
  if (precision < 0) precision = 6;
  if (precision > MAX_PRECISION) precision = MAX_PRECISION;

  static char digits[MAX_DIGITS + MAX_PRECISION + 4];
  static char body[MAX_DIGITS + 2 * MAX_PRECISION + 16];
  int n = 0;
  char sign_char = x->sign ? '-' : plus ? '+' : space ? ' ' : '\0';
  if (f_isnan(x) || f_isinf(x)) {
    if (f_isnan(x)) sign_char = plus ? '+' : space ? ' ' : '\0';
    std::memcpy(body, f_isnan(x) ? (upper ? "NAN" : "nan") : (upper ? "INF" : "inf"), 3);
    n = 3;
    zero = false;
  } else {
    int decpt, sign;
    bool strip = false;
    if (kind == 'g') {
      if (precision == 0) precision = 1;
      f_acvt(x, precision, &decpt, &sign, digits);
      int x10 = f_iszero(x) ? 0 : decpt - 1;
      if (x10 < precision && x10 >= -4) {
        kind = 'f';
        precision = precision - 1 - x10;
      } else {
        kind = 'e';
        precision = precision - 1;
      }
      strip = !alt;
    }
    if (kind == 'e') {
      f_acvt(x, precision + 1, &decpt, &sign, digits);
      int x10 = f_iszero(x) ? 0 : decpt - 1;
      int frac = precision;
      if (strip)
        while (frac > 0 && digits[frac] == '0') --frac;
      body[n++] = digits[0];
      if (frac > 0 || alt) body[n++] = '.';
      std::memcpy(body + n, digits + 1, frac);
      n += frac;
      body[n++] = upper ? 'E' : 'e';
      body[n++] = x10 < 0 ? '-' : '+';
      int ax = x10 < 0 ? -x10 : x10;
      char ebuf[8];
      int en = 0;
      do {
        ebuf[en++] = char('0' + ax % 10);
        ax /= 10;
      } while (ax);
      if (en < 2) ebuf[en++] = '0';
      while (en) body[n++] = ebuf[--en];
    } else {
      f_fcvt(x, precision, &decpt, &sign, digits);
      int len = int(std::strlen(digits));
      int frac = precision;
      // digits stand for 0.d1d2... * 10^decpt
      auto digit_at = [&](int pos) {  // pos 0 is the first digit after the point
        int i = decpt + pos;
        return i >= 0 && i < len ? digits[i] : '0';
      };
      if (strip)
        while (frac > 0 && digit_at(frac - 1) == '0') --frac;
      if (decpt <= 0) {
        body[n++] = '0';
      } else {
        for (int i = 0; i < decpt; ++i) body[n++] = i < len ? digits[i] : '0';
      }
      if (frac > 0 || alt) body[n++] = '.';
      for (int i = 0; i < frac; ++i) body[n++] = digit_at(i);
    }
  }
  int total = n + (sign_char ? 1 : 0);
  int pad = width > total ? width - total : 0;
  int out = 0;
  if (!left && !zero)
    for (; pad > 0; --pad) buffer[out++] = ' ';
  if (sign_char) buffer[out++] = sign_char;
  if (!left && zero)
    for (; pad > 0; --pad) buffer[out++] = '0';
  std::memcpy(buffer + out, body, n);
  out += n;
  for (; pad > 0; --pad) buffer[out++] = ' ';
  buffer[out] = '\0';
  return out;
}

int f_ftoa(char *buffer, const char *format, const simul_fval *x) {
  int out = 0;
  for (const char *p = format; *p;) {
    if (*p != '%') {
      buffer[out++] = *p++;
      continue;
    }
    const char *start = p++;
    if (*p == '%') {
      buffer[out++] = '%';
      ++p;
      continue;
    }
    char flags[8] = {};
    int nf = 0;
    for (; *p && std::strchr("-+ #0", *p); ++p)
      if (nf < 7) flags[nf++] = *p;
    int width = 0;
    for (; *p >= '0' && *p <= '9'; ++p) width = width < 10000 ? width * 10 + (*p - '0') : width;
    int precision = -1;
    if (*p == '.') {
      precision = 0;
      for (++p; *p >= '0' && *p <= '9'; ++p)
        precision = precision < 10000 ? precision * 10 + (*p - '0') : precision;
    }
    while (*p == 'l' || *p == 'L' || *p == 'h') ++p;
    if (*p && std::strchr("eEfFgG", *p)) {
      out += f_f2ascii(buffer + out, x, *p++, flags, width, precision);
    } else {
      // Not a floating conversion: copied as it stands.
      while (start < p) buffer[out++] = *start++;
    }
  }
  buffer[out] = '\0';
  return out;
}
