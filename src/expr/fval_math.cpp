// Elementary functions on the software float: argument reduction, then the
// rational approximations of Cody and Waite.
#include "expr/fval.h"
#include "expr/fval_internal.h"

using namespace fv;

F fv::lit(const char *text) {
  F r;
  f_atof(text, &r.v);
  return r;
}

namespace {

// Intermediate steps may underflow harmlessly; only what a function itself
// decides to report reaches fp_error.
class fp_scope {
 public:
  fp_scope() : saved_(fp_error) { fp_error = 0; }
  ~fp_scope() { fp_error = saved_ | own_; }
  fp_scope(const fp_scope &) = delete;
  fp_scope &operator=(const fp_scope &) = delete;

  int ok(simul_fval *r, F v) {
    *r = v.v;
    return 0;
  }
  int fail(simul_fval *r, const simul_fval &v, uint32_t bits) {
    *r = v;
    own_ |= bits;
    return -1;
  }
  // Passes on an overflow or underflow of the last steps.
  int range(simul_fval *r, F v) {
    *r = v.v;
    if (f_isinf(r) || f_iszero(r)) {
      own_ |= fp_error & (FPE_OVERFLOW | FPE_UNDERFLOW);
      if (own_) return -1;
    }
    return 0;
  }

 private:
  uint32_t saved_;
  uint32_t own_ = 0;
};

F one() { return fval(const_one); }
F half() { return fval(one_half); }
F abs_(F x) {
  x.v.sign = 0;
  return x;
}
F negate_if(F x, bool neg) { return neg ? -x : x; }
F ldexp_(F x, long n) {
  F r;
  f_ldexp(&x.v, n, &r.v);
  return r;
}
F sqrt_(F x) {
  F r;
  f_sqrt(&x.v, &r.v);
  return r;
}
F exp_(F x) {
  F r;
  f_exp(&x.v, &r.v);
  return r;
}
F log_(F x) {
  F r;
  f_log(&x.v, &r.v);
  return r;
}
F atan_(F x) {
  F r;
  f_atan(&x.v, &r.v);
  return r;
}
long nearest(F x) {
  F r;
  f_round(&x.v, &r.v);
  long n;
  f_ftoi(&r.v, &n);
  return n;
}
F from_long(long n) {
  F r;
  f_itof(n, &r.v);
  return r;
}
// Below this the polynomial terms vanish at the simulated precision.
bool tiny(F x) { return f_findexp(&x.v) < -50; }

F poly(F g, const char *const *c, int n) {  // c[n-1] g^(n-1) + ... + c[0]
  F r = lit(c[n - 1]);
  for (int i = n - 2; i >= 0; --i) r = r * g + lit(c[i]);
  return r;
}
F monic(F g, const char *const *c, int n) {  // g^n + c[n-1] g^(n-1) + ... + c[0]
  F r = g + lit(c[n - 1]);
  for (int i = n - 2; i >= 0; --i) r = r * g + lit(c[i]);
  return r;
}

constexpr const char *PI = "3.14159265358979323846";
constexpr const char *PI_2 = "1.57079632679489661923";
constexpr const char *PI_4 = "0.78539816339744830962";
constexpr const char *LN2_C1 = "0.693359375";
constexpr const char *LN2_C2 = "-2.121944400546905827679e-4";
constexpr const char *EXP_LIMIT = "89.41598624";

// sinh and cosh beyond this take exp(|x| - ln v) alone.
constexpr long HYP_SPLIT = 40;

int sin_cos(const simul_fval *x, simul_fval *r, bool cosine) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_isinf(x)) return s.fail(r, a_nan, FPE_INVALID);
  F ax = abs_(fval(*x));
  bool neg = !cosine && x->sign;
  F y = cosine ? ax + lit(PI_2) : ax;
  if (f_findexp(&y.v) > 40) return s.fail(r, a_nan, FPE_INVALID);
  long n = nearest(y * lit("0.31830988618379067154"));
  if (n & 1) neg = !neg;
  F xn = from_long(n);
  if (cosine) xn = xn - half();
  F f = (ax - xn * lit("3.1416015625")) - xn * lit("-8.908910206761537356617e-6");
  if (!tiny(f)) {
    static const char *const rc[] = {
        "-0.16666666666666665052e+0",  "0.83333333333331650314e-2",
        "-0.19841269841201840457e-3",  "0.27557319210152756119e-5",
        "-0.25052106798274584544e-7",  "0.16058936490371589114e-9",
        "-0.76429178068910467734e-12", "0.27204790957888846175e-14"};
    F g = f * f;
    f = f + f * (poly(g, rc, 8) * g);
  }
  return s.ok(r, negate_if(f, neg));
}

int asin_acos(const simul_fval *x, simul_fval *r, int flag) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  F y = abs_(fval(*x));
  if (y > one()) return s.fail(r, a_nan, FPE_INVALID);
  static const char *const p[] = {"-0.27368494524164255994e+2", "0.57208227877891731407e+2",
                                  "-0.39688862997504877339e+2", "0.10152522233806463645e+2",
                                  "-0.69674573447350646411e+0"};
  static const char *const q[] = {"-0.16421096714498560795e+3", "0.41714430248260412556e+3",
                                  "-0.38186303361750149284e+3", "0.15095270841030604719e+3",
                                  "-0.23823859153670238830e+2"};
  int i;
  F res;
  if (y > half()) {
    i = 1 - flag;
    F g = ((half() - y) + half()) * half();
    y = -(sqrt_(g) + sqrt_(g));
    res = y + y * (poly(g, p, 5) * g / monic(g, q, 5));
  } else {
    i = flag;
    if (tiny(y)) {
      res = y;
    } else {
      F g = y * y;
      res = y + y * (poly(g, p, 5) * g / monic(g, q, 5));
    }
  }
  F a[2] = {fval(pos_zero), lit(PI_4)};
  F b[2] = {lit(PI_2), lit(PI_4)};
  if (flag == 0) {
    res = (a[i] + res) + a[i];
    return s.ok(r, negate_if(res, x->sign));
  }
  res = x->sign ? (b[i] + res) + b[i] : (a[i] - res) + a[i];
  return s.ok(r, res);
}

int sinh_cosh(const simul_fval *x, simul_fval *r, bool cosine) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_isinf(x)) return s.ok(r, cosine ? fval(pos_infin) : fval(*x));
  F y = abs_(fval(*x));
  bool neg = !cosine && x->sign;
  if (!cosine && y <= one()) {
    if (tiny(y)) return s.ok(r, fval(*x));
    static const char *const p[] = {"-0.35181283430177117881e+6", "-0.11563521196851768270e+5",
                                    "-0.16375798202630751372e+3", "-0.78966127417357099479e+0"};
    static const char *const q[] = {"-0.21108770058106271242e+7", "0.36162723109421836460e+5",
                                    "-0.27773523119650701667e+3"};
    F g = y * y;
    F v = fval(*x);
    return s.ok(r, v + v * (g * poly(g, p, 4) / monic(g, q, 3)));
  }
  F res;
  if (y < from_long(HYP_SPLIT)) {
    F z = exp_(y);
    res = cosine ? (z + one() / z) * half() : (z - one() / z) * half();
  } else {
    // e^y / 2 = v/2 * e^(y - ln v); ln v a little above ln 2 keeps the
    // subtraction exact.
    F w = y - lit("0.69316101074218750000");
    if (w > lit(EXP_LIMIT)) return s.fail(r, neg ? neg_infin : pos_infin, FPE_OVERFLOW);
    F z = exp_(w);
    res = z + lit("0.13830277879601902638e-4") * z;
  }
  return s.range(r, negate_if(res, neg));
}

}  // namespace

int f_sqrt(const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(x) || f_iszero(x)) return s.ok(r, fval(*x));
  if (x->sign) return s.fail(r, pos_zero, FPE_INVALID);
  if (f_isinf(x)) return s.ok(r, fval(*x));
  // x = f * 4^k with f in [1, 4): 1/sqrt(f) lies in (0.5, 1], about 3/4.
  long n = f_findexp(x);
  long k = (n & 1) ? (n - 1) / 2 : (n - 2) / 2;
  F v = fval(*x);
  F y = ldexp_(fval(three_q), -k);
  F h = fval(one_half), th = fval(one_p_five);
  for (int i = 0; i < 12; ++i) {
    F next = y * (th - h * v * y * y);
    if (f_bit_eq(&next.v, &y.v)) break;
    y = next;
  }
  return s.ok(r, v * y);
}

int f_exp(const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_isinf(x)) return s.ok(r, x->sign ? fval(pos_zero) : fval(*x));
  F v = fval(*x);
  if (v > lit(EXP_LIMIT)) return s.fail(r, pos_infin, FPE_OVERFLOW);
  if (tiny(v)) return s.ok(r, one() + v);
  long n = nearest(v * lit("1.4426950408889634074"));
  F xn = from_long(n);
  F g = (v - xn * lit(LN2_C1)) - xn * lit(LN2_C2);
  static const char *const p[] = {"0.25", "0.75753180159422776666e-2",
                                  "0.31555192765684646356e-4"};
  static const char *const q[] = {"0.5", "0.56817302698551221787e-1",
                                  "0.63121894374398503557e-3", "0.75104028399870046114e-6"};
  F z = g * g;
  F gp = g * poly(z, p, 3);
  F res = half() + gp / (poly(z, q, 4) - gp);
  return s.range(r, ldexp_(res, n + 1));
}

int f_log(const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_iszero(x) || x->sign) return s.fail(r, neg_infin, FPE_INVALID);
  if (f_isinf(x)) return s.ok(r, fval(*x));
  long n;
  F f;
  f_frexp(x, &n, &f.v);
  F znum, zden;
  if (f > lit("0.70710678118654752440")) {
    znum = (f - half()) - half();
    zden = f * half() + half();
  } else {
    --n;
    znum = f - half();
    zden = znum * half() + half();
  }
  F z = znum / zden;
  F w = z * z;
  static const char *const a[] = {"-0.64124943423745581147e+2", "0.16383943563021534222e+2",
                                  "-0.78956112887491257267e+0"};
  static const char *const b[] = {"-0.76949932108494879777e+3", "0.31203222091924532844e+3",
                                  "-0.35667977739034646171e+2"};
  F rz = tiny(z) ? z : z + z * (w * poly(w, a, 3) / monic(w, b, 3));
  F xn = from_long(n);
  return s.ok(r, (xn * lit(LN2_C2) + rz) + xn * lit(LN2_C1));
}

int f_log10(const simul_fval *x, simul_fval *r) {
  int ret = f_log(x, r);
  if (f_isnan(r) || f_isinf(r)) return ret;
  F v = fval(*r) * lit("0.43429448190325182765");
  *r = v.v;
  return ret;
}

int f_pow(const simul_fval *x, const simul_fval *y, simul_fval *r) {
  fp_scope s;
  if (f_iszero(y)) return s.ok(r, one());
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_isnan(y)) return s.ok(r, fval(*y));
  long is_int;
  f_int(y, &is_int);
  bool odd = false;
  if (is_int) {
    F hy = fval(*y) * half();
    long hi;
    f_int(&hy.v, &hi);
    odd = !hi;
  }
  if (f_iszero(x)) {
    if (y->sign) return s.fail(r, pos_infin, FPE_DIVZERO);
    return s.ok(r, fval(odd ? *x : pos_zero));
  }
  if (x->sign && !is_int && !f_isinf(x)) return s.fail(r, a_nan, FPE_INVALID);
  bool neg = x->sign && odd;
  F ax = abs_(fval(*x));
  if (f_isinf(y)) {
    if (f_eq(&ax.v, &const_one)) return s.ok(r, one());
    bool big = ax > one();
    return s.ok(r, fval(big == !y->sign ? pos_infin : pos_zero));
  }
  if (f_isinf(x)) return s.ok(r, negate_if(fval(y->sign ? pos_zero : pos_infin), neg));
  long iy = 0;
  if (is_int && f_ftoi(y, &iy) == 0 && iy >= -64 && iy <= 64) {
    // Small integral powers by squaring, so that 10^3 stays exact.
    F acc = one(), base = ax;
    for (long e = iy < 0 ? -iy : iy; e; e >>= 1) {
      if (e & 1) acc = acc * base;
      if (e > 1) base = base * base;
    }
    if (iy < 0) acc = one() / acc;
    return s.range(r, negate_if(acc, neg));
  }
  // |x|^y = 2^n * e^t with t = y ln|x| - n ln 2, |t| <= ln 2 / 2.
  F t = fval(*y) * log_(ax);
  if (f_findexp(&t.v) > 20) {
    bool big = !t.v.sign;
    return s.fail(r, big ? (neg ? neg_infin : pos_infin) : pos_zero,
                  big ? FPE_OVERFLOW : FPE_UNDERFLOW);
  }
  long n = nearest(t * lit("1.4426950408889634074"));
  F xn = from_long(n);
  t = (t - xn * lit(LN2_C1)) - xn * lit(LN2_C2);
  return s.range(r, negate_if(ldexp_(exp_(t), n), neg));
}

int f_sin(const simul_fval *x, simul_fval *r) { return sin_cos(x, r, false); }
int f_cos(const simul_fval *x, simul_fval *r) { return sin_cos(x, r, true); }

int f_tan(const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_isinf(x) || f_findexp(x) > 40) return s.fail(r, a_nan, FPE_INVALID);
  F v = fval(*x);
  long n = nearest(v * lit("0.63661977236758134308"));
  F xn = from_long(n);
  F f = (v - xn * lit("1.57080078125")) - xn * lit("-4.454455103380768678308e-6");
  F num = f, den = one();
  if (!tiny(f)) {
    static const char *const p[] = {"-0.13338350006421960681e+0", "0.34248878235890589960e-2",
                                    "-0.17861707342254426711e-4"};
    static const char *const q[] = {"1.0", "-0.46671683339755294240e+0",
                                    "0.25663832289440112864e-1", "-0.31181531907010027307e-3",
                                    "0.49819433993786512270e-6"};
    F g = f * f;
    num = poly(g, p, 3) * g * f + f;
    den = poly(g, q, 5);
  }
  return s.ok(r, (n & 1) ? -(den / num) : num / den);
}

int f_asin(const simul_fval *x, simul_fval *r) { return asin_acos(x, r, 0); }
int f_acos(const simul_fval *x, simul_fval *r) { return asin_acos(x, r, 1); }

int f_atan(const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  F f = abs_(fval(*x));
  int n = 0;
  if (f > one()) {
    f = one() / f;
    n = 2;
  }
  if (f > lit("0.26794919243112270402")) {
    F sqrt3 = lit("1.73205080756887729353");
    f = (((lit("0.73205080756887729353") * f - half()) - half()) + f) / (sqrt3 + f);
    ++n;
  }
  F res = f;
  if (!tiny(f)) {
    static const char *const p[] = {"-0.13688768894191926929e+2", "-0.20505855195861651981e+2",
                                    "-0.84946240351320683534e+1", "-0.83758299368150059274e+0"};
    static const char *const q[] = {"0.41066306682575781263e+2", "0.86157349597130242515e+2",
                                    "0.59578436142597344465e+2", "0.15024001160028576121e+2"};
    F g = f * f;
    res = f + f * (g * poly(g, p, 4) / monic(g, q, 4));
  }
  if (n > 1) res = -res;
  static const char *const a[] = {"0", "0.52359877559829887308", PI_2,
                                  "1.04719755119659774615"};
  res = res + lit(a[n]);
  return s.ok(r, negate_if(res, x->sign));
}

int f_atan2(const simul_fval *y, const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(y)) return s.ok(r, fval(*y));
  if (f_isnan(x)) return s.ok(r, fval(*x));
  if (f_iszero(x)) {
    if (f_iszero(y)) return s.fail(r, pos_zero, FPE_INVALID);
    return s.ok(r, negate_if(lit(PI_2), y->sign));
  }
  F res;
  if (f_isinf(x) && f_isinf(y))
    res = lit(PI_4);
  else
    res = atan_(abs_(fval(*y)) / abs_(fval(*x)));
  if (x->sign) res = lit(PI) - res;
  return s.ok(r, negate_if(res, y->sign));
}

int f_sinh(const simul_fval *x, simul_fval *r) { return sinh_cosh(x, r, false); }
int f_cosh(const simul_fval *x, simul_fval *r) { return sinh_cosh(x, r, true); }

int f_tanh(const simul_fval *x, simul_fval *r) {
  fp_scope s;
  if (f_isnan(x)) return s.ok(r, fval(*x));
  F f = abs_(fval(*x));
  F res;
  if (f > from_long(HYP_SPLIT)) {
    res = one();
  } else if (f > lit("0.54930614433405484570")) {
    res = half() - one() / (exp_(f + f) + one());
    res = res + res;
  } else if (tiny(f)) {
    res = f;
  } else {
    static const char *const p[] = {"-0.16134119023996228053e+4", "-0.99225929672236083313e+2",
                                    "-0.96437492777225469787e+0"};
    static const char *const q[] = {"0.48402357071988688686e+4", "0.22337720718962312926e+4",
                                    "0.11274474380534949335e+3"};
    F g = f * f;
    res = f + f * (g * poly(g, p, 3) / monic(g, q, 3));
  }
  return s.ok(r, negate_if(res, x->sign));
}
