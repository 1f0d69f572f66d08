// 128-bit integers against the compiler's __int128 as reference.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "expr/int128.h"

namespace {

using i128 = __int128;
using u128 = unsigned __int128;

INT128 X(i128 v) {
  INT128 r;
  u128 u = static_cast<u128>(v);
  for (int i = 15; i >= 0; --i, u >>= 8) r.b[i] = static_cast<uint8_t>(u);
  return r;
}

i128 V(const INT128 &x) {
  u128 u = 0;
  for (int i = 0; i < 16; ++i) u = (u << 8) | x.b[i];
  return static_cast<i128>(u);
}

constexpr i128 MAXI = static_cast<i128>(~u128(0) >> 1);
constexpr i128 MINI = -MAXI - 1;

std::string hex(i128 v) {
  u128 u = static_cast<u128>(v);
  char buf[40];
  std::snprintf(buf, sizeof buf, "%016llx%016llx", static_cast<unsigned long long>(u >> 64),
                static_cast<unsigned long long>(u));
  return buf;
}

// Edge values and a deterministic spread of others.
std::vector<i128> sample_values() {
  std::vector<i128> v = {0,         1,          -1,        2,          -2,       10,
                         255,       256,        -128,      -129,       MAXI,     MINI,
                         MAXI - 1,  MINI + 1,   i128(1) << 64, -(i128(1) << 64),
                         i128(1) << 63, (i128(1) << 64) - 1, i128(1) << 126, -(i128(1) << 126),
                         i128(0x7FFFFFFF), -i128(0x80000000LL), i128(0xFFFFFFFFULL), 12345678901234567LL};
  u128 s = 0x9E3779B97F4A7C15ULL;
  for (int i = 0; i < 40; ++i) {
    s = s * (u128(0x5851F42D4C957F2DULL) | (u128(0x14057B7EF767814FULL) << 64)) + 1442695040888963407ULL;
    int width = 1 + i * 3 % 128;
    i128 r = static_cast<i128>(s >> (128 - width));
    v.push_back(i % 2 ? -r : r);
  }
  return v;
}

int ref_size(i128 v) {
  u128 u = static_cast<u128>(v < 0 ? ~v : v);
  int n = 0;
  while (u) ++n, u >>= 1;
  return v < 0 ? n + 1 : (n ? n : 1);
}

u128 mag(i128 v) { return v < 0 ? u128(0) - static_cast<u128>(v) : static_cast<u128>(v); }

// Every pair of sample values through the binary operations.
TEST(Numbers_Int128, PairsAgainstReference) {
  auto vals = sample_values();
  for (i128 a : vals)
    for (i128 b : vals) {
      SCOPED_TRACE(hex(a) + " " + hex(b));
      const INT128 xa = X(a), xb = X(b);
      const u128 ua = static_cast<u128>(a), ub = static_cast<u128>(b);
      INT128 r, m;
      EXPECT_EQ(XI_add(xa.b, xb.b, r.b), ua + ub < ua ? 1 : 0);
      EXPECT_EQ(V(r), static_cast<i128>(ua + ub));
      EXPECT_EQ(XI_sub(xa.b, xb.b, r.b), ua < ub ? 1 : 0);
      EXPECT_EQ(V(r), static_cast<i128>(ua - ub));

      // The product saturates on overflow, by the sign of the exact result.
      u128 p;
      const bool over = __builtin_mul_overflow(mag(a), mag(b), &p), differ = (a < 0) != (b < 0);
      EXPECT_EQ(XI_mpy(xa.b, xb.b, r.b), over ? 1 : 0);
      EXPECT_EQ(V(r), over ? (differ ? MINI : MAXI) : static_cast<i128>(differ ? u128(0) - p : p));

      if (b != 0) {  // division truncates; MINI / -1 wraps, as the magnitudes say
        EXPECT_EQ(XI_div(xa.b, xb.b, r.b), 0);
        EXPECT_EQ(XI_mod(xa.b, xb.b, m.b), 0);
        const bool wraps = a == MINI && b == -1;
        EXPECT_EQ(V(r), wraps ? MINI : a / b);
        EXPECT_EQ(V(m), wraps ? 0 : a % b);
      }
      EXPECT_EQ(XI_cmp(xa.b, xb.b), a < b ? -1 : a > b ? 1 : 0);
      EXPECT_EQ(XI_lt(xa.b, xb.b), a < b);
      EXPECT_EQ(XI_ge(xa.b, xb.b), a >= b);
      XI_and(xa.b, xb.b, r.b);
      EXPECT_EQ(V(r), a & b);
      XI_or(xa.b, xb.b, r.b);
      EXPECT_EQ(V(r), a | b);
      XI_xor(xa.b, xb.b, r.b);
      EXPECT_EQ(V(r), a ^ b);
    }
  // 2^64 * 2^64 is one past the range; a zero divisor gives the extreme of the sign.
  INT128 r, m;
  EXPECT_EQ(XI_mpy(X(i128(1) << 64).b, X(i128(1) << 64).b, r.b), 1);
  EXPECT_EQ(V(r), MAXI);
  const i128 zero_div[][2] = {{5, MAXI}, {0, MAXI}, {-5, MINI}, {MINI, MINI}};
  for (auto &c : zero_div) {
    EXPECT_EQ(XI_div(X(c[0]).b, xi_zero, r.b), 1);
    EXPECT_EQ(V(r), c[1]);
    EXPECT_EQ(XI_mod(X(c[0]).b, xi_zero, m.b), 1);
    EXPECT_EQ(V(m), 0);
  }
}

TEST(Numbers_Int128, ShiftLeftLossAndRange) {
  struct {
    i128 a;
    int n;
    i128 want;
    int ret;
    bool err;
  } cases[] = {
      {1, 0, 1, 0, false}, {1, 127, MINI, 0, false}, {0x81, 1, 0x102, 0, false},
      {i128(0x80) << 120, 1, 0, 1, false},  // a bit leaves the top byte
      {i128(0x01) << 120, 8, 0, 0, false},  // a whole byte out is not counted
      {i128(0x40) << 120, 2, 0, 1, false}, {i128(0x40) << 120, 1, MINI, 0, false},
      {i128(0x3) << 112, 15, MINI, 1, false},  // the zero top byte goes whole, 0x03 loses a bit
      {i128(0x01) << 112, 15, MINI, 0, false}, {i128(0x80) << 112, 9, 0, 1, false}, {-1, 128, 0, 0, false},
      {-1, 129, 0, 1, true}, {5, 1000, 0, 1, true},
      {-8, -2, -2, 1, false},  // a negative count shifts right
  };
  for (auto &c : cases) {
    xi_error = false;
    INT128 r;
    int ret = XI_shl(X(c.a).b, c.n, r.b);
    EXPECT_EQ(V(r), c.want) << hex(c.a) << " << " << c.n;
    EXPECT_EQ(ret, c.ret) << hex(c.a) << " << " << c.n;
    EXPECT_EQ(xi_error, c.err) << hex(c.a) << " << " << c.n;
  }
  xi_error = false;
  for (i128 a : sample_values())
    for (int n : {0, 1, 7, 8, 9, 31, 63, 64, 65, 100, 127}) {
      INT128 r;
      XI_shl(X(a).b, n, r.b);
      EXPECT_EQ(V(r), static_cast<i128>(static_cast<u128>(a) << n));
    }
  EXPECT_FALSE(xi_error);
}

TEST(Numbers_Int128, ShiftRightIsArithmetic) {
  for (i128 a : sample_values())
    for (int n : {0, 1, 7, 8, 9, 63, 64, 65, 126, 127, 128, 129, 500}) {
      INT128 r;
      XI_shr(X(a).b, n, r.b);
      EXPECT_EQ(V(r), a >> (n > 127 ? 127 : n)) << hex(a) << " >> " << n;
    }
  for (int n : {0, 1, 64, 127, 128, 1000}) {
    INT128 r;
    XI_shr(xi_negone, n, r.b);
    EXPECT_EQ(V(r), -1);
  }
  INT128 r;
  XI_shr(X(3).b, -4, r.b);  // a negative count shifts left
  EXPECT_EQ(V(r), 48);
}

TEST(Numbers_Int128, ShiftCountsAtTheEndsOfTheIntRange) {
  // Counts from a source expression reach every int; none may wrap to a
  // small count or negate out of range.
  struct {
    i128 a;
    int n;
    i128 shl, shr;
    bool shl_err, shr_err;
  } cases[] = {
      {1, INT32_MAX, 0, 0, true, false},        {-4, INT32_MAX, 0, -1, true, false},
      {1, INT32_MIN, 0, 0, false, true},        {-4, INT32_MIN, -1, 0, false, true},
      {1, INT32_MIN + 1, 0, 0, false, true},    {MINI, -127, -1, 0, false, false},
      {MINI, -128, -1, 0, false, false},        {MINI, -129, -1, 0, false, true},
      {12, -2, 3, 48, false, false},            {1, 128, 0, 0, false, false},
  };
  for (auto &c : cases) {
    INT128 r;
    xi_error = false;
    XI_shl(X(c.a).b, c.n, r.b);
    EXPECT_EQ(V(r), c.shl) << hex(c.a) << " << " << c.n;
    EXPECT_EQ(xi_error, c.shl_err) << hex(c.a) << " << " << c.n;
    xi_error = false;
    XI_shr(X(c.a).b, c.n, r.b);
    EXPECT_EQ(V(r), c.shr) << hex(c.a) << " >> " << c.n;
    EXPECT_EQ(xi_error, c.shr_err) << hex(c.a) << " >> " << c.n;
  }
  xi_error = false;

  // Counts beyond 32 bits saturate instead of keeping their low bits.
  const i128 counts[][2] = {{0, 0},
                            {-1, -1},
                            {INT32_MAX, INT32_MAX},
                            {i128(INT32_MAX) + 1, INT32_MAX},
                            {0xFFFFFFFFLL, INT32_MAX},
                            {0x100000001LL, INT32_MAX},
                            {INT32_MIN, INT32_MIN},
                            {i128(INT32_MIN) - 1, INT32_MIN},
                            {MAXI, INT32_MAX},
                            {MINI, INT32_MIN}};
  for (auto &c : counts) EXPECT_EQ(XI_shift_count(X(c[0]).b), c[1]) << hex(c[0]);
}

TEST(Numbers_Int128, SizeAndConversions) {
  const i128 sizes[][2] = {{0, 1},    {-1, 1},   {1, 1},      {2, 2},      {-2, 2},           {255, 8},
                           {-128, 8}, {-129, 9}, {256, 9},    {MAXI, 127}, {MINI, 128},       {0xFFFFFFFFLL, 32},
                           {-0x80000000LL, 32}};
  for (auto &c : sizes) EXPECT_EQ(XI_size(X(c[0]).b), c[1]) << hex(c[0]);
  for (i128 a : sample_values()) {
    SCOPED_TRACE(hex(a));
    EXPECT_EQ(XI_size(X(a).b), ref_size(a));
    INT128 r;
    XI_notb(X(a).b, r.b);
    EXPECT_EQ(V(r), ~a);
    XI_neg(X(a).b, r.b);
    EXPECT_EQ(V(r), static_cast<i128>(u128(0) - static_cast<u128>(a)));
    int32_t i32;
    uint32_t u32;
    int64_t i64;
    uint64_t u64;
    EXPECT_EQ(XI_xtoi(X(a).b, &i32), ref_size(a) > 32);
    EXPECT_EQ(i32, static_cast<int32_t>(a));
    EXPECT_EQ(XI_xtou(X(a).b, &u32), ref_size(a) > 32);
    EXPECT_EQ(u32, static_cast<uint32_t>(a));
    EXPECT_EQ(XI_xtolli(X(a).b, &i64), ref_size(a) > 64);
    EXPECT_EQ(i64, static_cast<int64_t>(a));
    EXPECT_EQ(XI_xtollu(X(a).b, &u64), ref_size(a) > 64);
    EXPECT_EQ(u64, static_cast<uint64_t>(a));
  }
  INT128 r;
  XI_itox(-5, r.b);
  EXPECT_EQ(V(r), -5);
  XI_utox(0xFFFFFFFFu, r.b);
  EXPECT_EQ(V(r), 0xFFFFFFFFLL);
  XI_llitox(INT64_MIN, r.b);
  EXPECT_EQ(V(r), INT64_MIN);
  XI_llutox(UINT64_MAX, r.b);
  EXPECT_EQ(V(r), static_cast<i128>(UINT64_MAX));
}

TEST(Numbers_Int128, ToStringPrintsNeededBytes) {
  struct {
    i128 v;
    const char *text;
  } cases[] = {{0, "0x00"},      {1, "0x01"},       {-1, "-0x01"},  {255, "0xff"},  {256, "0x0100"},
               {-128, "-0x80"},  {-129, "-0x0081"}, {0xDEADBEEFLL, "0xdeadbeef"},
               {MINI, "-0x80000000000000000000000000000000"}, {MAXI, "0x7fffffffffffffffffffffffffffffff"}};
  for (auto &c : cases) {
    EXPECT_EQ(X(c.v).to_string(), c.text);
    std::ostringstream os;
    os << X(c.v);
    EXPECT_EQ(os.str(), c.text);
  }
}

TEST(Numbers_Int128, WidthHelpers) {
  struct {
    int32_t v;
    int flags;
    int width;
  } widths[] = {
      {0, 0, 5},           {31, 0, 5},          {32, 0, 8},        {255, 0, 8},
      {256, 0, 9},         {511, 0, 9},         {512, 0, 12},      {4095, 0, 12},
      {4096, 0, 15},       {32767, 0, 15},      {32768, 0, 16},    {65535, 0, 16},
      {65536, 0, 24},      {0xFFFFFF, 0, 24},   {0x1000000, 0, 32}, {-1, 0, 32},
      {100, 48, 8},        {-16, 1, 5},         {-17, 1, 8},       {-128, 1, 8},
      {-129, 1, 9},        {-256, 1, 9},        {-2048, 1, 12},    {-2049, 1, 15},
      {-16384, 1, 15},     {-32768, 1, 16},     {-32769, 1, 24},   {-8388608, 1, 24},
      {-8388609, 1, 32},   {INT32_MIN, 1, 32},  {1000, 1, 5},
  };
  for (auto &c : widths) EXPECT_EQ(widthchk(c.v, c.flags), c.width) << c.v << " flags " << c.flags;
  struct {
    int32_t n;
    int log2, next;
  } pows[] = {{1, 0, 1}, {2, 1, 2}, {3, -1, 2}, {4, 2, 3}, {0, -1, 0}, {-4, -1, 0},
              {1024, 10, 11}, {1023, -1, 10}, {INT32_MIN, -1, 0}, {0x40000000, 30, 31}};
  for (auto &c : pows) {
    EXPECT_EQ(ispowerof2(c.n), c.log2) << c.n;
    EXPECT_EQ(nextpowerof2(c.n), c.next) << c.n;
  }
}

}  // namespace
