// Complex arithmetic: scalars and split arrays.
#include "frame/complex.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

constexpr double kInvalid = kUnwritten;

struct Result {
    double re = kInvalid, im = kInvalid;
    Status status = 1;
    bool untouched() const { return re == kInvalid && im == kInvalid; }
};

Result Call(Status (*function)(double, double, double*, double*), double a, double b) {
    Result r;
    r.status = function(a, b, &r.re, &r.im);
    return r;
}
Result Call(Status (*function)(double, double, double, double, double*, double*), double a, double b, double c,
            double d) {
    Result r;
    r.status = function(a, b, c, d, &r.re, &r.im);
    return r;
}
Result Pow(double a, double b, double p) {
    Result r;
    r.status = ZemFunc48(a, b, p, &r.re, &r.im);
    return r;
}

// For EXPECT_TRUE: status 0 and both parts to the last bit.
::testing::AssertionResult HasParts(const Result& result, double re, double im) {
    if (result.status == 0 && SameBits(result.re, re) && SameBits(result.im, im)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "status " << result.status << ", (" << result.re << ", " << result.im
                                         << ") is not (" << re << ", " << im << ")";
}

TEST(CxScalars, AddSubtractAndMultiplyByTheirFormulas) {
    const Reals x = RandomReals(400, 1);
    for (int i = 0; i < 400; i += 4) {
        const double a = x[i], b = x[i + 1], c = x[i + 2], d = x[i + 3];
        EXPECT_TRUE(HasParts(Call(ZemFunc38, a, b, c, d), a + c, b + d));
        EXPECT_TRUE(HasParts(Call(ZemFunc51, a, b, c, d), a - c, b - d));
        EXPECT_TRUE(HasParts(Call(ZemFunc46, a, b, c, d), a * c - b * d, b * c + a * d));
    }
}

TEST(CxMultiply, IsThePlainFormulaAlsoWhereItOverflows) {
    const Result r = Call(ZemFunc46, 1e200, 1e200, 1e200, 1e200);
    EXPECT_TRUE(std::isnan(r.re)) << "inf - inf";
    EXPECT_EQ(r.im, kInf);
}

TEST(CxDivide, FollowsSmithInBothBranches) {
    const Reals x = RandomReals(4000, 2);
    for (int i = 0; i < 4000; i += 4) {
        const double a = x[i], b = x[i + 1], c = x[i + 2], d = x[i + 3];
        double re, im;
        if (std::fabs(c) >= std::fabs(d)) {
            const double r = d / c, den = r * d + c;
            re = (r * b + a) / den, im = (b - r * a) / den;
        } else {
            const double r = c / d, den = r * c + d;
            re = (r * a + b) / den, im = (r * b - a) / den;
        }
        EXPECT_TRUE(HasParts(Call(ZemFunc40, a, b, c, d), re, im));
    }
}

TEST(CxDivide, NeitherOverflowsNorUnderflowsWhereThePlainFormulaWould) {
    EXPECT_TRUE(HasParts(Call(ZemFunc40, 1e200, 1e200, 1e200, 1e200), 1.0, 0.0));
    EXPECT_TRUE(HasParts(Call(ZemFunc40, 1e-200, 0, 0, 1e-200), 0.0, -1.0));
}

TEST(CxDivide, CountsEqualMagnitudesOfTheDivisorAsTheFirstCase) {
    EXPECT_TRUE(HasParts(Call(ZemFunc40, 1, 1, 1, -1), 0.0, 1.0)) << "the second case gives -0.0";
}

TEST(CxDivide, ByZeroIsNaNWithSuccess) {
    for (double zero : {0.0, -0.0}) {
        const Result r = Call(ZemFunc40, 1, 2, zero, zero);
        EXPECT_EQ(r.status, 0);
        EXPECT_TRUE(std::isnan(r.re) && std::isnan(r.im));
    }
}

TEST(CxReciprocal, OfZeroIsRefusedAndWritesNothing) {
    for (double zero : {0.0, -0.0}) {
        const Result r = Call(ZemFunc49, zero, 0);
        EXPECT_EQ(r.status, -20060);
        EXPECT_TRUE(r.untouched());
    }
}

TEST(CxReciprocal, IsThePlainFormulaThatOverflowsAndUnderflows) {
    EXPECT_TRUE(HasParts(Call(ZemFunc49, 3, 4), 3.0 / 25, -(4.0 / 25)));
    EXPECT_TRUE(HasParts(Call(ZemFunc49, 1e200, 1e200), 0.0, -0.0));
    EXPECT_TRUE(HasParts(Call(ZemFunc49, 1e-200, 1e-200), kInf, -kInf))
        << "the parts are not zero, so it is not refused";
}

TEST(CxSqrt, OfMinusFourIsTwoI) {
    const Result r = Call(ZemFunc50, -4, 0);
    EXPECT_EQ(r.status, 0);
    EXPECT_NEAR(r.re, 0, 2 * kEpsilon);  // 2 cos(pi/2), with pi/2 rounded
    EXPECT_EQ(r.im, 2);
    EXPECT_EQ(Call(ZemFunc50, -4, -0.0).im, -2) << "the phase is -pi";
}

TEST(CxSqrt, OfASquaredMagnitudeOfZeroIsZero) {
    EXPECT_TRUE(HasParts(Call(ZemFunc50, 0, 0), 0.0, 0.0));
    EXPECT_TRUE(HasParts(Call(ZemFunc50, -0.0, -0.0), 0.0, 0.0));
    EXPECT_TRUE(HasParts(Call(ZemFunc50, 1e-170, 1e-170), 0.0, 0.0)) << "the square underflows";
}

TEST(CxSqrt, GoesThroughThePolarForm) {
    const Reals x = RandomReals(200, 3);
    for (int i = 0; i < 200; i += 2) {
        const double a = x[i], b = x[i + 1], s = std::sqrt(std::sqrt(a * a + b * b)), t = 0.5 * std::atan2(b, a);
        EXPECT_TRUE(HasParts(Call(ZemFunc50, a, b), s * std::cos(t), s * std::sin(t)));
    }
    EXPECT_EQ(Call(ZemFunc50, 1e200, 0).re, kInf) << "the square overflows";
}

TEST(CxExp, OfARealNumberHasAnExactZeroAsImaginaryPart) {
    EXPECT_TRUE(HasParts(Call(ZemFunc42, 1, 0), std::exp(1.0), 0.0));
    EXPECT_TRUE(HasParts(Call(ZemFunc42, 1000, -0.0), kInf, 0.0));
}

TEST(CxExp, IsCosineAndSineTimesTheExponential) {
    for (double a : {-3.0, 0.0, 0.7, 5.0})
        for (double b : {-2.0, 0.5, 40.0}) {
            const double e = std::exp(a);
            EXPECT_TRUE(HasParts(Call(ZemFunc42, a, b), std::cos(b) * e, std::sin(b) * e));
        }
}

TEST(CxLog, OfASquaredMagnitudeOfZeroIsRefusedAndWritesNothing) {
    for (auto function : {ZemFunc44, ZemFunc45})
        for (double small : {0.0, -0.0, 1e-170}) {
            const Result r = Call(function, small, small);
            EXPECT_EQ(r.status, -20060);
            EXPECT_TRUE(r.untouched());
        }
}

TEST(CxLog, IsHalfTheLogarithmOfTheSquaredMagnitude) {
    const Reals x = RandomReals(200, 4);
    for (int i = 0; i < 200; i += 2) {
        const double a = x[i], b = x[i + 1], m = a * a + b * b;
        EXPECT_TRUE(HasParts(Call(ZemFunc44, a, b), 0.5 * std::log(m), std::atan2(b, a)));
        EXPECT_TRUE(HasParts(Call(ZemFunc45, a, b), 0.5 * std::log10(m), std::atan2(b, a) * 0.434294481903252));
    }
    EXPECT_EQ(Call(ZemFunc44, 1e200, 0).re, kInf) << "the square overflows";
}

TEST(CxLog10, UsesFifteenDigitsOfItsConstant) {
    EXPECT_TRUE(SameBits(Call(ZemFunc45, 0, 1).im, std::atan2(1.0, 0.0) * 0.434294481903252));
    EXPECT_NE(0.434294481903252, 0.43429448190325182765) << "the full constant is another number";
}

TEST(CxPow, OfZeroIsRefusedForPowerZeroOnly) {
    for (double p : {0.0, -0.0}) {
        const Result r = Pow(0, 0, p);
        EXPECT_EQ(r.status, -20060);
        EXPECT_TRUE(r.untouched());
    }
    for (double p : {-1.0, 2.0, 0.5, kNaN, kInf}) EXPECT_TRUE(HasParts(Pow(0, -0.0, p), 0.0, 0.0));
    EXPECT_TRUE(HasParts(Pow(1e-170, 1e-170, -1), 0.0, 0.0)) << "the square underflows";
    EXPECT_EQ(Pow(1e-170, 0, 0).status, -20060);
}

TEST(CxPow, GoesThroughThePolarForm) {
    const Reals x = RandomReals(300, 5);
    for (int i = 0; i < 300; i += 3) {
        const double a = x[i], b = x[i + 1], p = 4 * x[i + 2];
        const double r = std::pow(b * b + a * a, p * 0.5), t = std::atan2(b, a) * p;
        EXPECT_TRUE(HasParts(Pow(a, b, p), r * std::cos(t), r * std::sin(t)));
    }
    EXPECT_TRUE(HasParts(Pow(3, 4, 0), 1.0, 0.0));
}

TEST(CxToPolar, OfZeroOfAnySignIsZeroWithPhaseZero) {
    for (double re : {0.0, -0.0})
        for (double im : {0.0, -0.0}) EXPECT_TRUE(HasParts(Call(ZemFunc172, re, im), 0.0, 0.0));
}

TEST(CxToPolar, TakesTheSignOfAZeroImaginaryPart) {
    EXPECT_TRUE(HasParts(Call(ZemFunc172, -1, 0.0), 1.0, 3.141592653589793));
    EXPECT_TRUE(HasParts(Call(ZemFunc172, -1, -0.0), 1.0, -3.141592653589793));
}

TEST(CxToPolar, TakesTheRootOfThePlainSumOfSquares) {
    EXPECT_TRUE(HasParts(Call(ZemFunc172, 3, 4), 5.0, std::atan2(4.0, 3.0)));
    EXPECT_EQ(Call(ZemFunc172, 1e200, 0).re, kInf) << "the square overflows";
    EXPECT_TRUE(HasParts(Call(ZemFunc172, 1e-170, 0), 0.0, 0.0)) << "the square underflows";
}

TEST(CxFromPolar, IsMagnitudeTimesCosineAndSine) {
    for (double magnitude : {-2.0, 0.0, 1.5})
        for (double phase : {-4.0, 0.0, 0.3, 100.0})
            EXPECT_TRUE(
                HasParts(Call(ZemFunc174, magnitude, phase), magnitude * std::cos(phase), magnitude * std::sin(phase)));
}

TEST(CxScalars, PassNaNOn) {
    for (auto function : {ZemFunc49, ZemFunc50, ZemFunc42, ZemFunc44, ZemFunc45, ZemFunc172, ZemFunc174}) {
        const Result r = Call(function, kNaN, 1);
        EXPECT_EQ(r.status, 0);
        EXPECT_TRUE(std::isnan(r.re));
    }
}

// Split arrays. Each operation with its scalar counterpart; unary ones ignore c and d.

constexpr double kAre = 0.3, kAim = -1.1, kBre = 2.5, kBim = 0.125;

struct ArrayOperation {
    const char* name;
    std::function<Status(double*, double*, const double*, const double*, Size, double*, double*)> call;
    std::function<void(double a, double b, double c, double d, double* re, double* im)> scalar;
    bool binary;
};

std::vector<ArrayOperation> ArrayOperations() {
    return {
        {"add", ZemFunc39, [](auto... x) { ZemFunc38(x...); }, true},
        {"subtract", ZemFunc52, [](auto... x) { ZemFunc51(x...); }, true},
        {"multiply", ZemFunc47, [](auto... x) { ZemFunc46(x...); }, true},
        {"divide", ZemFunc41, [](auto... x) { ZemFunc40(x...); }, true},
        {"to polar",
         [](auto re, auto im, auto, auto, auto n, auto out1, auto out2) { return ZemFunc173(re, im, n, out1, out2); },
         [](auto a, auto b, auto, auto, auto re, auto im) { ZemFunc172(a, b, re, im); }, false},
        {"from polar",
         [](auto re, auto im, auto, auto, auto n, auto out1, auto out2) { return ZemFunc232(re, im, n, out1, out2); },
         [](auto a, auto b, auto, auto, auto re, auto im) { ZemFunc174(a, b, re, im); }, false},
        {"linear",
         [](auto re, auto im, auto, auto, auto n, auto out1, auto out2) {
             return ZemFunc43(re, im, n, kAre, kAim, kBre, kBim, out1, out2);
         },
         [](auto a, auto b, auto, auto, auto re, auto im) {
             *re = (kAre * a - kAim * b) + kBre;
             *im = (kAim * a + kAre * b) + kBim;
         },
         false},
    };
}

struct Operands {
    Reals a, b, c, d;
    explicit Operands(std::size_t n)
        : a(RandomReals(n, 1)), b(RandomReals(n, 2)), c(RandomReals(n, 3)), d(RandomReals(n, 4)) {
        if (n > 20) {
            a[5] = b[5] = c[5] = d[5] = 0;
            c[11] = -c[11], d[11] = c[11];
            a[17] = kNaN;
        }
    }
};

bool Alike(double a, double b) { return SameBits(a, b) || (std::isnan(a) && std::isnan(b)); }

void ExpectScalarResults(const ArrayOperation& operation, const Operands& x, const Reals& re, const Reals& im) {
    for (std::size_t i = 0; i < re.size(); ++i) {
        double expected_re, expected_im;
        operation.scalar(x.a[i], x.b[i], x.c[i], x.d[i], &expected_re, &expected_im);
        ASSERT_TRUE(Alike(re[i], expected_re)) << "real part " << i << ": " << re[i] << " not " << expected_re;
        ASSERT_TRUE(Alike(im[i], expected_im)) << "imaginary part " << i << ": " << im[i] << " not " << expected_im;
    }
}

TEST(CxArrays, DoWhatTheScalarsDoOnEveryInstructionSetAndAtEveryLength) {
    for (const ArrayOperation& operation : ArrayOperations()) {
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            for (std::size_t n : {1, 2, 3, 7, 8, 9, 16, 17, 31, 64, 100, 333}) {
                Operands x(n);
                Reals re = Output(n), im = Output(n);
                ASSERT_EQ(operation.call(x.a, x.b, x.c, x.d, Size(n), re, im), 0);
                ExpectScalarResults(operation, x, re, im);
            }
        });
    }
}

TEST(CxArrays, TakeOutputsThatAreInputsStraightAndCrosswise) {
    for (const ArrayOperation& operation : ArrayOperations()) {
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            const Operands before(50);
            const int inputs = operation.binary ? 4 : 2;
            for (int first = 0; first < inputs; ++first)
                for (int second = 0; second < inputs; ++second) {
                    if (first == second) continue;
                    Operands x = before;
                    Reals* arrays[] = {&x.a, &x.b, &x.c, &x.d};
                    ASSERT_EQ(operation.call(x.a, x.b, x.c, x.d, 50, *arrays[first], *arrays[second]), 0);
                    SCOPED_TRACE(::testing::Message() << "outputs over " << first << " and " << second);
                    ExpectScalarResults(operation, before, *arrays[first], *arrays[second]);
                }
        });
    }
}

TEST(CxArrays, ReplaceTheMatchingInputForEachNullOutputByItself) {
    for (const ArrayOperation& operation : ArrayOperations()) {
        if (operation.binary) continue;
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            const Operands before(50);
            for (int nulls = 1; nulls < 4; ++nulls) {
                Operands x = before;
                Reals re = Output(50), im = Output(50);
                const bool null_re = nulls & 1, null_im = nulls & 2;
                ASSERT_EQ(operation.call(x.a, x.b, x.c, x.d, 50, null_re ? nullptr : re.data(),
                                         null_im ? nullptr : im.data()),
                          0);
                ExpectScalarResults(operation, before, null_re ? x.a : re, null_im ? x.b : im);
                for (int i = 0; i < 50; ++i) {
                    EXPECT_TRUE(null_re || SameBits(x.a[i], before.a[i]));
                    EXPECT_TRUE(null_im || SameBits(x.b[i], before.b[i]));
                }
            }
        });
    }
}

TEST(CxArrays, RefuseSizesAndTouchNothing) {
    for (const ArrayOperation& operation : ArrayOperations()) {
        SCOPED_TRACE(operation.name);
        Operands x(3);
        const Operands before = x;
        Reals re = Output(3), im = Output(3);
        EXPECT_EQ(operation.call(x.a, x.b, x.c, x.d, 0, re, im), -20003);
        EXPECT_EQ(operation.call(x.a, x.b, x.c, x.d, -1, re, im), -20003);
        EXPECT_EQ(operation.call(x.a, x.b, x.c, x.d, kTooLarge, re, im), -20046);
        EXPECT_EQ(operation.call(x.a, x.b, x.c, x.d, -kTooLarge - 1, re, im), -20046);
        EXPECT_TRUE(Untouched(re) && Untouched(im));
        EXPECT_EQ(x.a.values(), before.a.values());
        EXPECT_EQ(x.b.values(), before.b.values());
    }
}

TEST(CxArrays, CoverArraysBeyondTheCaches) {
    constexpr std::size_t n = (std::size_t{1} << 20) + 3;
    Operands x(n);
    for (const ArrayOperation& operation : ArrayOperations()) {
        SCOPED_TRACE(operation.name);
        ForEachTarget([&] {
            Reals re = Output(n), im = Output(n);
            ASSERT_EQ(operation.call(x.a, x.b, x.c, x.d, n, re, im), 0);
            ExpectScalarResults(operation, x, re, im);
        });
    }
}

TEST(CxArrDivide, ByZeroGivesNaNAndGoesOn) {
    const Reals one{1, 1, 1}, re{1, 0, 2}, im{0, 0, 0};
    Reals out_re = Output(3), out_im = Output(3);
    EXPECT_EQ(ZemFunc41(one, one, re, im, 3, out_re, out_im), 0);
    EXPECT_EQ(out_re[0], 1);
    EXPECT_TRUE(std::isnan(out_re[1]) && std::isnan(out_im[1]));
    EXPECT_EQ(out_re[2], 0.5);
}

TEST(CxArrLinearEval, OfOneTimesZPlusZeroIsZ) {
    Reals re{1, -2, 3}, im{4, 5, -6};
    EXPECT_EQ(ZemFunc43(re, im, 3, 1, 0, 0, 0, nullptr, nullptr), 0);
    EXPECT_EQ(re.values(), (std::vector<double>{1, -2, 3}));
    EXPECT_EQ(im.values(), (std::vector<double>{4, 5, -6}));
    EXPECT_EQ(ZemFunc43(re, im, 3, 0, 1, 10, 20, nullptr, nullptr), 0);  // i z + (10 + 20 i)
    EXPECT_EQ(re.values(), (std::vector<double>{6, 5, 16}));
    EXPECT_EQ(im.values(), (std::vector<double>{21, 18, 23}));
}

// Laws that do not repeat the formulas.

TEST(CxLaws, RootsSquareLogarithmsExpandAndPowersMultiply) {
    const Reals x = RandomReals(600, 9);
    for (int i = 0; i < 600; i += 2) {
        const ComplexRecord z{2 * x[i], 2 * x[i + 1]};
        const double magnitude = CxMagnitude(z);
        // A handful of roundings of each function, and an angle of up to pi that is rounded with them.
        const double tolerance = 16 * kEpsilon;
        const auto expect_near = [&](ComplexRecord got, ComplexRecord expected, double scale) {
            EXPECT_NEAR(got.re, expected.re, tolerance * scale);
            EXPECT_NEAR(got.im, expected.im, tolerance * scale);
        };
        const ComplexRecord root = CxSqrt(z);
        EXPECT_GE(root.re, 0) << "the principal branch";
        expect_near(CxMultiply(root, root), z, magnitude);
        ComplexRecord log{}, cube{}, reciprocal{};
        ASSERT_EQ(CxLog(z, &log), 0);
        expect_near(CxExp(log), z, magnitude);
        ASSERT_EQ(CxPow(z, 3, &cube), 0);
        expect_near(cube, CxMultiply(z, CxMultiply(z, z)), magnitude * magnitude * magnitude);
        ASSERT_EQ(CxReciprocal(z, &reciprocal), 0);
        expect_near(reciprocal, CxDivide({1, 0}, z), 1 / magnitude);
        expect_near(CxFromPolar(CxToPolar(z).magnitude, CxToPolar(z).phase), z, magnitude);
    }
}

TEST(CxValues, NegateConjugateAndScale) {
    const ComplexRecord z{1.5, -0.0};
    EXPECT_TRUE(SameBits(CxNegate(z).re, -1.5) && SameBits(CxNegate(z).im, 0.0));
    EXPECT_TRUE(SameBits(CxConj(z).re, 1.5) && SameBits(CxConj(z).im, 0.0));
    EXPECT_TRUE(SameBits(CxScale(z, 2).re, 3.0) && SameBits(CxScale(z, 2).im, -0.0));
}

}  // namespace
}  // namespace quorvan::testing
