#pragma once
// Helpers of the number-system tests: the host's IEEE arithmetic serves only
// as the oracle here.
#include <cstdint>
#include <cstring>
#include <string>

#include "expr/fval.h"

namespace numtest {

inline simul_fval P(const char *text) {
  simul_fval r;
  f_atof(text, &r);
  return r;
}

inline uint64_t dbits(double d) {
  uint64_t b;
  std::memcpy(&b, &d, 8);
  return b;
}

inline uint32_t fbits(float f) {
  uint32_t b;
  std::memcpy(&b, &f, 4);
  return b;
}

inline double D(const simul_fval &x) {
  uint64_t b = get_ieee_dbl_fmt(&x);
  double d;
  std::memcpy(&d, &b, 8);
  return d;
}

// Exact: every double is a simul_fval.
inline simul_fval S(double d) {
  uint64_t b = dbits(d);
  simul_fval r;
  ieee_cvt_dtos(uint32_t(b >> 32), uint32_t(b), &r);
  return r;
}

inline std::string show(const simul_fval &x) {
  char buf[120];
  std::snprintf(buf, sizeof buf, "{%04x %04x %04x %04x %04x %04x e%d s%u}", x.mant[0], x.mant[1],
                x.mant[2], x.mant[3], x.mant[4], x.mant[5], x.exponent, x.sign);
  return buf;
}

// A deterministic stream of 64-bit values.
struct lcg {
  uint64_t s;
  uint64_t next() {
    s = s * 6364136223846793005ULL + 1442695040888963407ULL;
    return s ^ (s >> 29);
  }
};

}  // namespace numtest
