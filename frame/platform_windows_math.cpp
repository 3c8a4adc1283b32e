// The few functions of the system's mathematics whose MinGW-w64 forms lose digits.
//
// Sine and cosine: those of the system's own runtime. MinGW-w64 puts the processor's instructions in their place, which
// reduce their argument by a pi of 66 bits: near a multiple of pi most digits are lost, and from 2^63 on all of them.
// The compiler makes one call of a sine and a cosine; these stand together in MinGW-w64 and so they do here. The unit
// is compiled without built-in functions, or that call would call itself.
//
// Powers, exponentials and logarithms: those of the system's runtime too. MinGW-w64 multiplies integral powers out, by
// which 100 units in the last place are lost and ten to the minus two is not a hundredth, and takes the processor's old
// instructions for the others, ten times slower and no better.
//
// Inverse hyperbolic cosine: MinGW-w64 loses its argument's distance from 1.
//
// Fused product and sum: MinGW-w64 rounds twice, so that the error of a product is not exact.
#include <bit>
#include <cmath>
#include <cstdint>

#include "frame/platform_windows.h"

namespace quorvan {
namespace {

// The exact sum (D. E. Knuth's two-sum).
struct Pair {
    double high, low;
};
Pair Sum(double a, double b) noexcept {
    const double sum = a + b, from_b = sum - a;
    return {sum, (a - (sum - from_b)) + (b - from_b)};
}

// The exact product (T. J. Dekker's splitting, 1971).
Pair Product(double a, double b) noexcept {
    constexpr double kSplit = 134217729;  // 2^27 + 1
    const double ta = kSplit * a, tb = kSplit * b, product = a * b;
    const double ah = ta - (ta - a), al = a - ah, bh = tb - (tb - b), bl = b - bh;
    return {product, ((ah * bh - product) + ah * bl + al * bh) + al * bl};
}

// The sum, and where it is not exact the one of its two neighbours whose last bit is odd.
double OddSum(double a, double b) noexcept {
    const Pair sum = Sum(a, b);
    const auto bits = std::bit_cast<std::int64_t>(sum.high);
    if (sum.low == 0 || bits & 1) return sum.high;
    return std::bit_cast<double>(bits + ((sum.low > 0) == (sum.high > 0) ? 1 : -1));
}

__attribute__((target("fma"))) double HardwareFma(double a, double b, double c) noexcept {
    return __builtin_fma(a, b, c);
}

}  // namespace

// S. Boldo and G. Melquiond, Emulation of FMA and correctly rounded sums: proved algorithms using rounding to odd,
// 2008. A result among the subnormal numbers may be rounded twice.
double SoftwareFma(double a, double b, double c) noexcept {
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(c) || a == 0 || b == 0) return a * b + c;
    int ea = 0, eb = 0, ec = 0;
    const double fa = std::frexp(a, &ea), fb = std::frexp(b, &eb), fc = std::frexp(c, &ec);
    // With both factors near 1, the product and the sum are as far from both ends of the range as can be. An addend far
    // above or below the product is brought near enough: there only its side counts.
    const int product_exponent = ea + eb;
    int distance = c == 0 ? 0 : ec - product_exponent;
    if (distance > 200) return c;
    if (distance < -200) distance = -200;
    const double addend = std::ldexp(fc, distance);
    const Pair product = Product(fa, fb), low = Sum(addend, product.low), high = Sum(product.high, low.high);
    return std::ldexp(high.high + OddSum(low.low, high.low), product_exponent);
}

}  // namespace quorvan

extern "C" {

extern double (*__imp_sin)(double);
extern double (*__imp_cos)(double);
extern double (*__imp_exp)(double);
extern double (*__imp_log)(double);
extern double (*__imp_pow)(double, double);
double log1p(double x);
float sinf(float x);
float cosf(float x);
long double sinl(long double x);
long double cosl(long double x);

double fma(double x, double y, double z) {
    return __builtin_cpu_supports("fma") ? quorvan::HardwareFma(x, y, z) : quorvan::SoftwareFma(x, y, z);
}

double sin(double x) { return __imp_sin(x); }
double cos(double x) { return __imp_cos(x); }
// Far below the range of doubles a runtime was seen to return x + 1 (Wine 8).
double exp(double x) { return x < -746 ? 0 : __imp_exp(x); }
double log(double x) { return __imp_log(x); }
// The powers of 1, and of -1 to an infinity, are 1 in C; older runtimes of the system take NaN for them.
double pow(double x, double y) {
    if (x == 1 || y == 0 || (x == -1 && std::isinf(y))) return 1;
    return __imp_pow(x, y);
}

// With t = x - 1: log(1 + t + sqrt(2 t + t t)).
double acosh(double x) {
    if (!(x >= 1)) return __builtin_nan("");
    if (x > 0x1p28) return __imp_log(x) + 0.6931471805599453;
    const double t = x - 1;
    return log1p(t + __builtin_sqrt(2 * t + t * t));
}

void sincos(double x, double* sine, double* cosine) {
    *sine = __imp_sin(x);
    *cosine = __imp_cos(x);
}
void sincosf(float x, float* sine, float* cosine) {
    *sine = sinf(x);
    *cosine = cosf(x);
}
void sincosl(long double x, long double* sine, long double* cosine) {
    *sine = sinl(x);
    *cosine = cosl(x);
}

}  // extern "C"
