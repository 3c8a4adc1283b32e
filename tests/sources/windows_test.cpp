// Named windows: sizes, statuses, what is left alone, symmetry, exhausted memory.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

constexpr double kCoefficients[] = {0.4, 0.3, 0.2, 0.1};

// A window as its real export and its complex twin, with whether it takes memory and what it gives below its least
// size.
struct Window {
    const char* name;
    std::function<Status(double*, Size)> real;
    std::function<Status(ComplexRecord*, Size)> complex;
    bool allocates;
    Status tooSmall = -20003;
};

#define QV_TWINS(real, complex, ...)                                         \
    [](double* x, Size n) { return real(x, n __VA_OPT__(, ) __VA_ARGS__); }, \
        [](ComplexRecord* x, Size n) { return complex(x, n __VA_OPT__(, ) __VA_ARGS__); }

const Window kPeriodic[] = {
    {"WinHanning", QV_TWINS(ZemFunc89, ZemFunc430), true},
    {"WinHamming", QV_TWINS(ZemFunc88, ZemFunc431), true},
    {"WinBlackmanHarris3", QV_TWINS(ZemFunc15, ZemFunc433), true},
    {"WinExactBlackman", QV_TWINS(ZemFunc72, ZemFunc435), true},
    {"WinBlackman", QV_TWINS(ZemFunc14, ZemFunc432), true},
    {"WinFlatTop", QV_TWINS(ZemFunc80, ZemFunc436), true},
    {"WinBlackmanNuttall", QV_TWINS(ZemFunc336, ZemFunc434), true},
    {"WinCosineSum", QV_TWINS(ZemFunc85, ZemFunc437, kCoefficients, 4), true},
    {"WinTriangle", QV_TWINS(ZemFunc180, ZemFunc439), false},
    {"WinBartlettHanning", QV_TWINS(ZemFunc343, ZemFunc446), true},
    {"WinBohman", QV_TWINS(ZemFunc344, ZemFunc447), true},
    {"WinParzen", QV_TWINS(ZemFunc345, ZemFunc448), true},
    {"WinWelch", QV_TWINS(ZemFunc346, ZemFunc449), true},
    {"WinKaiser", QV_TWINS(ZemFunc113, ZemFunc440, 5.0), false},
    {"WinGaussian", QV_TWINS(ZemFunc280, ZemFunc441, 0.2), false},
    {"WinChebyshev", QV_TWINS(ZemFunc279, ZemFunc442, 60.0), true},
};
const Window kOthers[] = {
    {"WinCosineTaper", QV_TWINS(ZemFunc278, ZemFunc438, 0.5), false},
    {"WinCosineTaper as Hanning", QV_TWINS(ZemFunc278, ZemFunc438, 1.0), true},
    {"WinCosineTaper20", QV_TWINS(ZemFunc35, [](ComplexRecord* x, Size n) { return ZemFunc438(x, n, 0.2); }), false},
    {"WinExponential", QV_TWINS(ZemFunc74, ZemFunc444, 0.1), false, -20006},
    {"WinForce", QV_TWINS(ZemFunc81, ZemFunc443, 50.0), false, -20006},
};

std::vector<Window> AllWindows() {
    std::vector<Window> all(std::begin(kPeriodic), std::end(kPeriodic));
    all.insert(all.end(), std::begin(kOthers), std::end(kOthers));
    return all;
}

Reals OfOnes(const Window& window, int n) {
    Reals x(n, 1.0);
    EXPECT_EQ(window.real(x, n), 0);
    return x;
}

bool Same(const Reals& a, const Reals& b) { return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameBits); }

TEST(Windows, RefuseSizesAndTouchNothing) {
    for (const Window& window : AllWindows()) {
        SCOPED_TRACE(window.name);
        Reals x = Output(2);
        Records z = RecordOutput(2);
        for (Size n : {Size{0}, Size{-1}, Size{-2147483647} - 1}) {
            EXPECT_EQ(window.real(x, n), window.tooSmall);
            EXPECT_EQ(window.complex(z, n), window.tooSmall);
        }
        for (Size n : {kTooLarge, -kTooLarge - 1, Size{1} << 32}) {
            EXPECT_EQ(window.real(x, n), -20046);
            EXPECT_EQ(window.complex(z, n), -20046);
        }
        EXPECT_TRUE(Untouched(x));
        EXPECT_TRUE(Untouched(z));
    }
}

TEST(Windows, LeaveASingleSampleUnchangedButForTriangleAndKaiser) {
    for (const Window& window : AllWindows()) {
        SCOPED_TRACE(window.name);
        Reals x(1, 3.0);
        Records z(1, ComplexRecord{3.0, -4.0});
        double factor = 1.0;
        if (window.name == std::string("WinTriangle")) factor = 0.0;
        if (window.name == std::string("WinKaiser")) factor = 1.0 / 27.239871823604442;  // 1 / I0(5)
        const Status expected = window.tooSmall == -20006 ? -20006 : 0;
        EXPECT_EQ(window.real(x, 1), expected);
        EXPECT_EQ(window.complex(z, 1), expected);
        // The series of I0 stops at a term of 1e-8.
        EXPECT_NEAR(x[0], 3.0 * factor, 1e-9 * (factor < 1));
        EXPECT_NEAR(z[0].re, 3.0 * factor, 1e-9 * (factor < 1));
        EXPECT_NEAR(z[0].im, -4.0 * factor, 1e-9 * (factor < 1));
    }
}

TEST(Windows, MultiplyBothPartsOfAComplexSampleByOneFactor) {
    for (const Window& window : AllWindows()) {
        SCOPED_TRACE(window.name);
        for (int n = 2; n < 40; ++n) {
            const Reals w = OfOnes(window, n);
            const Records data = RandomRecords(n, n);
            Records z = data;
            ASSERT_EQ(window.complex(z, n), 0);
            for (int i = 0; i < n; ++i) {
                EXPECT_EQ(z[i].re, data[i].re * w[i]);
                EXPECT_EQ(z[i].im, data[i].im * w[i]);
            }
        }
    }
}

TEST(Windows, ArePeriodicToTheLastBit) {
    for (const Window& window : kPeriodic) {
        SCOPED_TRACE(window.name);
        for (int n = 2; n < 60; ++n) {
            const Reals w = OfOnes(window, n);
            for (int k = 1; k < n; ++k) EXPECT_TRUE(SameBits(w[k], w[n - k])) << n << ' ' << k;
        }
    }
}

TEST(Windows, ReachTheirPeakInTheMiddleOfAnEvenLength) {
    for (const Window& window : kPeriodic) {
        SCOPED_TRACE(window.name);
        for (int n : {2, 4, 50, 128}) {
            // Coefficients that sum to 1 but for the flat top's 1e-9, after n/2 rotations.
            EXPECT_NEAR(OfOnes(window, n)[n / 2], 1.0, 1.1e-9) << n;
        }
    }
}

TEST(Windows, GiveTheStatusOfExhaustedMemoryAndLeaveTheData) {
    for (const Window& window : AllWindows())
        for (int n : {2, 6, 7, 12, 30}) {
            SCOPED_TRACE(::testing::Message() << window.name << ' ' << n);
            const Reals data = RandomReals(n, n);
            const auto call = [&] {
                Reals x = data;
                const Status status = window.real(x, n);
                if (status < 0) {
                    EXPECT_TRUE(Same(x, data));
                }
                return status;
            };
            FailAllocation(-1);
            call();
            if (window.allocates) {
                ExpectEveryAllocationFails(call);
            } else {
                EXPECT_EQ(AllocationCount(), 0);
            }
        }
}

TEST(Windows, OfComplexDataSurviveExhaustedMemoryToo) {
    for (const Window& window : AllWindows()) {
        if (!window.allocates) continue;
        SCOPED_TRACE(window.name);
        ExpectEveryAllocationFails([&] {
            Records z(9, ComplexRecord{1.0, 2.0});
            const Status status = window.complex(z, 9);
            if (status < 0) {
                for (const ComplexRecord& v : z) EXPECT_TRUE(v.re == 1.0 && v.im == 2.0);
            }
            return status;
        });
    }
}

TEST(WinHanning, OfFourOnes) {
    Reals x(4, 1.0);
    ASSERT_EQ(ZemFunc89(x, 4), 0);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_NEAR(x[1], 0.5, kEpsilon);
    EXPECT_NEAR(x[2], 1.0, kEpsilon);
    EXPECT_NEAR(x[3], 0.5, kEpsilon);
}

TEST(WinHamming, OfTwoOnes) {
    Reals x(2, 1.0);
    ASSERT_EQ(ZemFunc88(x, 2), 0);
    EXPECT_NEAR(x[0], 0.08, kEpsilon);
    EXPECT_NEAR(x[1], 1.0, kEpsilon);
}

TEST(WinCosineSum, LooksAtTheNumberOfItsCoefficientsOnlyFromTwoSamplesOn) {
    Reals x = Output(2);
    EXPECT_EQ(ZemFunc85(x, 1, kCoefficients, 0), 0);
    EXPECT_EQ(ZemFunc85(x, 0, kCoefficients, 0), -20003);
    EXPECT_EQ(ZemFunc85(x, 2, kCoefficients, 0), -20003);
    EXPECT_TRUE(Untouched(x));
}

TEST(WinCosineSum, OfASingle1LeavesTheDataWithoutMemory) {
    const double one = 1.0, half = 0.5;
    Reals x{3.0, kInf, kNaN};
    FailAllocation(0);
    EXPECT_EQ(ZemFunc85(x, 3, &one, 1), 0);
    EXPECT_EQ(AllocationCount(), 0);
    EXPECT_EQ(x[0], 3.0);
    EXPECT_EQ(ZemFunc85(x, 3, &half, 1), -20001);
    FailAllocation(-1);
    EXPECT_EQ(ZemFunc85(x, 3, &half, 1), 0);
    EXPECT_EQ(x[0], 1.5);
}

TEST(WinCosineTaper, From1OnIsHanning) {
    for (double ratio : {1.0, 1.5, kInf}) {
        Reals x = RandomReals(33), expected = x;
        ASSERT_EQ(ZemFunc278(x, 33, ratio), 0);
        ASSERT_EQ(ZemFunc89(expected, 33), 0);
        EXPECT_TRUE(Same(x, expected));
    }
}

TEST(WinCosineTaper, FadesTenSamplesOfAHundredAtEachEnd) {
    Reals x(100, 1.0);
    ASSERT_EQ(ZemFunc278(x, 100, 0.2), 0);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[99], 0.0);
    for (int i = 1; i < 10; ++i) {
        EXPECT_TRUE(x[i] > x[i - 1] && x[i] < 1.0);
        EXPECT_EQ(x[99 - i], x[i]);
    }
    EXPECT_NEAR(x[5], 0.5, 2 * kEpsilon);
    for (int i = 10; i < 90; ++i) EXPECT_EQ(x[i], 1.0);
    Reals same(100, 1.0);
    ASSERT_EQ(ZemFunc35(same, 100), 0);
    EXPECT_TRUE(Same(x, same));
}

TEST(WinCosineTaper, SetsItsEndsTo0WhateverTheyHold) {
    Reals x{kNaN, 1.0, 1.0, -kInf};
    ASSERT_EQ(ZemFunc278(x, 4, 0.5), 0);
    EXPECT_EQ(x.values(), (std::vector<double>{0, 1, 1, 0}));
    Records z(4, ComplexRecord{kNaN, kInf});
    ASSERT_EQ(ZemFunc438(z, 4, 0.5), 0);
    EXPECT_TRUE(z[0].re == 0 && z[0].im == 0 && z[3].re == 0 && z[3].im == 0);
}

TEST(WinCosineTaper, OfLessThanASampleLeavesTheData) {
    for (double ratio : {0.0, -1.0, -kInf, 0.199, kNaN}) {
        Reals x = RandomReals(10);
        const Reals data = x;
        EXPECT_EQ(ZemFunc278(x, 10, ratio), 0);
        EXPECT_TRUE(Same(x, data)) << ratio;
    }
}

TEST(WinTriangle, MultipliesItsFirstSampleBy0) {
    Reals x{kInf, 1.0, 1.0, 1.0};
    ASSERT_EQ(ZemFunc180(x, 4), 0);
    EXPECT_TRUE(std::isnan(x[0]));
    EXPECT_EQ(x[1], 0.5);
    Reals minus(1, -2.0);
    ASSERT_EQ(ZemFunc180(minus, 1), 0);
    EXPECT_TRUE(SameBits(minus[0], -0.0));
}

TEST(WinBartlettHanning, AndBohmanOfTwoSamplesAre0And1) {
    for (auto window : {ZemFunc343, ZemFunc344}) {
        Reals x(2, 1.0);
        ASSERT_EQ(window(x, 2), 0);
        EXPECT_EQ(x[0], 0.0);
        EXPECT_EQ(x[1], 1.0);
    }
}

TEST(WinParzen, AndWelchOfAnEvenLengthAreExactly1InTheMiddle) {
    for (auto window : {ZemFunc345, ZemFunc346})
        for (int n : {2, 4, 6, 100, 1022}) {
            Reals x(n, 1.0);
            ASSERT_EQ(window(x, n), 0);
            EXPECT_EQ(x[n / 2], 1.0);
        }
}

TEST(WinKaiser, KeepsTheMiddleOfAnEvenLength) {
    Reals x{1.0, 1.0, 7.0, 1.0};
    ASSERT_EQ(ZemFunc113(x, 4, 1000.0), 0);
    EXPECT_EQ(x[2], 7.0);
}

TEST(WinKaiser, StopsItsSeriesAfter25Terms) {
    // For a large beta the 25th term is the last one taken: sum of ((beta/2)^j / j!)^2, j = 0 to 25.
    const double beta = 100.0;
    double sum = 1.0, term = 1.0;
    for (int j = 1; j <= 25; ++j) sum += term *= beta * beta / (4.0 * j * j);
    Reals x(2, 1.0);
    ASSERT_EQ(ZemFunc113(x, 2, beta), 0);
    EXPECT_NEAR(x[0] * sum, 1.0, 100 * kEpsilon);
    EXPECT_GT(std::cyl_bessel_i(0, beta), 10 * sum) << "far from the whole series";
}

TEST(WinGaussian, TakesASigmaThatIsNotPositiveFor02) {
    Reals expected(9, 1.0);
    ASSERT_EQ(ZemFunc280(expected, 9, 0.2), 0);
    for (double sigma : {0.0, -0.0, -3.0}) {
        Reals x(9, 1.0);
        ASSERT_EQ(ZemFunc280(x, 9, sigma), 0);
        EXPECT_TRUE(Same(x, expected));
    }
}

TEST(WinGaussian, KeepsTheMiddleOfAnEvenLengthWhateverSigma) {
    for (double sigma : {0.3, 1e-200, 4.9406564584124654e-324, kInf, kNaN}) {
        Reals x{1.0, 1.0, 7.0, 1.0};
        Records z(4, ComplexRecord{3.0, -4.0});
        ASSERT_EQ(ZemFunc280(x, 4, sigma), 0);
        ASSERT_EQ(ZemFunc441(z, 4, sigma), 0);
        EXPECT_EQ(x[2], 7.0) << sigma;
        EXPECT_TRUE(z[2].re == 3.0 && z[2].im == -4.0) << sigma;
    }
}

TEST(WinChebyshev, TakesANegativeAttenuationFor0) {
    Reals expected(9, 1.0), x(9, 1.0);
    ASSERT_EQ(ZemFunc279(expected, 9, 0.0), 0);
    ASSERT_EQ(ZemFunc279(x, 9, -60.0), 0);
    EXPECT_TRUE(Same(x, expected));
}

TEST(WinChebyshev, WithSidelobesAsHighAsTheMainLobeIsAnImpulseAtEachEnd) {
    // T_{N-1}(cos t) = cos((N - 1) t) is the spectrum of two impulses N - 1 samples apart; the periodic form drops the
    // last.
    for (int n : {2, 3, 16, 31, 40}) {
        Reals x(n, 1.0), whole(n, 1.0);
        ASSERT_EQ(ZemFunc279(x, n, 0.0), 0);
        ASSERT_EQ(ZemFunc281(whole, n, QV_WINDOW_CHEBYSHEV, 0.0), 0);
        EXPECT_EQ(x[0], 1.0);
        EXPECT_EQ(whole[0], 1.0);
        EXPECT_EQ(whole[n - 1], 1.0);
        // The angle of a bin errs by n^2 epsilon / 4 from the recurrence, the bin by n times that.
        const double tolerance = n * n * n * kEpsilon;
        for (int i = 1; i < n; ++i) EXPECT_NEAR(x[i], 0.0, tolerance) << n;
        for (int i = 1; i < n - 1; ++i) EXPECT_NEAR(whole[i], 0.0, tolerance) << n;
    }
}

TEST(WinChebyshev, RefusesTheSizeWhoseWindowExceeds32Bits) {
    Reals x = Output(2);
    EXPECT_EQ(ZemFunc279(x, 2147483647, 60.0), -20046);
    EXPECT_TRUE(Untouched(x));
}

TEST(WinExponential, ChecksItsSizeBeforeItsFinalValue) {
    Reals x = Output(2);
    EXPECT_EQ(ZemFunc74(x, 1, 0.0), -20006);
    EXPECT_EQ(ZemFunc74(x, 2, 0.0), -20027);
    EXPECT_EQ(ZemFunc74(x, 2, -1.0), -20027);
    Records z = RecordOutput(2);
    EXPECT_EQ(ZemFunc444(z, 2, -1.0), -20027);
    EXPECT_TRUE(Untouched(x));
    EXPECT_TRUE(Untouched(z));
}

TEST(WinExponential, FallsByEqualRatios) {
    Reals x(5, 1.0);
    ASSERT_EQ(ZemFunc74(x, 5, 0.0625), 0);
    for (int i = 0; i < 5; ++i) EXPECT_NEAR(x[i], std::pow(2.0, -i), 4 * kEpsilon);
}

TEST(WinForce, WithDuty0ClearsEverythingAndWithDuty100Nothing) {
    Reals x = RandomReals(10);
    const Reals data = x;
    for (double duty : {100.0, 1e300}) {
        ASSERT_EQ(ZemFunc81(x, 10, duty), 0);
        EXPECT_TRUE(Same(x, data));
    }
    for (double duty : {0.0, -5.0, -1e300, kNaN}) {
        Reals cleared = data;
        ASSERT_EQ(ZemFunc81(cleared, 10, duty), 0);
        for (double v : cleared) EXPECT_TRUE(SameBits(v, 0.0));
    }
}

TEST(WinForce, TakesThePercentFirstAndThenTheSize) {
    // 29 * 0.01 * 100 rounds to just below 29, and 58 * 0.01 * 100 to just below 58.
    for (int duty = 1; duty < 100; ++duty) {
        Reals x(100, 1.0);
        ASSERT_EQ(ZemFunc81(x, 100, duty), 0);
        EXPECT_EQ(std::count(x.begin(), x.end(), 1.0), duty == 29 || duty == 58 ? duty - 1 : duty);
    }
}

}  // namespace
}  // namespace quorvan::testing
