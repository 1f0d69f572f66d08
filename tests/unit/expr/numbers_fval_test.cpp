// Software float: forms, arithmetic, comparison, integers and rounding.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <vector>

#include "expr/int128.h"
#include "numbers_fixture.h"

using namespace numtest;

namespace {

TEST(Numbers_Fval, ConstantsAndForms) {
  struct {
    const simul_fval *v;
    double d;
  } cases[] = {{&const_one, 1.0},   {&const_ten, 10.0},  {&const_sixteen, 16.0}, {&one_half, 0.5},
               {&three_q, 0.75},    {&neg_one, -1.0},    {&one_p_five, 1.5},     {&two, 2.0},
               {&neg_two, -2.0},    {&const_dig[7], 7.0}, {&const_dig[0], 0.0}};
  for (auto &c : cases) EXPECT_EQ(D(*c.v), c.d);
  EXPECT_TRUE(f_isnan(&a_nan));
  EXPECT_TRUE(f_isinf(&pos_infin) && f_isinf(&neg_infin) && !f_isinf(&pos_huge));
  EXPECT_TRUE(f_iszero(&pos_zero) && f_iszero(&neg_zero));
  EXPECT_EQ(dbits(D(neg_zero)), 0x8000000000000000ULL);
  // Too large to align: infinite.
  simul_fval big{{0x8000}, 32760, 0};
  fp_error = 0;
  EXPECT_EQ(f_align_radix_pt(&big), -1);
  EXPECT_TRUE(f_bit_eq(&big, &pos_infin));
  EXPECT_EQ(fp_error, FPE_OVERFLOW);
}

TEST(Numbers_Fval, SpecialOperands) {
  enum { ADD, SUB, MUL, DIV };
  struct {
    int op;
    simul_fval x, y;
    uint64_t want;  // double bits of the result
    int ret;
    uint32_t fpe;
  } cases[] = {
      {SUB, pos_infin, pos_infin, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {ADD, pos_infin, neg_infin, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {MUL, pos_zero, neg_infin, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {DIV, pos_zero, neg_zero, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {DIV, pos_infin, neg_infin, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {DIV, const_one, pos_zero, 0x7FF0000000000000ULL, -1, FPE_DIVZERO},
      {DIV, neg_one, pos_zero, 0xFFF0000000000000ULL, -1, FPE_DIVZERO},
      {DIV, const_one, neg_zero, 0xFFF0000000000000ULL, -1, FPE_DIVZERO},
      {ADD, a_nan, const_one, 0x7FF8000000000000ULL, 0, 0}, {MUL, const_one, a_nan, 0x7FF8000000000000ULL, 0, 0},
      {ADD, const_one, neg_one, 0, 0, 0},  // an exact zero sum is +0
      {ADD, neg_zero, neg_zero, 0x8000000000000000ULL, 0, 0}, {ADD, neg_zero, pos_zero, 0, 0, 0},
      {ADD, pos_zero, const_ten, 0x4024000000000000ULL, 0, 0}, {SUB, pos_zero, const_ten, 0xC024000000000000ULL, 0, 0},
      {ADD, pos_infin, const_ten, 0x7FF0000000000000ULL, 0, 0}, {MUL, neg_infin, neg_two, 0x7FF0000000000000ULL, 0, 0},
      {MUL, neg_zero, const_ten, 0x8000000000000000ULL, 0, 0}, {DIV, const_ten, neg_infin, 0x8000000000000000ULL, 0, 0},
      {DIV, neg_infin, const_ten, 0xFFF0000000000000ULL, 0, 0},
      {MUL, pos_huge, pos_huge, 0x7FF0000000000000ULL, -1, FPE_OVERFLOW},
      {MUL, pos_huge, neg_huge, 0xFFF0000000000000ULL, -1, FPE_OVERFLOW},
      {DIV, const_one, pos_huge, 0, 0, 0},  // 2^-32736 is still in range
  };
  for (size_t i = 0; i < std::size(cases); ++i) {
    auto &c = cases[i];
    simul_fval r;
    fp_error = 0;
    int ret = c.op == ADD   ? f_add(&c.x, &c.y, &r)
              : c.op == SUB ? f_sub(&c.x, &c.y, &r)
              : c.op == MUL ? f_mul(&c.x, &c.y, &r)
                            : f_div(&c.x, &c.y, &r);
    EXPECT_EQ(fp_error, c.fpe) << "case " << i;
    EXPECT_EQ(ret, c.ret) << "case " << i;
    EXPECT_EQ(get_ieee_dbl_fmt(&r), c.want) << "case " << i;
  }
  // below the range: a signed zero and an underflow
  simul_fval tiny, r;
  f_div(&const_one, &pos_huge, &tiny);
  fp_error = 0;
  EXPECT_EQ(f_mul(&tiny, &tiny, &r), -1);
  EXPECT_TRUE(f_bit_eq(&r, &pos_zero));
  EXPECT_EQ(fp_error, FPE_UNDERFLOW);
  tiny.sign = 1;
  EXPECT_EQ(f_div(&tiny, &pos_huge, &r), -1);
  EXPECT_TRUE(f_bit_eq(&r, &neg_zero));
}

TEST(Numbers_Fval, ArithmeticAgainstHost) {
  lcg g{99};
  auto rnd = [&](int spread) {
    uint64_t b = g.next();
    // similar magnitudes, so the results are far from double ties
    uint64_t e = 1023 + (g.next() % (2 * spread + 1)) - spread;
    return (b & 0x800FFFFFFFFFFFFFULL) | (e << 52);
  };
  for (int i = 0; i < 3000; ++i) {
    double x, y;
    uint64_t bx = rnd(60), by = rnd(60);
    std::memcpy(&x, &bx, 8);
    std::memcpy(&y, &by, 8);
    simul_fval sx = S(x), sy = S(y), r;
    f_add(&sx, &sy, &r);
    EXPECT_EQ(D(r), x + y) << x << " + " << y;
    f_sub(&sx, &sy, &r);
    EXPECT_EQ(D(r), x - y) << x << " - " << y;
    f_mul(&sx, &sy, &r);
    EXPECT_EQ(D(r), x * y) << x << " * " << y;
    f_div(&sx, &sy, &r);
    EXPECT_EQ(D(r), x / y) << x << " / " << y;
  }
  // exact cases, including ones that need all six words
  struct {
    const char *x, *y;
    double sum, prod, quot;
  } exact[] = {
      {"1.5", "1", 2.5, 1.5, 1.5}, {"0x1p80", "1", 0x1p80 + 1, 0x1p80, 0x1p80}, {"3", "-0.25", 2.75, -0.75, -12},
      {"1e10", "1e-10", 1e10 + 1e-10, 1, 1e20},
      {"0x1.fffffffffffffp0", "0x1p-52", 2.0, 0x1.fffffffffffffp-52, 0x1.fffffffffffffp52},
  };
  for (auto &c : exact) {
    simul_fval x = P(c.x), y = P(c.y), r;
    f_add(&x, &y, &r);
    EXPECT_EQ(D(r), c.sum) << c.x << " + " << c.y;
    f_mul(&x, &y, &r);
    EXPECT_EQ(D(r), c.prod) << c.x << " * " << c.y;
    f_div(&x, &y, &r);
    EXPECT_EQ(D(r), c.quot) << c.x << " / " << c.y;
  }
  // 1/3 * 3 truncates just below 1: the normal case does not round
  simul_fval third, back;
  f_div(&const_one, &const_dig[3], &third);
  f_mul(&third, &const_dig[3], &back);
  EXPECT_TRUE(f_lt(&back, &const_one));
  EXPECT_EQ(D(back), 1.0);
}

TEST(Numbers_Fval, Comparisons) {
  simul_fval v[] = {neg_infin, P("-1e300"), neg_one, P("-1e-300"), neg_zero,
                    pos_zero,  P("1e-300"), const_one, P("1.0000000000000000000001"), P("1e300"),
                    pos_infin};
  double order[] = {-INFINITY, -1e300, -1, -1e-300, 0, 0, 1e-300, 1, 1, 1e300, INFINITY};
  for (size_t i = 0; i < std::size(v); ++i)
    for (size_t j = 0; j < std::size(v); ++j) {
      // the host order, but 1.0000000000000000000001 is above 1 here
      int want = order[i] < order[j] ? -1 : order[i] > order[j] ? 1 : 0;
      if (want == 0 && i != j && !(i == 4 && j == 5) && !(i == 5 && j == 4)) want = i < j ? -1 : 1;
      EXPECT_EQ(f_lt(&v[i], &v[j]), want < 0) << i << " " << j;
      EXPECT_EQ(f_le(&v[i], &v[j]), want <= 0) << i << " " << j;
      EXPECT_EQ(f_gt(&v[i], &v[j]), want > 0) << i << " " << j;
      EXPECT_EQ(f_ge(&v[i], &v[j]), want >= 0) << i << " " << j;
      EXPECT_EQ(f_eq(&v[i], &v[j]), want == 0) << i << " " << j;
      EXPECT_EQ(f_ne(&v[i], &v[j]), want != 0) << i << " " << j;
      EXPECT_FALSE(f_lt(&v[i], &a_nan) || f_ge(&a_nan, &v[j]) || f_eq(&a_nan, &v[j]));
      EXPECT_TRUE(f_ne(&a_nan, &v[j]));
    }
  EXPECT_FALSE(f_bit_eq(&pos_zero, &neg_zero));
  // equal values in different forms compare equal
  simul_fval j = const_ten;
  f_left_justify(&j);
  EXPECT_TRUE(f_eq(&j, &const_ten));
  EXPECT_FALSE(f_bit_eq(&j, &const_ten));
}

TEST(Numbers_Fval, IntegerConversions) {
  struct {
    const char *text;
    long i;
    int iret;
    unsigned long u;
    int uret;
  } cases[] = {
      {"0", 0, 0, 0, 0}, {"-1.5", -1, 0, (unsigned long)-1, 0}, {"1.99", 1, 0, 1, 0}, {"0.99", 0, 0, 0, 0},
      {"-0.5", 0, 0, 0, 0}, {"9223372036854775807", LONG_MAX, 0, LONG_MAX, 0},
      {"9223372036854775808", LONG_MAX, -1, 0x8000000000000000UL, 0},
      {"-9223372036854775808", -LONG_MAX, -1, (unsigned long)-LONG_MAX, -1},
      {"18446744073709551615", LONG_MAX, -1, ULONG_MAX, 0}, {"1e30", LONG_MAX, -1, ULONG_MAX, -1},
      {"-1e30", -LONG_MAX, -1, (unsigned long)-LONG_MAX, -1}, {"inf", LONG_MAX, -1, ULONG_MAX, -1},
      {"nan", 0, -1, 0, -1},
  };
  for (auto &c : cases) {
    simul_fval v = P(c.text);
    long i;
    unsigned long u;
    EXPECT_EQ(f_ftoi(&v, &i), c.iret) << c.text;
    EXPECT_EQ(i, c.i) << c.text;
    EXPECT_EQ(f_ftou(&v, &u), c.uret) << c.text;
    EXPECT_EQ(u, c.u) << c.text;
  }
  for (long n : {0L, 1L, -1L, 10L, LONG_MAX, LONG_MIN, 123456789L, -987654321012L}) {
    simul_fval v;
    EXPECT_EQ(f_itof(n, &v), 0);
    EXPECT_EQ(D(v), double(n));
    long back;
    f_ftoi(&v, &back);
    if (n != LONG_MIN) {
      EXPECT_EQ(back, n);
    }
  }
  simul_fval v;
  f_itof(0, &v);
  EXPECT_TRUE(f_bit_eq(&v, &pos_zero));
  f_utof(ULONG_MAX, &v);
  unsigned long u;
  f_ftou(&v, &u);
  EXPECT_EQ(u, ULONG_MAX);

  struct {
    INT128 x;
    double d;
  } wide[] = {{xi_from_bytes(xi_minint), -0x1p127}, {xi_from_bytes(xi_maxint), 0x1p127},
              {xi_from_int(-7), -7.0},                {xi_from_u64(1ULL << 63), 0x1p63},
              {INT128{}, 0.0}};
  for (auto &c : wide) {
    simul_fval f;
    EXPECT_EQ(f_xtof(c.x.b, &f), 0);
    EXPECT_EQ(D(f), c.d);
  }
  struct {
    const char *text;
    INT128 want;
    int ret;
  } back[] = {{"-7.9", xi_from_int(-7), 0},
              {"1e30", xi_from_bytes(xi_one) * xi_from_u64(1000000000000000ULL) *
                           xi_from_u64(1000000000000000ULL), 0},
              {"0x1p127", xi_from_bytes(xi_maxint), -1}, {"-0x1p127", xi_from_bytes(xi_minint), 0},
              {"-1e40", xi_from_bytes(xi_minint), -1},
              {"0.5", INT128{}, 0}};
  for (auto &c : back) {
    simul_fval f = P(c.text);
    INT128 r;
    EXPECT_EQ(f_ftox(&f, r.b), c.ret) << c.text;
    EXPECT_EQ(r, c.want) << c.text << " " << r;
  }
}

TEST(Numbers_Fval, RoundingToIntegers) {
  struct {
    double x, trunc, round, floor, ceil;
  } cases[] = {
      {2.5, 2, 3, 2, 3},       {-2.5, -2, -3, -3, -2},   {2.4, 2, 2, 2, 3},
      {-0.4, -0.0, -0.0, -1, -0.0}, {0.0, 0, 0, 0, 0},  {7, 7, 7, 7, 7},
      {1e30, 1e30, 1e30, 1e30, 1e30}, {0x1.fffffffffffffp51, 0x1.ffffffffffffep51, 0x1p52, 0x1.ffffffffffffep51, 0x1p52},
  };
  for (auto &c : cases) {
    simul_fval x = S(c.x), r;
    f_trunc(&x, &r);
    EXPECT_EQ(dbits(D(r)), dbits(c.trunc)) << c.x;
    f_round(&x, &r);
    EXPECT_EQ(dbits(D(r)), dbits(c.round)) << c.x;
    f_floor(&x, &r);
    EXPECT_EQ(dbits(D(r)), dbits(c.floor)) << c.x;
    f_ceil(&x, &r);
    EXPECT_EQ(dbits(D(r)), dbits(c.ceil)) << c.x;
  }
  struct {
    double x;
    long is_int, sgn;
  } ints[] = {{0, 1, 0}, {-0.0, 1, 0}, {3, 1, 1}, {-3.5, 0, -1}, {1e300, 1, 1}, {1e-300, 0, 1}};
  for (auto &c : ints) {
    simul_fval x = S(c.x);
    long a, b;
    f_int(&x, &a);
    f_sgn(&x, &b);
    EXPECT_EQ(a, c.is_int) << c.x;
    EXPECT_EQ(b, c.sgn) << c.x;
  }
  for (double x : {5.75, -5.75, 0.25, 1e20 + 0.0, -3.0}) {
    simul_fval sx = S(x), ip, fr;
    f_modf(&sx, &ip, &fr);
    double hi;
    double hf = std::modf(x, &hi);
    EXPECT_EQ(dbits(D(ip)), dbits(hi)) << x;
    EXPECT_EQ(dbits(D(fr)), dbits(hf)) << x;
  }
  struct {
    double x, y;
  } mods[] = {{5.5, 2}, {-5.5, 2}, {5.5, -2}, {1e300, 3}, {1, 1e300}, {0.1, 0.03}, {6, 3}, {-0.0, 1}, {1e-300, 3e-310}};
  for (auto &c : mods) {
    simul_fval x = S(c.x), y = S(c.y), r;
    f_fmod(&x, &y, &r);
    EXPECT_EQ(dbits(D(r)), dbits(std::fmod(c.x, c.y))) << c.x << " fmod " << c.y;
  }
  simul_fval r;
  fp_error = 0;
  EXPECT_EQ(f_fmod(&const_one, &pos_zero, &r), -1);
  EXPECT_TRUE(f_isnan(&r));
  EXPECT_EQ(fp_error, FPE_INVALID);
}

TEST(Numbers_Fval, ScaleByPowersOfTwo) {
  struct {
    double x;
    long n;
    double want;
    int ret;
  } cases[] = {{1, 10, 1024, 0},         {3, -2, 0.75, 0},  {-1.5, 1000, -0x1.8p1000, 0},
               {0, 100000, 0, 0},        {1, 40000, INFINITY, -1}, {-1, 40000, -INFINITY, -1},
               {1, -40000, 0, -1},       {1, 32751, INFINITY, 0}};
  for (auto &c : cases) {
    simul_fval x = S(c.x), r;
    fp_error = 0;
    EXPECT_EQ(f_ldexp(&x, c.n, &r), c.ret) << c.x << " " << c.n;
    EXPECT_EQ(D(r), c.want) << c.x << " " << c.n;
  }
  simul_fval x = S(-12.0), m;
  long n;
  f_frexp(&x, &n, &m);
  EXPECT_EQ(n, 4);
  EXPECT_EQ(D(m), -0.75);
  EXPECT_EQ(f_findexp(&x), 4);
  f_frexp(&pos_zero, &n, &m);
  EXPECT_EQ(n, 0);
}

}  // namespace
