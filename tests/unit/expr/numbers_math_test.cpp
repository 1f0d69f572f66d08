// Elementary functions against the host library, and printf-style text.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <functional>
#include <string>

#include "numbers_fixture.h"

using namespace numtest;

namespace {

// Distance in units of the last place of a double.
int64_t ulps(double a, double b) {
  if (a == b) return 0;
  int64_t ia = int64_t(dbits(a)), ib = int64_t(dbits(b));
  if ((ia < 0) != (ib < 0)) return INT64_MAX;
  return ia > ib ? ia - ib : ib - ia;
}

using unary = int (*)(const simul_fval *, simul_fval *);

TEST(Numbers_Math, UnaryFunctionsAgainstHost) {
  struct {
    const char *name;
    unary f;
    double (*host)(double);
    std::vector<double> args;
  } cases[] = {
      {"sin", f_sin, std::sin, {0, 1e-20, 0.5, 1, -1, 2, 3, 3.14159, 10, -100, 1000.5, 1e6}},
      {"cos", f_cos, std::cos, {0, 1e-20, 0.5, 1, -1, 2, 3, 10, -100, 1000.5, 1e6}},
      {"tan", f_tan, std::tan, {0, 1e-20, 0.5, 1, -1, 1.5, 2, 3, 10, -100, 1000.5}},
      {"asin", f_asin, std::asin, {0, 1e-20, 0.25, 0.5, -0.5, 0.7, 0.99, 1, -1}},
      {"acos", f_acos, std::acos, {0, 0.25, 0.5, -0.5, 0.7, -0.7, 0.99, 1, -1}},
      {"atan", f_atan, std::atan, {0, 1e-20, 0.2, 0.3, 0.5, 1, -1, 2, 10, -1e10, 1e300}},
      {"sinh", f_sinh, std::sinh, {0, 1e-20, 0.5, -0.9, 1, 2, -5, 20, 39, 41, 88}},
      {"cosh", f_cosh, std::cosh, {0, 1e-20, 0.5, -0.9, 1, 2, -5, 20, 39, 41, 88}},
      {"tanh", f_tanh, std::tanh, {0, 1e-20, 0.3, 0.5, 0.6, -1, 2, 10, -30, 50}},
      {"sqrt", f_sqrt, std::sqrt, {0, 1, 2, 3, 4, 0.5, 1e-300, 1e300, 2.25, 12345.678, 5e-324}},
      {"exp", f_exp, std::exp, {0, 1e-20, 1, -1, 0.5, 10, -10, 50, 88, 89.4, -700, -745}},
      {"log", f_log, std::log, {1, 2, 0.5, 10, 1e-300, 1e300, 0.7, 0.75, 1.0000001, 5e-324}},
      {"log10", f_log10, std::log10, {1, 2, 10, 100, 1e-300, 1e300, 0.001, 12345}},
  };
  for (auto &c : cases)
    for (double a : c.args) {
      simul_fval x = S(a), r;
      uint32_t saved = fp_error = 0;
      EXPECT_EQ(c.f(&x, &r), 0) << c.name << "(" << a << ")";
      EXPECT_EQ(fp_error, saved) << c.name << "(" << a << ")";
      double got = D(r), want = c.host(a);
      EXPECT_LE(ulps(got, want), 1) << c.name << "(" << a << ") = " << got << ", host " << want;
    }
}

TEST(Numbers_Math, BinaryFunctionsAgainstHost) {
  struct {
    double x, y;
  } pows[] = {{2, 10}, {10, 3}, {10, -3}, {2, 0.5}, {1.5, 2.5}, {-2, 3}, {-2, -3}, {0, 2}, {0, 0},
              {5, 0}, {7, 1}, {10, 40}, {10, 300}, {1e10, -30}, {0.5, 1000}, {3, 100.5}};
  for (auto &c : pows) {
    simul_fval x = S(c.x), y = S(c.y), r;
    EXPECT_EQ(f_pow(&x, &y, &r), 0) << c.x << "^" << c.y;
    EXPECT_LE(ulps(D(r), std::pow(c.x, c.y)), 1) << c.x << "^" << c.y << " = " << D(r);
  }
  struct {
    double y, x;
  } atans[] = {{1, 1}, {1, -1}, {-1, -1}, {-1, 1}, {0, -1}, {2, 0}, {-2, 0}, {1e-300, 1e300},
               {3, 4}, {-0.5, 10}};
  for (auto &c : atans) {
    simul_fval y = S(c.y), x = S(c.x), r;
    f_atan2(&y, &x, &r);
    EXPECT_LE(ulps(D(r), std::atan2(c.y, c.x)), 1) << "atan2(" << c.y << ", " << c.x << ")";
  }
  // exact values stay exact
  simul_fval r, x = S(10), y = S(3);
  f_pow(&x, &y, &r);
  EXPECT_EQ(D(r), 1000.0);
}

TEST(Numbers_Math, Limits) {
  struct {
    const char *name;
    std::function<int(simul_fval *)> call;
    uint64_t want;
    int ret;
    uint32_t fpe;
  } cases[] = {
      {"log 0", [](simul_fval *r) { return f_log(&pos_zero, r); }, 0xFFF0000000000000ULL, -1, FPE_INVALID},
      {"log -1", [](simul_fval *r) { return f_log(&neg_one, r); }, 0xFFF0000000000000ULL, -1, FPE_INVALID},
      {"log10 0", [](simul_fval *r) { return f_log10(&pos_zero, r); }, 0xFFF0000000000000ULL, -1, FPE_INVALID},
      {"sqrt -4", [](simul_fval *r) { simul_fval x = S(-4); return f_sqrt(&x, r); }, 0, -1, FPE_INVALID},
      {"sqrt -0", [](simul_fval *r) { return f_sqrt(&neg_zero, r); }, 0x8000000000000000ULL, 0, 0},
      {"exp 90", [](simul_fval *r) { simul_fval x = S(90); return f_exp(&x, r); }, 0x7FF0000000000000ULL, -1, FPE_OVERFLOW},
      {"exp -inf", [](simul_fval *r) { return f_exp(&neg_infin, r); }, 0, 0, 0},
      {"asin 2", [](simul_fval *r) { return f_asin(&two, r); }, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {"pow 0^-1", [](simul_fval *r) { return f_pow(&pos_zero, &neg_one, r); }, 0x7FF0000000000000ULL, -1, FPE_DIVZERO},
      {"pow -2^0.5", [](simul_fval *r) { return f_pow(&neg_two, &one_half, r); }, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {"sin inf", [](simul_fval *r) { return f_sin(&pos_infin, r); }, 0x7FF8000000000000ULL, -1, FPE_INVALID},
      {"sinh 1e5", [](simul_fval *r) { simul_fval x = S(1e5); return f_sinh(&x, r); }, 0x7FF0000000000000ULL, -1, FPE_OVERFLOW},
      {"atan2 0 0", [](simul_fval *r) { return f_atan2(&pos_zero, &pos_zero, r); }, 0, -1, FPE_INVALID},
  };
  for (auto &c : cases) {
    simul_fval r;
    fp_error = 0;
    EXPECT_EQ(c.call(&r), c.ret) << c.name;
    EXPECT_EQ(fp_error, c.fpe) << c.name;
    EXPECT_EQ(get_ieee_dbl_fmt(&r), c.want) << c.name;
  }
  // the extra functions of the built-ins
  simul_fval list[] = {S(3), S(-1), S(2)}, r;
  f_max(list, &r, 3);
  EXPECT_EQ(D(r), 3.0);
  f_min(list, &r, 3);
  EXPECT_EQ(D(r), -1.0);
  f_max(list, &r, 1);
  EXPECT_EQ(D(r), 3.0);
  f_cvf(&list[1], &r);
  EXPECT_EQ(D(r), -1.0);
}

TEST(Numbers_Text, PrintfFormatsLikeHost) {
  const char *formats[] = {"%3.2e", "  %3.2e", "%e", "%E", "%.0e", "%#.0e", "%.3f", "%f", "%.0f",
                           "%+.2f", "% .1f", "%10.3f|", "%-12.3e|", "%012.4f", "%g", "%G",
                           "%.10g", "%#g", "%.3g", "%10.4g|", "x=%.2e%%", "%.17g", "%.20f"};
  double values[] = {0.0, -0.0, 1.0, -1.0, 0.5, 0.125, 2.5, 1.125, 1234.5, 0.1, 9.999, 9.995,
                     99999.5, 1e-5, 1.5e-5, 123456789.0, 1e100, -1e-100, 1e300, 2.5e-308,
                     5e-324, 6.02214076e23, 0.000123456, 3.14159265358979, 999999.0, 1e15};
  char want[4096], got[4096];
  for (const char *f : formats)
    for (double v : values) {
      std::snprintf(want, sizeof want, f, v);
      simul_fval x = S(v);
      int n = f_ftoa(got, f, &x);
      EXPECT_STREQ(got, want) << f << " of " << v;
      EXPECT_EQ(n, int(std::strlen(want)));
    }
  char buf[64];
  f_ftoa(buf, "%e|%f|%g", &pos_infin);
  EXPECT_STREQ(buf, "inf|inf|inf");
  f_ftoa(buf, "%5.1E", &neg_infin);
  EXPECT_STREQ(buf, " -INF");
  f_ftoa(buf, "%e %d", &a_nan);
  EXPECT_STREQ(buf, "nan %d");
}

}  // namespace
