// Functions of the system's mathematics with all their digits, where those of the tool chain lose some.
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>

#include "frame/platform_windows.h"
#include "quorvan/quorvan.h"

namespace {

// A sine through an entry: the imaginary part of a polar number of length 1.
double Sine(double angle) {
    double re = 0, im = 0;
    EXPECT_EQ(QvCxFromPolar(1, angle, &re, &im), 0);
    return im;
}
double Cosine(double angle) {
    double re = 0, im = 0;
    EXPECT_EQ(QvCxFromPolar(1, angle, &re, &im), 0);
    return re;
}

// The exact values, correctly rounded, by mpmath.
TEST(WindowsMathematics, ReducesLargeArguments) {
    EXPECT_DOUBLE_EQ(Sine(3.141592653589793), 1.2246467991473532e-16);
    EXPECT_DOUBLE_EQ(Sine(1e5), 0.03574879797201651);
    EXPECT_DOUBLE_EQ(Sine(1e22), -0.8522008497671888);
    EXPECT_DOUBLE_EQ(Cosine(1e22), 0.523214785395139);
    EXPECT_DOUBLE_EQ(Cosine(1.5707963267948966), 6.123233995736766e-17);
}

// The values by mpmath. Integral powers multiplied out are 100 units wrong.
TEST(WindowsMathematics, RaisesToPowersInOneRounding) {
    volatile double ten = 10, nineteen = 19, one = 1, nan = std::nan("");
    EXPECT_EQ(std::pow(ten, -2), 0.01);
    EXPECT_DOUBLE_EQ(std::pow(nineteen, -97), 9.1390427232882615e-125);
    EXPECT_EQ(std::pow(one, nan), 1);
    EXPECT_EQ(std::pow(nan, 0), 1);
    EXPECT_EQ(std::pow(-one, HUGE_VAL), 1);
}

TEST(WindowsMathematics, FallsToZeroAndGrowsToInfinityBeyondTheRange) {
    for (double x : {-746.0, -1023.0, -1024.0, -1151.0, -1e10, -1e300, -HUGE_VAL}) EXPECT_EQ(std::exp(x), 0) << x;
    for (double x : {709.8, 1024.0, 1e10, 1e300, HUGE_VAL}) EXPECT_EQ(std::exp(x), HUGE_VAL) << x;
    EXPECT_EQ(std::exp(-745.0), 0x1p-1074);  // 0.57 of it
    EXPECT_TRUE(std::isnan(std::exp(std::nan(""))));
}

TEST(WindowsMathematics, KeepsTheDistanceFromOneInTheInverseHyperbolicCosine) {
    volatile double near = 1 + 0x1p-40, far = 1e300, one = 1;
    EXPECT_DOUBLE_EQ(std::acosh(near), 1.3486991523485068e-06);
    EXPECT_DOUBLE_EQ(std::acosh(far), 691.4686750787736);
    EXPECT_EQ(std::acosh(one), 0);
    EXPECT_TRUE(std::isnan(std::acosh(-far)));
}

// (1 + 2^-30)^2 = 1 + 2^-29 + 2^-60: the last term is the error of the product.
TEST(WindowsMathematics, FusesAProductAndASumInOneRounding) {
    volatile double x = 1 + 0x1p-30, square = -(1 + 0x1p-29);
    EXPECT_EQ(std::fma(x, x, square), 0x1p-60);
    EXPECT_EQ(quorvan::SoftwareFma(x, x, square), 0x1p-60);
    // Half a last place and a little more: two roundings would stay at 1.
    volatile double a = 1 + 0x1p-52, b = 0x1p-53, one = 1;
    EXPECT_EQ(std::fma(a, b, one), 1 + 0x1p-52);
    EXPECT_EQ(quorvan::SoftwareFma(a, b, one), 1 + 0x1p-52);
}

TEST(WindowsMathematics, FusesTheSameWithAndWithoutTheInstruction) {
    if (!__builtin_cpu_supports("fma")) GTEST_SKIP() << "this processor has no such instruction";
    std::mt19937_64 engine(1);
    std::uniform_real_distribution<double> mantissa(-2, 2);
    std::uniform_int_distribution<int> exponent(-300, 300), nearby(-120, 120);
    for (int k = 0; k < 200000; ++k) {
        const int ea = exponent(engine), eb = exponent(engine);
        const double a = std::ldexp(mantissa(engine), ea), b = std::ldexp(mantissa(engine), eb);
        const double c =
            k % 4 == 0 ? -a * b : std::ldexp(mantissa(engine), ea + eb + (k % 4 == 1 ? 300 : nearby(engine)));
        ASSERT_EQ(quorvan::SoftwareFma(a, b, c), std::fma(a, b, c)) << a << " " << b << " " << c;
    }
    for (double special : {HUGE_VAL, -HUGE_VAL, 0.0, -0.0, 1e308, -1e-308}) {
        EXPECT_EQ(quorvan::SoftwareFma(special, 2, 1), std::fma(special, 2, 1));
        EXPECT_EQ(quorvan::SoftwareFma(2, 1, special), std::fma(2, 1, special));
    }
}

}  // namespace
