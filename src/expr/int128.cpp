// Arithmetic on 128-bit integers held as 16 big-endian bytes. The bytes are
// loaded into two 64-bit halves for the work; that keeps an add to a few
// instructions on the path of every expression.
#include "expr/int128.h"

#include <bit>
#include <cstring>

bool xi_error = false;

namespace {

struct u128 {
  uint64_t hi, lo;
};

// The halves are big-endian in memory; the host order is fixed at compile time.
uint64_t load_half(const uint8_t *a) {
  uint64_t v;
  std::memcpy(&v, a, 8);
  if constexpr (std::endian::native == std::endian::little) v = __builtin_bswap64(v);
  return v;
}

void store_half(uint64_t v, uint8_t *r) {
  if constexpr (std::endian::native == std::endian::little) v = __builtin_bswap64(v);
  std::memcpy(r, &v, 8);
}

u128 load(const uint8_t *a) { return {load_half(a), load_half(a + 8)}; }

void store(u128 v, uint8_t *r) {
  store_half(v.hi, r);
  store_half(v.lo, r + 8);
}

bool negative(u128 v) { return (v.hi >> 63) != 0; }
bool is_zero(u128 v) { return (v.hi | v.lo) == 0; }

u128 neg(u128 v) {
  u128 r{~v.hi, ~v.lo};
  r.lo += 1;
  if (r.lo == 0) r.hi += 1;
  return r;
}

// Logical shifts by 0 to 128.
u128 shl(u128 v, int n) {
  if (n >= 128) return {0, 0};
  if (n >= 64) return {v.lo << (n - 64), 0};
  if (n == 0) return v;
  return {(v.hi << n) | (v.lo >> (64 - n)), v.lo << n};
}

u128 shr_logical(u128 v, int n) {
  if (n >= 128) return {0, 0};
  if (n >= 64) return {0, v.hi >> (n - 64)};
  if (n == 0) return v;
  return {v.hi >> n, (v.lo >> n) | (v.hi << (64 - n))};
}

u128 shr_arith(u128 v, int n) {
  bool neg_v = negative(v);
  if (n >= 128) return neg_v ? u128{~0ULL, ~0ULL} : u128{0, 0};
  u128 r = shr_logical(v, n);
  if (neg_v && n > 0) {
    u128 fill = shl({~0ULL, ~0ULL}, 128 - n);
    r.hi |= fill.hi;
    r.lo |= fill.lo;
  }
  return r;
}

int bit_length(u128 v) {
  if (v.hi) return 128 - __builtin_clzll(v.hi);
  if (v.lo) return 64 - __builtin_clzll(v.lo);
  return 0;
}

bool ge_unsigned(u128 a, u128 b) { return a.hi != b.hi ? a.hi > b.hi : a.lo >= b.lo; }

u128 sub_unsigned(u128 a, u128 b) {
  u128 r{a.hi - b.hi, a.lo - b.lo};
  if (a.lo < b.lo) r.hi -= 1;
  return r;
}

// Unsigned long division, one bit of quotient per step.
void divide_unsigned(u128 n, u128 d, u128 &q, u128 &rem) {
  q = {0, 0};
  rem = {0, 0};
  for (int i = bit_length(n) - 1; i >= 0; --i) {
    rem = shl(rem, 1);
    rem.lo |= (i >= 64 ? n.hi >> (i - 64) : n.lo >> i) & 1;
    if (ge_unsigned(rem, d)) {
      rem = sub_unsigned(rem, d);
      if (i >= 64) q.hi |= 1ULL << (i - 64); else q.lo |= 1ULL << i;
    }
  }
}

// Shared by XI_div and XI_mod; returns 1 for a zero divisor.
int divmod(const uint8_t *a, const uint8_t *b, u128 &q, u128 &rem) {
  u128 x = load(a), y = load(b);
  if (is_zero(y)) {
    q = load(negative(x) ? xi_minint : xi_maxint);
    rem = {0, 0};
    return 1;
  }
  if (is_zero(x)) {
    q = rem = {0, 0};
    return 0;
  }
  if (x.hi == y.hi && x.lo == y.lo) {
    q = {0, 1};
    rem = {0, 0};
    return 0;
  }
  bool nx = negative(x), ny = negative(y);
  divide_unsigned(nx ? neg(x) : x, ny ? neg(y) : y, q, rem);
  if (nx != ny) q = neg(q);
  if (nx) rem = neg(rem);
  return 0;
}

}  // namespace

int XI_add(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  u128 x = load(a), y = load(b);
  u128 s{x.hi + y.hi, x.lo + y.lo};
  unsigned c = s.lo < x.lo;
  s.hi += c;
  int carry = (s.hi < x.hi) || (c && s.hi == x.hi);
  store(s, r);
  return carry;
}

int XI_sub(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  u128 x = load(a), y = load(b);
  int borrow = !ge_unsigned(x, y);
  store(sub_unsigned(x, y), r);
  return borrow;
}

void XI_neg(const uint8_t *a, uint8_t *r) { store(neg(load(a)), r); }

int XI_mpy(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  u128 x = load(a), y = load(b);
  bool differ = negative(x) != negative(y);
  if (negative(x)) x = neg(x);
  if (negative(y)) y = neg(y);
  if ((x.hi | y.hi) == 0) {  // the common case: both fit in 64 bits
    const unsigned __int128 p = static_cast<unsigned __int128>(x.lo) * y.lo;
    const u128 prod{static_cast<uint64_t>(p >> 64), static_cast<uint64_t>(p)};
    store(differ ? neg(prod) : prod, r);
    return 0;
  }
  // 32-bit limbs, least significant first; an 8-limb product.
  uint32_t xl[4] = {uint32_t(x.lo), uint32_t(x.lo >> 32), uint32_t(x.hi), uint32_t(x.hi >> 32)};
  uint32_t yl[4] = {uint32_t(y.lo), uint32_t(y.lo >> 32), uint32_t(y.hi), uint32_t(y.hi >> 32)};
  uint32_t p[8] = {};
  for (int i = 0; i < 4; ++i) {
    uint64_t carry = 0;
    for (int j = 0; j < 4; ++j) {
      uint64_t t = uint64_t(xl[i]) * yl[j] + p[i + j] + carry;
      p[i + j] = uint32_t(t);
      carry = t >> 32;
    }
    p[i + 4] = uint32_t(carry);
  }
  if (p[4] | p[5] | p[6] | p[7]) {
    XI_asg(differ ? xi_minint : xi_maxint, r);
    return 1;
  }
  u128 prod{(uint64_t(p[3]) << 32) | p[2], (uint64_t(p[1]) << 32) | p[0]};
  store(differ ? neg(prod) : prod, r);
  return 0;
}

int XI_div(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  u128 q, rem;
  int ret = divmod(a, b, q, rem);
  store(q, r);
  return ret;
}

int XI_mod(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  u128 q, rem;
  int ret = divmod(a, b, q, rem);
  store(rem, r);
  return ret;
}

void XI_and(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  const u128 x = load(a), y = load(b);
  store({x.hi & y.hi, x.lo & y.lo}, r);
}

void XI_or(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  const u128 x = load(a), y = load(b);
  store({x.hi | y.hi, x.lo | y.lo}, r);
}

void XI_xor(const uint8_t *a, const uint8_t *b, uint8_t *r) {
  const u128 x = load(a), y = load(b);
  store({x.hi ^ y.hi, x.lo ^ y.lo}, r);
}

void XI_notb(const uint8_t *a, uint8_t *r) {
  const u128 x = load(a);
  store({~x.hi, ~x.lo}, r);
}

int XI_shl(const uint8_t *a, int n, uint8_t *r) {
  if (n < 0) {
    // -INT_MIN does not exist; any count beyond 128 shifts everything out.
    XI_shr(a, n < -128 ? 129 : -n, r);
    return 1;
  }
  if (n > 128) {
    XI_asg(xi_zero, r);
    xi_error = true;
    return 1;
  }
  // Only the byte that is shifted partly out counts as a loss.
  int whole = n / 8, part = n % 8;
  int lost = (part != 0 && whole < 16) ? (a[whole] >> (8 - part)) != 0 : 0;
  store(shl(load(a), n), r);
  return lost;
}

int XI_shr(const uint8_t *a, int n, uint8_t *r) {
  if (n < 0) return XI_shl(a, n < -128 ? 129 : -n, r);
  u128 v = load(a);
  if (n > XI_size(a)) {
    XI_asg(negative(v) ? xi_negone : xi_zero, r);
    return 0;
  }
  store(shr_arith(v, n), r);
  return 0;
}

int XI_size(const uint8_t *a) {
  u128 v = load(a);
  if (negative(v)) return bit_length({~v.hi, ~v.lo}) + 1;
  int n = bit_length(v);
  return n ? n : 1;
}

int XI_cmp(const uint8_t *a, const uint8_t *b) {
  // The sign bit flipped turns the signed order into the unsigned byte order.
  int ta = a[0] ^ 0x80, tb = b[0] ^ 0x80;
  if (ta != tb) return ta < tb ? -1 : 1;
  int c = std::memcmp(a + 1, b + 1, 15);
  return c < 0 ? -1 : c > 0 ? 1 : 0;
}

bool XI_eq(const uint8_t *a, const uint8_t *b) { return std::memcmp(a, b, 16) == 0; }
bool XI_ne(const uint8_t *a, const uint8_t *b) { return std::memcmp(a, b, 16) != 0; }
bool XI_lt(const uint8_t *a, const uint8_t *b) { return XI_cmp(a, b) < 0; }
bool XI_le(const uint8_t *a, const uint8_t *b) { return XI_cmp(a, b) <= 0; }
bool XI_gt(const uint8_t *a, const uint8_t *b) { return XI_cmp(a, b) > 0; }
bool XI_ge(const uint8_t *a, const uint8_t *b) { return XI_cmp(a, b) >= 0; }

void XI_asg(const uint8_t *a, uint8_t *r) {
  if (a != r) std::memmove(r, a, 16);
}

void XI_itox(int32_t i, uint8_t *r) { XI_llitox(i, r); }

void XI_llitox(int64_t i, uint8_t *r) {
  store({i < 0 ? ~0ULL : 0ULL, static_cast<uint64_t>(i)}, r);
}

void XI_utox(uint32_t u, uint8_t *r) { store({0, u}, r); }

void XI_llutox(uint64_t u, uint8_t *r) { store({0, u}, r); }

int XI_xtoi(const uint8_t *a, int32_t *i) {
  *i = static_cast<int32_t>(load(a).lo);
  return XI_size(a) > 32;
}

int32_t XI_shift_count(const uint8_t *a) {
  const bool neg_a = (a[0] & 0x80) != 0;
  // A signed 32-bit number: 31 bits of magnitude for a positive one.
  if (XI_size(a) > (neg_a ? 32 : 31)) return neg_a ? INT32_MIN : INT32_MAX;
  return static_cast<int32_t>(load(a).lo);
}

int XI_xtou(const uint8_t *a, uint32_t *u) {
  *u = static_cast<uint32_t>(load(a).lo);
  return XI_size(a) > 32;
}

int XI_xtolli(const uint8_t *a, int64_t *i) {
  *i = static_cast<int64_t>(load(a).lo);
  return XI_size(a) > 64;
}

int XI_xtollu(const uint8_t *a, uint64_t *u) {
  *u = load(a).lo;
  return XI_size(a) > 64;
}
