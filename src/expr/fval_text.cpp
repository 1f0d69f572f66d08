// Software float to text, printf-style, for the cross-reference listing.
#include <cstring>

#include "expr/fval.h"
#include "expr/fval_internal.h"

using namespace fv;

namespace {

// Digits that the simulated precision can carry; later ones print as 0.
constexpr int SIGNIFICANT = 30;
// Bounds of what one conversion prints.
constexpr int MAX_PRECISION = 500;
constexpr int MAX_DIGITS = 11000;

// |x| = y * 10^k with y in [1, 10); x finite and non-zero.
long scale_to_unit(const simul_fval *x, simul_fval *y) {
  *y = *x;
  y->sign = 0;
  long e = f_findexp(y) - 1;  // |x| in [2^e, 2^(e+1))
  // floor(e * log10(2)), possibly one too low
  long k = e >= 0 ? e * 30103 / 100000 : -((-e * 30103 + 99999) / 100000);
  scale10(y, -k);
  static const simul_fval ten = const_ten;
  while (f_ge(y, &ten)) {
    f_div(y, &ten, y);
    ++k;
  }
  while (f_lt(y, &const_one)) {
    f_mul(y, &ten, y);
    --k;
  }
  return k;
}

// Adds one in the last of `n` digits; true if it carried out of the first.
bool round_up(char *d, int n) {
  for (int i = n - 1; i >= 0; --i) {
    if (d[i] != '9') {
      ++d[i];
      return false;
    }
    d[i] = '0';
  }
  d[0] = '1';
  return true;
}

}  // namespace

char *f_acvt(const simul_fval *x, int count, int *decpt, int *sign, char *buf) {
  *sign = x->sign & 1;
  if (count < 1) count = 1;
  if (count > MAX_DIGITS) count = MAX_DIGITS;
  if (f_iszero(x) || f_isnan(x) || f_isinf(x)) {
    std::memset(buf, '0', count);
    buf[count] = '\0';
    *decpt = 1;
    return buf;
  }
  uint32_t saved = fp_error;
  simul_fval y;
  long k = scale_to_unit(x, &y);
  int live = count < SIGNIFICANT ? count : SIGNIFICANT;
  for (int i = 0; i < live; ++i) {
    long d;
    f_ftoi(&y, &d);
    if (d > 9) d = 9;
    buf[i] = char('0' + d);
    simul_fval dv = const_dig[d];
    f_sub(&y, &dv, &y);
    f_mul(&y, &const_ten, &y);
  }
  for (int i = live; i < count; ++i) buf[i] = '0';
  buf[count] = '\0';
  if (live == count) {
    // What is left, y in [0, 10), decides; an exact half goes to even.
    simul_fval five = const_dig[5];
    bool up = f_gt(&y, &five) || (f_eq(&y, &five) && (buf[count - 1] - '0') % 2 == 1);
    if (up && round_up(buf, count)) ++k;
  }
  fp_error = saved;
  *decpt = int(k + 1);
  return buf;
}

char *f_ecvt(const simul_fval *x, int ndigit, int *decpt, int *sign, char *buf) {
  return f_acvt(x, ndigit, decpt, sign, buf);
}

char *f_fcvt(const simul_fval *x, int ndigit, int *decpt, int *sign, char *buf) {
  if (ndigit < 0) ndigit = 0;
  char probe[SIGNIFICANT + 2];
  f_acvt(x, SIGNIFICANT, decpt, sign, probe);
  int count = *decpt + ndigit;
  if (f_iszero(x) || f_isnan(x) || f_isinf(x) || count < 0) {
    // Nothing before the last place asked for.
    std::memset(buf, '0', ndigit > 0 ? ndigit : 1);
    buf[ndigit > 0 ? ndigit : 1] = '\0';
    *decpt = 0;
    if (f_iszero(x) || f_isnan(x) || f_isinf(x)) *decpt = 1;
    return buf;
  }
  if (count == 0) {
    // Only the rounding of the first digit can leave a 1 in the last place.
    bool up = probe[0] > '5' || (probe[0] == '5' && std::strspn(probe + 1, "0") < SIGNIFICANT - 1);
    buf[0] = up ? '1' : '0';
    buf[1] = '\0';
    *decpt = up ? *decpt + 1 : *decpt;
    if (!up) *decpt = 1 - ndigit;
    return buf;
  }
  int old = *decpt;
  f_acvt(x, count, decpt, sign, buf);
  if (*decpt > old && count < MAX_DIGITS) {  // rounded up to a new leading digit
    buf[count] = '0';
    buf[count + 1] = '\0';
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
