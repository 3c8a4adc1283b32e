// Fourier transforms in one dimension.
#include <gtest/gtest.h>
#include <random>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/targets.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

Reals OneTo(int n) {
    Reals x(n);
    for (int i = 0; i < n; ++i) x[i] = i + 1;
    return x;
}

// RealFft

TEST(RealFft, IsTheDefiningSumOfEveryLengthInBothOrdersOnEveryInstructionSet) {
    ForEachTarget([] {
        for (int n = 1; n < 70; ++n) {
            const Reals x = RandomReals(n, n);
            const auto expected = ReferenceDft(x, n);
            for (int shift : {0, 1, -7}) {
                Records out = RecordOutput(n);
                ASSERT_EQ(ZemFunc262(x, n, 0, nullptr, shift, out), 0);
                ExpectSpectrum(expected, out, shift != 0, Rounding(n, Norm(x)));
            }
        }
    });
}

TEST(RealFft, IsHermitianToTheLastBitAndRealAtZeroAndHalf) {
    ForEachTarget([] {
        // Two passes take the composite even lengths up to 1024 or so; longer ones go by the levels of the plan where
        // its first factor is even, and by the plan of half the length where it is odd: 132 (3 4 11) and 3000.
        for (int n : {1,   2,   3,   4,   5,   8,   9,   10,  12,  14,   16,   17,   18,   20,   31,  32,  33,
                      34,  35,  36,  44,  46,  53,  56,  60,  64,  80,   96,   100,  101,  106,  128, 132, 180,
                      240, 252, 256, 360, 400, 480, 512, 800, 992, 1000, 1024, 1040, 2018, 3000, 4096}) {
            const Reals x = RandomReals(n, 3);
            Records natural = RecordOutput(n), shifted = RecordOutput(n);
            ASSERT_EQ(ZemFunc262(x, n, n, nullptr, 0, natural), 0);
            ASSERT_EQ(ZemFunc262(x, n, n, nullptr, 1, shifted), 0);
            EXPECT_EQ(natural[0].im, 0);
            EXPECT_EQ(natural[n / 2].im == 0, n % 2 == 0 || n == 1);
            for (int k = 0; k < n; ++k) {
                EXPECT_EQ(natural[k].re, natural[(n - k) % n].re);
                EXPECT_EQ(natural[k].im, -natural[(n - k) % n].im);
                EXPECT_EQ(natural[k].re, shifted[ShiftedIndex(k, n)].re);
                EXPECT_EQ(natural[k].im, shifted[ShiftedIndex(k, n)].im);
            }
        }
    });
}

TEST(RealFft, ByAHeldPlanIsThatByNoneToTheLastBit) {
    ForEachTarget([] {
        for (int n = 1; n < 400; ++n) {
            const Reals x = RandomReals(n, n);
            QvFftPlan* plan = ZemFunc260(n);
            ASSERT_NE(plan, nullptr);
            Records held = RecordOutput(n), own = RecordOutput(n);
            ASSERT_EQ(ZemFunc262(x, n, n, plan, 0, held), 0);
            ZemFunc261(plan);
            ASSERT_EQ(ZemFunc262(x, n, n, nullptr, 0, own), 0);
            for (int k = 0; k < n; ++k) {
                ASSERT_EQ(held[k].re, own[k].re) << n;
                ASSERT_EQ(held[k].im, own[k].im) << n;
            }
        }
    });
}

TEST(RealFft, OfOneSampleIsTheSample) {
    for (int shift : {0, 1}) {
        const Reals x{-3.5};
        Records out = RecordOutput(1);
        ASSERT_EQ(ZemFunc262(x, 1, 0, nullptr, shift, out), 0);
        EXPECT_EQ(out[0].re, -3.5);
        EXPECT_EQ(out[0].im, 0);
    }
}

TEST(RealFft, OfTwoOnesShiftedHasTheSumAtIndexOne) {
    const Reals x{1, 1};
    Records out = RecordOutput(2);
    ASSERT_EQ(ZemFunc262(x, 2, 0, nullptr, 1, out), 0);
    EXPECT_EQ(out[1].re, 2);
    EXPECT_EQ(out[1].im, 0);
    EXPECT_EQ(out[0].re, 0);
    EXPECT_EQ(out[0].im, 0);
}

TEST(RealFft, PadsWithZerosAndCuts) {
    const Reals x = RandomReals(3, 4);
    for (int length : {1, 2, 3, 4, 5, 6, 7, 8, 53}) {
        for (int shift : {0, 1}) {
            Records out = RecordOutput(length);
            ASSERT_EQ(ZemFunc262(x, 3, length, nullptr, shift, out), 0);
            ExpectSpectrum(ReferenceDft(x, length), out, shift != 0, Rounding(length, Norm(x)));
        }
    }
}

TEST(RealFft, OfPaddedSamplesIsThatOfWrittenZerosToTheLastBit) {
    ForEachTarget([] {
        for (int length : {8, 16, 21, 60, 64, 106, 128, 1000, 1024}) {
            Reals x = RandomReals(5, length), padded(length);
            std::copy(x.begin(), x.end(), padded.begin());
            for (int shift : {0, 1}) {
                Records out = RecordOutput(length), expected = RecordOutput(length);
                ASSERT_EQ(ZemFunc262(x, 5, length, nullptr, shift, out), 0);
                ASSERT_EQ(ZemFunc262(padded, length, 0, nullptr, shift, expected), 0);
                for (int k = 0; k < length; ++k) {
                    ASSERT_EQ(out[k].re, expected[k].re) << length;
                    ASSERT_EQ(out[k].im, expected[k].im) << length;
                }
            }
        }
    });
}

TEST(RealFft, ReachesTheLargestValuesWithoutOverflow) {
    // An impulse has bins of its own magnitude. Twice of it would be infinite; the square root of 2 times it, which the
    // rotations of the kernels form, is not.
    const double large = 1e308;
    ForEachTarget([&] {
        for (int n : {2, 8, 16, 60, 64, 100, 128, 256, 1000, 1024})
            for (int at : {0, 1}) {
                Reals x(n);
                x[at] = large;
                Records out = RecordOutput(n);
                ASSERT_EQ(ZemFunc262(x, n, 0, nullptr, 0, out), 0);
                for (int k = 0; k < n; ++k)
                    EXPECT_LE(Distance(std::conj(Root(k * at, n)), {out[k].re / large, out[k].im / large}),
                              Rounding(n, 1))
                        << n << " bin " << k;
            }
    });
}

TEST(RealFft, HasNoImaginaryPartAtZeroAndHalfEvenOfInfinities) {
    ForEachTarget([] {
        for (int n : {2, 10, 16, 32, 60, 64, 96, 100, 1024}) {
            Reals x = RandomReals(n, 8);
            x[n / 3] = HUGE_VAL;
            x[n - 1] = -HUGE_VAL;
            Records out = RecordOutput(n);
            ASSERT_EQ(ZemFunc262(x, n, 0, nullptr, 0, out), 0);
            EXPECT_EQ(out[0].im, 0) << n;
            EXPECT_EQ(out[n / 2].im, 0) << n;
        }
    });
}

TEST(RealFft, LengthBelowOneMeansTheInputsLength) {
    const Reals x = RandomReals(6, 5);
    for (Size length : {Size{0}, Size{-1}, Size{INT32_MIN}}) {
        Records out = RecordOutput(6);
        ASSERT_EQ(ZemFunc262(x, 6, length, nullptr, 0, out), 0);
        ExpectSpectrum(ReferenceDft(x, 6), out, false, Rounding(6, Norm(x)));
    }
}

TEST(RealFft, TakesNoMemoryWithAPlanThatFits) {
    const int n = 60;
    const Reals x = RandomReals(n, 6);
    for (int length : {n, n / 2, 2 * n}) {
        QvFftPlan* plan = ZemFunc260(length);
        ASSERT_NE(plan, nullptr);
        for (int shift : {0, 1}) {
            Records out = RecordOutput(length);
            FailAllocation(-1);
            ASSERT_EQ(ZemFunc262(x, n, length, plan, shift, out), 0);
            EXPECT_EQ(AllocationCount(), 0);
            ExpectSpectrum(ReferenceDft(x, length), out, shift != 0, Rounding(length, Norm(x)));
        }
        ZemFunc261(plan);
    }
}

// ComplexFft

TEST(ComplexFft, IsTheDefiningSumOfEveryLengthInBothOrders) {
    for (int n = 1; n < 70; ++n) {
        const Records x = RandomRecords(n, n);
        const auto expected = ReferenceDft(x, n);
        for (int shift : {0, 1}) {
            Records out = RecordOutput(n);
            ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, shift, out), 0);
            ExpectSpectrum(expected, out, shift != 0, Rounding(n, Norm(x)));
        }
    }
}

TEST(ComplexFft, TakesNoMemoryWithAPlanThatFitsInNaturalOrder) {
    const int n = 60;
    const Records x = RandomRecords(n, 6);
    for (int length : {n, n / 2}) {
        QvFftPlan* plan = ZemFunc260(length);
        ASSERT_NE(plan, nullptr);
        Records out = RecordOutput(length);
        FailAllocation(-1);
        ASSERT_EQ(ZemFunc263(x, n, length, plan, 0, out), 0);
        EXPECT_EQ(AllocationCount(), 0);
        ZemFunc261(plan);
    }
}

TEST(ComplexFft, PadsWithZerosAndCuts) {
    const Records x = RandomRecords(5, 7);
    for (int length : {1, 2, 4, 5, 6, 9, 16, 53}) {
        for (int shift : {0, 1}) {
            Records out = RecordOutput(length);
            ASSERT_EQ(ZemFunc263(x, 5, length, nullptr, shift, out), 0);
            ExpectSpectrum(ReferenceDft(x, length), out, shift != 0, Rounding(length, Norm(x)));
        }
    }
}

TEST(ComplexFft, LeavesTheNaturalOrderWhenMemoryForShiftingIsExhausted) {
    const int n = 12;
    const Records x = RandomRecords(n, 8);
    QvFftPlan* plan = ZemFunc260(n);
    Records out = RecordOutput(n);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc263(x, n, n, plan, 1, out), -20001);
    FailAllocation(-1);
    ExpectSpectrum(ReferenceDft(x, n), out, false, Rounding(n, Norm(x)));
    ZemFunc261(plan);
}

// Inverses

TEST(RealIfft, UndoesRealFftInBothOrders) {
    for (int n = 1; n < 60; ++n) {
        const Reals x = RandomReals(n, n);
        for (int shift : {0, 1}) {
            Records spectrum = RecordOutput(n);
            Reals back = Output(n);
            ASSERT_EQ(ZemFunc262(x, n, 0, nullptr, shift, spectrum), 0);
            ASSERT_EQ(ZemFunc264(spectrum, n, nullptr, shift, back), 0);
            ExpectNear(x, back, Rounding(n, Norm(x)) + Rounding(n, Norm(spectrum)) / std::sqrt(n));
        }
    }
}

// Which elements carry the result: real and imaginary parts from frequency 0 up, in both orders.
TEST(RealIfft, ReadsTheUpperFrequenciesOnly) {
    for (int n : {1, 2, 3, 4, 5, 8, 9}) {
        const Reals x = RandomReals(n, 9);
        for (int shift : {0, 1}) {
            Records spectrum = RecordOutput(n);
            Reals expected = Output(n), got = Output(n);
            ASSERT_EQ(ZemFunc262(x, n, 0, nullptr, shift, spectrum), 0);
            ASSERT_EQ(ZemFunc264(spectrum, n, nullptr, shift, expected), 0);
            for (int k = 0; k < n; ++k) {
                ComplexRecord& bin = spectrum[shift ? ShiftedIndex(k, n) : k];
                if (2 * k > n) bin = {kNaN, kNaN};
                if (k == 0 || 2 * k == n) bin.im = kNaN;
            }
            ASSERT_EQ(ZemFunc264(spectrum, n, nullptr, shift, got), 0);
            for (int i = 0; i < n; ++i) EXPECT_TRUE(SameBits(expected[i], got[i])) << n << " shift " << shift;
        }
    }
}

TEST(ComplexIfft, UndoesComplexFftWithMatchingOrder) {
    for (int n = 1; n < 60; ++n) {
        const Records x = RandomRecords(n, n);
        for (int shift : {0, 1}) {
            Records spectrum = RecordOutput(n), back = RecordOutput(n);
            ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, shift, spectrum), 0);
            ASSERT_EQ(ZemFunc265(spectrum, n, nullptr, shift, back), 0);
            ExpectNear(x, back, Rounding(n, Norm(x)) + Rounding(n, Norm(spectrum)) / std::sqrt(n));
        }
    }
}

TEST(ComplexIfft, OfOddShiftedSpectraTurnsTheOtherWayThanTheForwardShift) {
    // X with a single one at the shifted place of X[1]: the inverse is exp(2 pi i j / 5) / 5.
    const int n = 5;
    Records X(n);
    X[ShiftedIndex(1, n)] = {1, 0};
    Records out = RecordOutput(n);
    ASSERT_EQ(ZemFunc265(X, n, nullptr, 1, out), 0);
    for (int j = 0; j < n; ++j) EXPECT_LE(Distance(Root(j, n) / Wide(n), out[j]), Rounding(n, 1) / n);
}

TEST(Ifft, OfNothingEndsForWantOfAPlan) {
    Records X = RecordOutput(1), records = RecordOutput(1);
    Reals reals = Output(1);
    EXPECT_EQ(ZemFunc264(X, 0, nullptr, 0, reals), -20001);
    EXPECT_EQ(ZemFunc265(X, 0, nullptr, 0, records), -20001);
    EXPECT_EQ(ZemFunc264(X, 0, nullptr, 1, reals), -20001);
    EXPECT_EQ(ZemFunc265(X, 0, nullptr, 1, records), -20001);
    QvFftPlan* plan = ZemFunc260(1);
    EXPECT_EQ(ZemFunc264(X, 0, plan, 0, reals), -20070);
    EXPECT_EQ(ZemFunc265(X, 0, plan, 0, records), -20070);
    EXPECT_EQ(ZemFunc264(X, -1, plan, 0, reals), -20003);
    EXPECT_EQ(ZemFunc265(X, -1, plan, 0, records), -20003);
    ZemFunc261(plan);
    EXPECT_TRUE(Untouched(reals));
    EXPECT_TRUE(Untouched(records));
}

// All four

TEST(Fft, RefusesAPlanOfAnotherLengthAndTransformsNothing) {
    const Reals x = OneTo(8);
    const Records z = RandomRecords(8);
    QvFftPlan* plan = ZemFunc260(8);
    Records out = RecordOutput(16);
    Reals reals = Output(8);
    EXPECT_EQ(ZemFunc262(x, 8, 16, plan, 0, out), -20070);
    EXPECT_EQ(ZemFunc263(z, 8, 16, plan, 0, out), -20070);
    EXPECT_EQ(ZemFunc262(x, 7, 0, plan, 1, out), -20070);
    EXPECT_EQ(ZemFunc263(z, 7, 0, plan, 1, out), -20070);
    EXPECT_EQ(ZemFunc264(z, 7, plan, 0, reals), -20070);
    EXPECT_EQ(ZemFunc265(z, 7, plan, 0, out), -20070);
    EXPECT_TRUE(Untouched(out));
    EXPECT_TRUE(Untouched(reals));
    EXPECT_EQ(ZemFunc262(x, 8, 8, plan, 0, out), 0);
    ZemFunc261(plan);
}

TEST(Fft, ChecksSizesBeforeThePlan) {
    const Reals x = OneTo(2);
    const Records z = RandomRecords(2);
    QvFftPlan* plan = ZemFunc260(8);
    Records out = RecordOutput(4);
    Reals reals = Output(4);
    EXPECT_EQ(ZemFunc262(x, 0, 4, plan, 0, out), -20003);
    EXPECT_EQ(ZemFunc263(z, 0, 4, plan, 0, out), -20003);
    EXPECT_EQ(ZemFunc262(x, -1, 4, nullptr, 0, out), -20003);
    EXPECT_EQ(ZemFunc263(z, -1, 4, nullptr, 0, out), -20003);
    EXPECT_EQ(ZemFunc262(x, kTooLarge, 4, plan, 0, out), -20046);
    EXPECT_EQ(ZemFunc262(x, 0, kTooLarge, plan, 0, out), -20046);
    EXPECT_EQ(ZemFunc263(z, kTooLarge, 4, plan, 0, out), -20046);
    EXPECT_EQ(ZemFunc263(z, 0, kTooLarge, plan, 0, out), -20046);
    EXPECT_EQ(ZemFunc264(z, kTooLarge, plan, 0, reals), -20046);
    EXPECT_EQ(ZemFunc265(z, kTooLarge, plan, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
    EXPECT_TRUE(Untouched(reals));
    ZemFunc261(plan);
}

TEST(Fft, SpreadsNaNWithoutAWord) {
    const Reals x{1, kNaN, 2};
    Records out = RecordOutput(3);
    EXPECT_EQ(ZemFunc262(x, 3, 0, nullptr, 0, out), 0);
    for (const ComplexRecord& bin : out) EXPECT_TRUE(std::isnan(bin.re));
}

TEST(Fft, ReportsEveryFailedAllocation) {
    for (int n : {12, 132, kLargePrime, 2 * kLargePrime}) {
        const Reals x = RandomReals(n);
        const Records z = RandomRecords(n);
        for (int shift : {0, 1}) {
            Records out = RecordOutput(2 * n);
            Reals reals = Output(n);
            ExpectEveryAllocationFails([&] { return ZemFunc262(x, n, 0, nullptr, shift, out); });
            ExpectEveryAllocationFails([&] { return ZemFunc262(x, n, 2 * n, nullptr, shift, out); });
            ExpectEveryAllocationFails([&] { return ZemFunc263(z, n, 0, nullptr, shift, out); });
            ExpectEveryAllocationFails([&] { return ZemFunc263(z, n, 2 * n, nullptr, shift, out); });
            ExpectEveryAllocationFails([&] { return ZemFunc264(z, n, nullptr, shift, reals); });
            ExpectEveryAllocationFails([&] { return ZemFunc265(z, n, nullptr, shift, out); });
        }
    }
}

// Laws

TEST(Fft, KeepsTheEnergyAndIsLinearForManySizes) {
    std::mt19937 engine(7);
    for (int trial = 0; trial < 60; ++trial) {
        const int n = std::uniform_int_distribution(1, 1500)(engine);
        SCOPED_TRACE(n);
        const Records x = RandomRecords(n, 2 * trial), y = RandomRecords(n, 2 * trial + 1);
        const ComplexRecord a{0.75, -0.5};
        Records combined(n), X = RecordOutput(n), Y = RecordOutput(n), Z = RecordOutput(n);
        for (int i = 0; i < n; ++i)
            combined[i] = {x[i].re + (a.re * y[i].re - a.im * y[i].im), x[i].im + (a.re * y[i].im + a.im * y[i].re)};
        ASSERT_EQ(ZemFunc263(x, n, 0, nullptr, 0, X), 0);
        ASSERT_EQ(ZemFunc263(y, n, 0, nullptr, 0, Y), 0);
        ASSERT_EQ(ZemFunc263(combined, n, 0, nullptr, 0, Z), 0);
        const double tolerance = Rounding(n, Norm(x) + 2 * Norm(y));
        for (int k = 0; k < n; ++k) EXPECT_LE(Distance(Widen(X[k]) + Widen(a) * Widen(Y[k]), Z[k]), tolerance);
        EXPECT_NEAR(Norm(X) / std::sqrt(n), Norm(x), tolerance);
    }
}

TEST(Fft, OfRealsIsTheFftOfRecordsWithoutImaginaryParts) {
    std::mt19937 engine(8);
    for (int trial = 0; trial < 60; ++trial) {
        const int n = std::uniform_int_distribution(1, 1500)(engine);
        const Reals x = RandomReals(n, trial);
        Records z(n), fromReals = RecordOutput(n), fromRecords = RecordOutput(n);
        for (int i = 0; i < n; ++i) z[i] = {x[i], 0};
        for (int shift : {0, 1}) {
            ASSERT_EQ(ZemFunc262(x, n, 0, nullptr, shift, fromReals), 0);
            ASSERT_EQ(ZemFunc263(z, n, 0, nullptr, shift, fromRecords), 0);
            ExpectNear(fromRecords, fromReals, 2 * Rounding(n, Norm(x)));
        }
    }
}

// SplitFft

TEST(SplitFft, TransformsInPlaceUnscaled) {
    for (int n : {1, 2, 3, 10, 23, 53}) {
        const Records x = RandomRecords(n, 11);
        Reals re(n), im(n);
        for (int i = 0; i < n; ++i) re[i] = x[i].re, im[i] = x[i].im;
        ASSERT_EQ(ZemFunc77(re, im, n), 0);
        const auto expected = ReferenceDft(x, n);
        for (int k = 0; k < n; ++k) EXPECT_LE(Distance(expected[k], ComplexRecord{re[k], im[k]}), Rounding(n, Norm(x)));
    }
}

TEST(SplitFft, OfOnePointChangesNothingAndTakesNoMemory) {
    Reals re{3.25}, im{-0.0};
    FailAllocation(-1);
    EXPECT_EQ(ZemFunc77(re, im, 1), 0);
    EXPECT_EQ(AllocationCount(), 0);
    EXPECT_EQ(re[0], 3.25);
    EXPECT_TRUE(SameBits(im[0], -0.0));
}

TEST(SplitFft, RefusesSizesAndReportsMemory) {
    Reals re = Output(kLargePrime), im = Output(kLargePrime);
    EXPECT_EQ(ZemFunc77(re, im, 0), -20003);
    EXPECT_EQ(ZemFunc77(re, im, -1), -20003);
    EXPECT_EQ(ZemFunc77(re, im, kTooLarge), -20046);
    EXPECT_TRUE(Untouched(re));
    EXPECT_TRUE(Untouched(im));
    for (double& v : re) v = 1;
    for (double& v : im) v = 0;
    ExpectEveryAllocationFails([&] { return ZemFunc77(re, im, kLargePrime); });
}

// Power spectra

TEST(PowerSpectrumComplex, IsTheSquaredMagnitudeOverNSquared) {
    ForEachTarget([] {
        for (int n : {2, 3, 8, 17, 53, 100}) {
            const Records x = RandomRecords(n, 12);
            Reals out = Output(n);
            ASSERT_EQ(ZemFunc467(x, n, out), 0);
            const auto X = ReferenceDft(x, n);
            const double d = Rounding(n, Norm(x));
            for (int k = 0; k < n; ++k) {
                const double magnitude = static_cast<double>(std::abs(X[k])) / n;
                EXPECT_NEAR(out[k], magnitude * magnitude, (2 * magnitude + d) * d / n);
            }
        }
    });
}

TEST(PowerSpectrumComplex, OfOneSampleIsItsSquare) {
    const Records x{{3, -4}};
    Reals out = Output(1);
    EXPECT_EQ(ZemFunc467(x, 1, out), 0);
    EXPECT_EQ(out[0], 25);
}

TEST(CrossPowerComplex, IsTheConjugateOfTheFirstTimesTheSecond) {
    ForEachTarget([] {
        for (int n : {2, 3, 8, 17, 53, 100}) {
            const Records x = RandomRecords(n, 13), y = RandomRecords(n, 14);
            Records out = RecordOutput(n);
            ASSERT_EQ(ZemFunc468(x, y, n, out), 0);
            const auto X = ReferenceDft(x, n), Y = ReferenceDft(y, n);
            const double dx = Rounding(n, Norm(x)), dy = Rounding(n, Norm(y));
            for (int k = 0; k < n; ++k) {
                const double bound =
                    static_cast<double>(std::abs(X[k])) * dy + static_cast<double>(std::abs(Y[k])) * dx;
                EXPECT_LE(Distance(std::conj(X[k]) * Y[k] / Wide(n) / Wide(n), out[k]), 1.01 * bound / n / n);
            }
        }
    });
}

TEST(CrossPowerComplex, OfOneSampleIsTheProduct) {
    const Records x{{1, 2}}, y{{3, 5}};
    Records out = RecordOutput(1);
    EXPECT_EQ(ZemFunc468(x, y, 1, out), 0);
    EXPECT_EQ(out[0].re, 13);
    EXPECT_EQ(out[0].im, -1);
}

TEST(PowerSpectra, RefuseSizesAndReportMemory) {
    const Records x = RandomRecords(kLargePrime);
    Reals reals = Output(kLargePrime);
    Records records = RecordOutput(kLargePrime);
    for (Size n : {Size{0}, Size{-1}}) {
        EXPECT_EQ(ZemFunc467(x, n, reals), -20003);
        EXPECT_EQ(ZemFunc468(x, x, n, records), -20003);
    }
    EXPECT_EQ(ZemFunc467(x, kTooLarge, reals), -20046);
    EXPECT_EQ(ZemFunc468(x, x, kTooLarge, records), -20046);
    EXPECT_TRUE(Untouched(reals));
    EXPECT_TRUE(Untouched(records));
    ExpectEveryAllocationFails([&] { return ZemFunc467(x, kLargePrime, reals); });
    ExpectEveryAllocationFails([&] { return ZemFunc468(x, x, kLargePrime, records); });
}

// 46341 is the first length whose square exceeds an int32. A single record at the start has |X[k]| = 1 everywhere.
TEST(PowerSpectra, FormTheSquareOfTheLengthInFloatingPoint) {
    const int n = 46341;
    const double expected = 1.0 / 46341 / 46341;
    Records x(n);
    x[0] = {1, 0};
    Reals power = Output(n);
    Records cross = RecordOutput(n);
    ASSERT_EQ(ZemFunc467(x, n, power), 0);
    ASSERT_EQ(ZemFunc468(x, x, n, cross), 0);
    for (int k = 0; k < n; k += 999) {
        EXPECT_NEAR(power[k], expected, expected * Rounding(n, 2));
        EXPECT_NEAR(cross[k].re, expected, expected * Rounding(n, 2));
    }
}

}  // namespace
}  // namespace quorvan::testing
