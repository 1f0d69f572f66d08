#pragma once
// 128-bit two's-complement integer kept as 16 bytes, most significant first.
// It stays a trivial type: tokens and values hold it inside unions. Values are
// made by the xi_from_* factories or by value-initialisation (INT128{} is 0).
#include <cstdint>
#include <iosfwd>
#include <string>

// ---- Operations on 16-byte arrays (a, b in; r out; r may alias a or b) ------

// Set by XI_shl when the count is beyond 128; the expression folder clears
// it before a step and tests it after.
extern bool xi_error;

int XI_add(const uint8_t *a, const uint8_t *b, uint8_t *r);  // carry out of the top
int XI_sub(const uint8_t *a, const uint8_t *b, uint8_t *r);  // borrow out of the top
void XI_neg(const uint8_t *a, uint8_t *r);
int XI_mpy(const uint8_t *a, const uint8_t *b, uint8_t *r);  // saturates, 1 on overflow
int XI_div(const uint8_t *a, const uint8_t *b, uint8_t *r);  // truncating, 1 on b == 0
int XI_mod(const uint8_t *a, const uint8_t *b, uint8_t *r);  // dividend's sign, 1 on b == 0
void XI_and(const uint8_t *a, const uint8_t *b, uint8_t *r);
void XI_or(const uint8_t *a, const uint8_t *b, uint8_t *r);
void XI_xor(const uint8_t *a, const uint8_t *b, uint8_t *r);
void XI_notb(const uint8_t *a, uint8_t *r);
int XI_shl(const uint8_t *a, int n, uint8_t *r);  // non-zero if bits were lost
int XI_shr(const uint8_t *a, int n, uint8_t *r);  // arithmetic
int XI_size(const uint8_t *a);                    // least bits that hold the value
int XI_cmp(const uint8_t *a, const uint8_t *b);   // signed: -1, 0, 1
bool XI_eq(const uint8_t *a, const uint8_t *b);
bool XI_ne(const uint8_t *a, const uint8_t *b);
bool XI_lt(const uint8_t *a, const uint8_t *b);
bool XI_le(const uint8_t *a, const uint8_t *b);
bool XI_gt(const uint8_t *a, const uint8_t *b);
bool XI_ge(const uint8_t *a, const uint8_t *b);
void XI_asg(const uint8_t *a, uint8_t *r);
void XI_itox(int32_t i, uint8_t *r);      // sign-extends
void XI_llitox(int64_t i, uint8_t *r);
void XI_utox(uint32_t u, uint8_t *r);     // zero-extends
void XI_llutox(uint64_t u, uint8_t *r);
int XI_xtoi(const uint8_t *a, int32_t *i);     // low 32 bits; 1 if XI_size(a) > 32
// A shift count: the value itself when it fits 32 bits, else the nearest
// 32-bit bound, which shifts everything out just the same.
int32_t XI_shift_count(const uint8_t *a);
int XI_xtou(const uint8_t *a, uint32_t *u);
int XI_xtolli(const uint8_t *a, int64_t *i);   // low 64 bits; 1 if XI_size(a) > 64
int XI_xtollu(const uint8_t *a, uint64_t *u);

// ---- Constants -------------------------------------------------------------

inline constexpr uint8_t xi_zero[16] = {};
inline constexpr uint8_t xi_one[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
inline constexpr uint8_t xi_ten[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 10};
inline constexpr uint8_t xi_negone[16] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                          0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
inline constexpr uint8_t xi_not1f[16] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                         0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xE0};
inline constexpr uint8_t xi_minint[16] = {0x80};
inline constexpr uint8_t xi_maxint[16] = {0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                          0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
inline constexpr uint8_t xi_32bitmask[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                             0xFF, 0xFF, 0xFF, 0xFF};
inline constexpr uint8_t xi_dig[10][16] = {
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 6}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 7},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 8}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 9},
};

// ---- The value type --------------------------------------------------------

struct INT128 {
  uint8_t b[16];

  INT128 &operator+=(const INT128 &o) { XI_add(b, o.b, b); return *this; }
  INT128 &operator-=(const INT128 &o) { XI_sub(b, o.b, b); return *this; }
  INT128 &operator*=(const INT128 &o) { XI_mpy(b, o.b, b); return *this; }
  INT128 &operator/=(const INT128 &o) { XI_div(b, o.b, b); return *this; }
  INT128 &operator%=(const INT128 &o) { XI_mod(b, o.b, b); return *this; }
  INT128 &operator&=(const INT128 &o) { XI_and(b, o.b, b); return *this; }
  INT128 &operator|=(const INT128 &o) { XI_or(b, o.b, b); return *this; }
  INT128 &operator^=(const INT128 &o) { XI_xor(b, o.b, b); return *this; }
  INT128 &operator<<=(int n) { XI_shl(b, n, b); return *this; }
  INT128 &operator>>=(int n) { XI_shr(b, n, b); return *this; }

  bool is_negative() const { return (b[0] & 0x80) != 0; }
  bool is_zero() const;
  int size() const { return XI_size(b); }
  int32_t to_i32() const;    // low bits, no checks
  uint32_t to_u32() const;
  int64_t to_i64() const;
  uint64_t to_u64() const;
  // "-" if negative, then "0x" and two lower-case hex digits of the magnitude
  // for each byte that the value's size needs: -1 is "-0x01".
  std::string to_string() const;
};
static_assert(sizeof(INT128) == 16);

INT128 xi_from_int(int32_t i);
INT128 xi_from_uint(uint32_t u);
INT128 xi_from_i64(int64_t i);
INT128 xi_from_u64(uint64_t u);
INT128 xi_from_bytes(const uint8_t *bytes);  // 16 bytes, most significant first

inline INT128 operator+(INT128 a, const INT128 &b) { return a += b; }
inline INT128 operator-(INT128 a, const INT128 &b) { return a -= b; }
inline INT128 operator*(INT128 a, const INT128 &b) { return a *= b; }
inline INT128 operator/(INT128 a, const INT128 &b) { return a /= b; }
inline INT128 operator%(INT128 a, const INT128 &b) { return a %= b; }
inline INT128 operator&(INT128 a, const INT128 &b) { return a &= b; }
inline INT128 operator|(INT128 a, const INT128 &b) { return a |= b; }
inline INT128 operator^(INT128 a, const INT128 &b) { return a ^= b; }
inline INT128 operator<<(INT128 a, int n) { return a <<= n; }
inline INT128 operator>>(INT128 a, int n) { return a >>= n; }
inline INT128 operator-(const INT128 &a) { INT128 r; XI_neg(a.b, r.b); return r; }
inline INT128 operator~(const INT128 &a) { INT128 r; XI_notb(a.b, r.b); return r; }

inline INT128 operator+(INT128 a, int b) { return a += xi_from_int(b); }
inline INT128 operator-(INT128 a, int b) { return a -= xi_from_int(b); }
inline INT128 operator*(INT128 a, int b) { return a *= xi_from_int(b); }
inline INT128 operator/(INT128 a, int b) { return a /= xi_from_int(b); }
inline INT128 operator%(INT128 a, int b) { return a %= xi_from_int(b); }
inline INT128 operator&(INT128 a, int b) { return a &= xi_from_int(b); }

inline bool operator==(const INT128 &a, const INT128 &b) { return XI_eq(a.b, b.b); }
inline bool operator!=(const INT128 &a, const INT128 &b) { return XI_ne(a.b, b.b); }
inline bool operator<(const INT128 &a, const INT128 &b) { return XI_lt(a.b, b.b); }
inline bool operator<=(const INT128 &a, const INT128 &b) { return XI_le(a.b, b.b); }
inline bool operator>(const INT128 &a, const INT128 &b) { return XI_gt(a.b, b.b); }
inline bool operator>=(const INT128 &a, const INT128 &b) { return XI_ge(a.b, b.b); }
inline bool operator==(const INT128 &a, int b) { return a == xi_from_int(b); }
inline bool operator!=(const INT128 &a, int b) { return a != xi_from_int(b); }
inline bool operator<(const INT128 &a, int b) { return a < xi_from_int(b); }
inline bool operator<=(const INT128 &a, int b) { return a <= xi_from_int(b); }
inline bool operator>(const INT128 &a, int b) { return a > xi_from_int(b); }
inline bool operator>=(const INT128 &a, int b) { return a >= xi_from_int(b); }

std::ostream &operator<<(std::ostream &os, const INT128 &v);

// ---- Helpers on plain integers ---------------------------------------------

// log2 of n if n is a positive power of two, else -1.
int ispowerof2(int32_t n);
// 0 for n below 1, else floor(log2 n) + 1.
int nextpowerof2(int32_t n);
// Width class (5, 8, 9, 12, 15, 16, 24, 32) of v; bit 0 of flags: signed.
int widthchk(int32_t v, int flags);
