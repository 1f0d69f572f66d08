// INT128 construction, conversion and text; width helpers on plain integers.
#include <ostream>

#include "expr/int128.h"

INT128 xi_from_int(int32_t i) {
  INT128 r;
  XI_itox(i, r.b);
  return r;
}

INT128 xi_from_uint(uint32_t u) {
  INT128 r;
  XI_utox(u, r.b);
  return r;
}

INT128 xi_from_i64(int64_t i) {
  INT128 r;
  XI_llitox(i, r.b);
  return r;
}

INT128 xi_from_u64(uint64_t u) {
  INT128 r;
  XI_llutox(u, r.b);
  return r;
}

INT128 xi_from_bytes(const uint8_t *bytes) {
  INT128 r;
  XI_asg(bytes, r.b);
  return r;
}

bool INT128::is_zero() const { return XI_eq(b, xi_zero); }

int32_t INT128::to_i32() const {
  int32_t v;
  XI_xtoi(b, &v);
  return v;
}

uint32_t INT128::to_u32() const {
  uint32_t v;
  XI_xtou(b, &v);
  return v;
}

int64_t INT128::to_i64() const {
  int64_t v;
  XI_xtolli(b, &v);
  return v;
}

uint64_t INT128::to_u64() const {
  uint64_t v;
  XI_xtollu(b, &v);
  return v;
}

std::string INT128::to_string() const {
  static constexpr char hex[] = "0123456789abcdef";
  INT128 mag = *this;
  char text[2 + 2 + 32 + 1];
  int n = 0;
  if (is_negative()) {
    text[n++] = '-';
    XI_neg(b, mag.b);  // the smallest value stays 0x80..., its own magnitude
  }
  text[n++] = '0';
  text[n++] = 'x';
  int bytes = (XI_size(b) + 7) / 8;
  for (int i = 16 - bytes; i < 16; ++i) {
    text[n++] = hex[mag.b[i] >> 4];
    text[n++] = hex[mag.b[i] & 15];
  }
  return std::string(text, n);
}

std::ostream &operator<<(std::ostream &os, const INT128 &v) { return os << v.to_string(); }

int ispowerof2(int32_t n) {
  if (n <= 0 || (n & (n - 1)) != 0) return -1;
  return __builtin_ctz(static_cast<uint32_t>(n));
}

int nextpowerof2(int32_t n) {
  if (n < 1) return 0;
  return 32 - __builtin_clz(static_cast<uint32_t>(n));
}

int widthchk(int32_t v, int flags) {
  if (flags & 1) {
    // Signed classes look only at how far below zero the value reaches.
    if (v >= -16) return 5;
    if (v >= -128) return 8;
    if (v >= -256) return 9;
    if (v >= -2048) return 12;
    if (v >= -16384) return 15;
    if (v >= -32768) return 16;
    if (v >= -8388608) return 24;
    return 32;
  }
  uint32_t u = static_cast<uint32_t>(v);
  if (u <= 31) return 5;
  if (u < 256) return 8;
  if (u < 512) return 9;
  if (u < 4096) return 12;
  if (u < 32768) return 15;
  if (u < 65536) return 16;
  if (u <= 0xFFFFFF) return 24;
  return 32;
}
