// Two-sided spectra and their inverses.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

const int kSizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 23, 36, 53, 64, 100, 106};

// Forward and back n terms of magnitude 1 at most meet in every output, each with a few roundings.
double Tolerance(int n) { return 8 * 2.3e-16 * n; }

void ExpectNear(const Reals& a, const Reals& b, double tolerance) {
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i], b[i], tolerance) << "element " << i;
}

TEST(SpecRealFft, GivesTheTwoSidedSpectrumUnscaled) {
    Reals x{1, 2, 3, 4}, im = Output(4);
    ASSERT_EQ(ZemFunc147(x, im, 4), 0);
    ExpectNear(x, {10, -2, -2, -2}, Tolerance(40));
    ExpectNear(im, {0, 2, 0, -2}, Tolerance(40));
}

TEST(SpecRealFft, HasNoImaginaryPartAtZeroAndAtTheNyquistFrequency) {
    for (int n : kSizes) {
        Reals x = RandomReals(n), im = Output(n);
        ASSERT_EQ(ZemFunc147(x, im, n), 0);
        EXPECT_TRUE(SameBits(im[0], 0));
        if (n % 2 == 0) {
            EXPECT_TRUE(SameBits(im[n / 2], 0));
        }
        for (int k = 1; k < n; ++k) {
            EXPECT_TRUE(SameBits(x[k], x[n - k]));
            EXPECT_TRUE(im[k] == -im[n - k]);
        }
    }
}

TEST(SpecRealFft, LeavesASingleSampleAndNeedsNoMemoryForIt) {
    Reals x{-3}, im = Output(1);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc147(x, im, 1), 0);
    FailAllocation(-1);
    EXPECT_EQ(x[0], -3);
    EXPECT_TRUE(SameBits(im[0], 0));
}

TEST(SpecRealInverseFft, UndoesTheForwardTransform) {
    for (int n : kSizes) {
        const Reals x = RandomReals(n, n);
        Reals re = x, im = Output(n);
        ASSERT_EQ(ZemFunc147(re, im, n), 0);
        ASSERT_EQ(ZemFunc148(re, im, n), 0);
        ExpectNear(re, x, Tolerance(n));
    }
}

TEST(SpecRealInverseFft, ReadsOneHalfOfEachPart) {
    for (int n : kSizes) {
        if (n < 2) continue;
        const Reals x = RandomReals(n, n);
        Reals re = x, im = Output(n);
        ASSERT_EQ(ZemFunc147(re, im, n), 0);
        for (int k = n / 2 + 1; k < n; ++k) re[k] = kNaN;
        for (int k = 0; k <= n / 2; ++k) im[k] = kNaN;
        ASSERT_EQ(ZemFunc148(re, im, n), 0);
        ExpectNear(re, x, Tolerance(n));
    }
}

TEST(SpecRealInverseFft, TouchesNothingOfASingleSample) {
    Reals re{5}, im{6};
    EXPECT_EQ(ZemFunc148(re, im, 1), 0);
    EXPECT_EQ(re[0], 5);
    EXPECT_EQ(im[0], 6);
}

TEST(SpecComplexInverseFft, UndoesTheForwardTransformOfRealData) {
    for (int n : kSizes) {
        const Reals x = RandomReals(n, n);
        Reals re = x, im = Output(n);
        ASSERT_EQ(ZemFunc147(re, im, n), 0);
        ASSERT_EQ(ZemFunc102(re, im, n), 0);
        ExpectNear(re, x, Tolerance(n));
        ExpectNear(im, Reals(n, 0.0), Tolerance(n));
    }
}

// X[1] = n alone is the complex exponential exp(2 pi i j / n).
TEST(SpecComplexInverseFft, TurnsOneBinIntoAComplexExponential) {
    for (int n : kSizes) {
        if (n < 2) continue;
        Reals re(n), im(n);
        re[1] = n;
        ASSERT_EQ(ZemFunc102(re, im, n), 0);
        for (int j = 0; j < n; ++j) {
            EXPECT_NEAR(re[j], std::cos(2 * M_PI * j / n), Tolerance(n));
            EXPECT_NEAR(im[j], std::sin(2 * M_PI * j / n), Tolerance(n));
        }
    }
}

TEST(SpecComplexInverseFft, TouchesNothingOfASingleSample) {
    Reals re{5}, im{6};
    EXPECT_EQ(ZemFunc102(re, im, 1), 0);
    EXPECT_EQ(re[0], 5);
    EXPECT_EQ(im[0], 6);
}

TEST(SpecAutoPower, SumsToTheMeanSquare) {
    for (int n : kSizes) {
        Reals x = RandomReals(n, n);
        double square = 0, power = 0;
        for (double v : x) square += v * v / n;
        ASSERT_EQ(ZemFunc161(x, n), 0);
        for (double v : x) power += v;
        EXPECT_NEAR(power, square, Tolerance(n));
    }
}

TEST(SpecAutoPower, IsTwoSidedAndSquaresASingleSample) {
    Reals one{-3};
    EXPECT_EQ(ZemFunc161(one, 1), 0);
    EXPECT_EQ(one[0], 9);
    Reals x{1, 2, 3, 4};
    EXPECT_EQ(ZemFunc161(x, 4), 0);
    ExpectNear(x, {100.0 / 16, 8.0 / 16, 4.0 / 16, 8.0 / 16}, Tolerance(40));
}

// 46341 squared is the first square that no 32-bit number holds.
TEST(SpecAutoPower, SquaresTheLengthInFloatingPoint) {
    const int n = 46341;
    Reals x(n, 1.0);
    ASSERT_EQ(ZemFunc161(x, n), 0);
    EXPECT_NEAR(x[0], 1, 1e-12);
}

TEST(SpecCrossPower, OfARecordWithItselfIsItsAutoPower) {
    for (int n : kSizes) {
        const Reals x = RandomReals(n, n);
        Reals power = x, re = Output(n), im = Output(n);
        ASSERT_EQ(ZemFunc161(power, n), 0);
        ASSERT_EQ(ZemFunc36(x, x, n, re, im), 0);
        ExpectNear(re, power, Tolerance(n) / n);
        ExpectNear(im, Reals(n, 0.0), Tolerance(n) / n);
    }
}

// y one sample later than x: X conj X turns by -2 pi k / n.
TEST(SpecCrossPower, ConjugatesTheFirstRecord) {
    for (int n : kSizes) {
        const Reals x = RandomReals(n, n);
        Reals y(n), power = x, re = Output(n), im = Output(n);
        for (int j = 0; j < n; ++j) y[(j + 1) % n] = x[j];
        ASSERT_EQ(ZemFunc161(power, n), 0);
        ASSERT_EQ(ZemFunc36(x, y, n, re, im), 0);
        for (int k = 0; k < n; ++k) {
            EXPECT_NEAR(re[k], power[k] * std::cos(2 * M_PI * k / n), Tolerance(n));
            EXPECT_NEAR(im[k], -power[k] * std::sin(2 * M_PI * k / n), Tolerance(n));
        }
    }
}

TEST(SpecCrossPower, MultipliesSingleSamplesAndMayWriteOverItsInputs) {
    Reals x{3}, y{-4};
    EXPECT_EQ(ZemFunc36(x, y, 1, x, y), 0);
    EXPECT_EQ(x[0], -12);
    EXPECT_TRUE(SameBits(y[0], 0));
    const Reals a = RandomReals(30, 1), b = RandomReals(30, 2);
    Reals re = Output(30), im = Output(30), overA = a, overB = b;
    EXPECT_EQ(ZemFunc36(a, b, 30, re, im), 0);
    EXPECT_EQ(ZemFunc36(overA, overB, 30, overA, overB), 0);
    EXPECT_EQ(overA.values(), re.values());
    EXPECT_EQ(overB.values(), im.values());
}

TEST(TwoSidedSpectra, RefuseSizesAndTouchNothing) {
    Reals a = Output(2), b = Output(2);
    const Reals x{1, 2};
    for (Size n : {Size{0}, Size{-1}, kTooLarge, -kTooLarge - 1}) {
        const Status expected = n == 0 || n == -1 ? -20003 : -20046;
        EXPECT_EQ(ZemFunc147(a, b, n), expected);
        EXPECT_EQ(ZemFunc148(a, b, n), expected);
        EXPECT_EQ(ZemFunc102(a, b, n), expected);
        EXPECT_EQ(ZemFunc161(a, n), expected);
        EXPECT_EQ(ZemFunc36(x, x, n, a, b), expected);
    }
    EXPECT_TRUE(Untouched(a) && Untouched(b));
}

// 12 runs on kernels alone; 53 is a prime that takes a workspace inside the transform.
TEST(TwoSidedSpectra, TellExhaustedMemory) {
    for (int n : {12, 53}) {
        Reals a = RandomReals(n, 1), b = RandomReals(n, 2);
        const Reals x = a, y = b;
        ExpectEveryAllocationFails([&] { return ZemFunc147(a, b, n); });
        ExpectEveryAllocationFails([&] { return ZemFunc148(a, b, n); });
        ExpectEveryAllocationFails([&] { return ZemFunc102(a, b, n); });
        ExpectEveryAllocationFails([&] { return ZemFunc161(a, n); });
        ExpectEveryAllocationFails([&] { return ZemFunc36(x, y, n, a, b); });
    }
}

}  // namespace
}  // namespace quorvan::testing
