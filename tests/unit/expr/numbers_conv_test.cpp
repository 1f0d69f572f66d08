// Text to software float to IEEE single and double, against the host's
// correctly rounded strtod and strtof.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "numbers_fixture.h"

using namespace numtest;

namespace {

void expect_like_host(const std::string &text) {
  simul_fval v;
  fp_error = 0;
  f_atof(text.c_str(), &v);
  double d = std::strtod(text.c_str(), nullptr);
  float f = std::strtof(text.c_str(), nullptr);
  EXPECT_EQ(get_ieee_dbl_fmt(&v), dbits(d)) << text << " " << show(v);
  EXPECT_EQ(get_ieee_flt_fmt(&v), fbits(f)) << text << " " << show(v);
}

TEST(Numbers_Conv, EdgesLikeHost) {
  const char *cases[] = {
      "0", "1", "-1", "0.1", "0.5", "2.5", "10", "1e23", "8.5e-5", "123456789012345678901234567890",
      "0.000001", "3.14159265358979323846", "1.5e300", "-2.5e-300", "1e308", "1e-308",
      // double extremes and the borders of its denormals
      "1.7976931348623157e308", "1.7976931348623158e308", "1.7976931348623159e308",
      "2.2250738585072014e-308", "2.2250738585072011e-308", "4.9406564584124654e-324",
      "2.4703282292062328e-324", "2.4703282292062327e-324", "1e-330", "1e-400", "1e400",
      // single extremes and its denormals
      "3.4028234663852886e38", "3.4028235677973366e38", "3.4028235677973367e38",
      "1.17549435e-38", "1.1754942e-38", "1.4e-45", "7.0064923216240854e-46",
      "7.0064923216240862e-46", "1e-50",
      // exact halfway cases: ties go to even
      "9007199254740993", "9007199254740995", "9007199254740994", "16777217", "16777219",
      "1.000000059604644775390625", "1.000000178813934326171875", "33554433", "33554435",
      "0.500000000000000055511151231257827021181583404541015625",
      // leading and trailing zeros, points at the ends
      "000123.4500", "0.000", "-0.0", ".5", "5.", "0.00000000000000000000000000001e29",
      "100000000000000000000000", "1E5", "1e+5", "1.0e-5",
      // exact integers and integers over powers of two, to the limits of the shortcut
      "1.25", "1.125e3", "-1.5e1", "0.0625", "1.8446744073709551615e19", "1.8446744073709551616e19",
      "7.450580596923828125e-9", "3.0517578125e-5", "1e-27", "2.81474976710655e14", "123e-3",
      // hexadecimal, rounded the same way
      "0x1.8p1", "0x10", "0xA.8", "-0x1p-2", "0x1p-1074", "0x1.fffffffffffffp1023", "0x1p1024",
      "0x1.000001p0", "0x1.000003p0", "0x1.00000000000008p0", "0x1.00000000000018p0",
      "0x1p-1075", "0x1.0000000000001p-1075", "0x1p-149", "0x1p-150", "0x1.8p-150",
      "0xffffffffffffffffffff", "0x.8", "0X1P4", "0xabcdef.123p-7",
  };
  for (const char *c : cases) expect_like_host(c);
}

TEST(Numbers_Conv, ManyValuesLikeHost) {
  lcg g{12345};
  char buf[64];
  for (int i = 0; i < 3000; ++i) {
    uint64_t bits = g.next();
    // every exponent, denormals included, but no infinities or NaNs
    if (((bits >> 52) & 0x7FF) == 0x7FF) bits ^= uint64_t(1) << 62;
    double d;
    std::memcpy(&d, &bits, 8);
    const char *fmt = i % 3 == 0 ? "%.17g" : i % 3 == 1 ? "%.9g" : "%.25e";
    std::snprintf(buf, sizeof buf, fmt, d);
    expect_like_host(buf);
  }
  // values near the single range, where the float rounding matters
  for (int i = 0; i < 1000; ++i) {
    uint32_t b = uint32_t(g.next());
    if (((b >> 23) & 0xFF) == 0xFF) b ^= 1u << 30;
    float f;
    std::memcpy(&f, &b, 4);
    std::snprintf(buf, sizeof buf, i % 2 ? "%.9g" : "%.12e", double(f));
    expect_like_host(buf);
  }
}

TEST(Numbers_Conv, SpecialTexts) {
  struct {
    const char *text;
    uint64_t dbl;
    int ret;
  } cases[] = {
      {"nan", 0x7FF8000000000000ULL, 0},  {"NaN", 0x7FF8000000000000ULL, 0},
      {"inf", 0x7FF0000000000000ULL, 0},  {"+Inf", 0x7FF0000000000000ULL, 0},
      {"-inf", 0xFFF0000000000000ULL, 0}, {"infinity", 0x7FF0000000000000ULL, 0},
      // an exponent of 512 or more in magnitude is infinite, whatever its sign
      {"1e-600", 0x7FF0000000000000ULL, -1}, {"1e600", 0x7FF0000000000000ULL, -1},
      {"-1e-600", 0xFFF0000000000000ULL, -1}, {"1e512", 0x7FF0000000000000ULL, -1},
      {"-0.0", 0x8000000000000000ULL, 0}, {"0", 0, 0},
      {"1e511", 0x7FF0000000000000ULL, 0},  // finite here; too big for a double
      {"1e-511", 0, 0},
  };
  for (auto &c : cases) {
    simul_fval v;
    EXPECT_EQ(f_atof(c.text, &v), c.ret) << c.text;
    EXPECT_EQ(get_ieee_dbl_fmt(&v), c.dbl) << c.text;
  }
  simul_fval v;
  f_atof("nan", &v);
  EXPECT_TRUE(f_bit_eq(&v, &a_nan));
  EXPECT_EQ(get_ieee_flt_fmt(&v), 0x7FC00000u);
  f_atof("1e-600", &v);
  EXPECT_TRUE(f_bit_eq(&v, &pos_infin));
  f_atof("-0", &v);
  EXPECT_TRUE(f_bit_eq(&v, &neg_zero));
}

TEST(Numbers_Conv, IeeeRangeErrors) {
  struct {
    const char *text;
    int mode;
    uint32_t high, low;
    int ret;
    uint32_t fpe;
  } cases[] = {
      {"1.0", 1, 0x3FF00000, 0, 0, 0}, {"1.0", 0, 0x3F800000, 0, 0, 0}, {"1e39", 0, 0x7F800000, 0, -1, FPE_OVERFLOW},
      {"-1e39", 0, 0xFF800000, 0, -1, FPE_OVERFLOW}, {"1e-46", 0, 0, 0, -1, FPE_UNDERFLOW},
      {"-1e-46", 0, 0x80000000, 0, -1, FPE_UNDERFLOW},
      {"1e-40", 0, 0x000116C2, 0, 0, 0},  // a denormal is no underflow
      {"1e309", 1, 0x7FF00000, 0, -1, FPE_OVERFLOW}, {"1e-325", 1, 0, 0, -1, FPE_UNDERFLOW}, {"5e-324", 1, 0, 1, 0, 0},
      {"3.4028235e38", 0, 0x7F7FFFFF, 0, 0, 0}, {"inf", 0, 0x7F800000, 0, 0, 0}, {"nan", 1, 0x7FF80000, 0, 0, 0},
  };
  for (auto &c : cases) {
    simul_fval v;
    f_atof(c.text, &v);
    fp_error = 0;
    trg_fval out;
    EXPECT_EQ(f_cvt_stot(&v, &out, c.mode), c.ret) << c.text;
    EXPECT_EQ(out[0], c.high) << c.text;
    if (c.mode == 1) {
      EXPECT_EQ(out[1], c.low) << c.text;
    }
    EXPECT_EQ(fp_error, c.fpe) << c.text;
  }
  simul_fval v = P("1e39");
  uint32_t w;
  EXPECT_EQ(ieee_cvt_stof(&v, &w), 1);
  uint32_t hi, lo;
  v = P("1.0");
  EXPECT_EQ(ieee_cvt_stod(&v, &hi, &lo), 0);
  EXPECT_EQ(hi, 0x3FF00000u);
  EXPECT_EQ(lo, 0u);
}

TEST(Numbers_Conv, IeeeBitsRoundTrip) {
  lcg g{777};
  std::vector<uint64_t> doubles = {0, 0x8000000000000000ULL, 1, 0x000FFFFFFFFFFFFFULL,
                                   0x0010000000000000ULL, 0x7FEFFFFFFFFFFFFFULL,
                                   0x7FF0000000000000ULL, 0xFFF0000000000000ULL,
                                   0x3FF0000000000000ULL, 0xBFF8000000000000ULL};
  for (int i = 0; i < 500; ++i) doubles.push_back(g.next());
  for (uint64_t b : doubles) {
    trg_fval in{{uint32_t(b >> 32), uint32_t(b)}}, out;
    simul_fval v;
    f_cvt_ttos(&in, &v, 1);
    fp_error = 0;
    f_cvt_stot(&v, &out, 1);
    double d;
    std::memcpy(&d, &b, 8);
    uint64_t want = std::isnan(d) ? 0x7FF8000000000000ULL : b;
    EXPECT_EQ((uint64_t(out[0]) << 32) | out[1], want) << std::hex << b;
    EXPECT_EQ(fp_error, 0u);
  }
  std::vector<uint32_t> singles = {0, 0x80000000u, 1, 0x007FFFFFu, 0x00800000u, 0x7F7FFFFFu,
                                   0x7F800000u, 0xFF800000u, 0x3F800000u, 0xC0490FDBu};
  for (int i = 0; i < 500; ++i) singles.push_back(uint32_t(g.next()));
  for (uint32_t b : singles) {
    trg_fval in{{b, 0}}, out;
    simul_fval v;
    f_cvt_ttos(&in, &v, 0);
    f_cvt_stot(&v, &out, 0);
    float f;
    std::memcpy(&f, &b, 4);
    EXPECT_EQ(out[0], std::isnan(f) ? 0x7FC00000u : b) << std::hex << b;
  }
}

TEST(Numbers_Conv, OddTextStopsCleanly) {
  struct {
    std::string text;
    double want;
  } cases[] = {
      {"", 0},          {".", 0},           {"1e", 1},        {"1e+", 1},
      {"1.2.3", 1.2},   {"0x", 0},          {"0xp3", 0},      {"2x", 2},
      {"1e99999999999999999999", INFINITY},   {"  7", 7},       {"12abc", 12},
      {std::string(600, '9'), INFINITY},      // 10^600 is finite here, not as a double
      {"0." + std::string(400, '0') + "1e400", 0.1}, {"0x" + std::string(200, 'f'), std::ldexp(1.0, 800)},
      {"1" + std::string(300, '0'), 1e300},
  };
  for (auto &c : cases) {
    simul_fval v;
    f_atof(c.text.c_str(), &v);
    EXPECT_EQ(D(v), c.want) << c.text;
  }
}

TEST(Numbers_Text, ExtremeValuesFitTheirText) {
  static char buf[12000];
  simul_fval tiny{{1}, -32752, 0};
  EXPECT_EQ(f_ftoa(buf, "%.3e", &tiny), 11);
  EXPECT_STREQ(buf, "7.065e-9865");
  EXPECT_EQ(f_ftoa(buf, "%.2e", &pos_huge), 10);
  EXPECT_STREQ(buf, "3.30e+9854");
  int n = f_ftoa(buf, "%.1f", &pos_huge);
  EXPECT_EQ(n, 9855 + 2);
  EXPECT_EQ(std::string(buf, 5), "32956");
  EXPECT_EQ(f_ftoa(buf, "%.2f", &tiny), 4);
  EXPECT_STREQ(buf, "0.00");
}

}  // namespace
