// One-sided spectra.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

const int kSizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 23, 36, 53, 64, 100, 106};

std::size_t Bins(int n) { return std::max(n / 2, 1); }
double Tolerance(int n) { return 8 * 2.3e-16 * n; }

Reals Cosine(int n, int bin, double amplitude, double phase) {
    Reals x(n);
    for (int j = 0; j < n; ++j) x[j] = amplitude * std::cos(2 * M_PI * (static_cast<double>(j) * bin / n) + phase);
    return x;
}

TEST(SpecAmplitudePhase, GivesTheRmsAmplitudeAndThePhaseOfASine) {
    for (int n : {8, 15, 64, 100}) {
        const int bin = 3;
        Reals amp = Output(Bins(n)), phase = Output(Bins(n)), df = Output(1);
        // sin is the cosine a quarter turn later.
        ASSERT_EQ(ZemFunc5(Cosine(n, bin, 1, -M_PI / 2), n, 0, 0.25, amp, phase, df), 0);
        for (int k = 0; k < n / 2; ++k) EXPECT_NEAR(amp[k], k == bin ? 1 / std::sqrt(2) : 0, Tolerance(n));
        EXPECT_NEAR(phase[bin], -M_PI / 2, Tolerance(n));
        EXPECT_EQ(df[0], 1 / (n * 0.25));
    }
}

TEST(SpecAmplitudePhase, GivesTheMeanWithAPhaseOfZeroOrPi) {
    Reals amp = Output(4), phase = Output(4), df = Output(1);
    ASSERT_EQ(ZemFunc5(Reals(8, 2.0), 8, 0, 1, amp, phase, df), 0);
    EXPECT_NEAR(amp[0], 2, Tolerance(8));
    EXPECT_TRUE(SameBits(phase[0], 0));
    ASSERT_EQ(ZemFunc5(Reals(8, -2.0), 8, 0, 1, amp, phase, df), 0);
    EXPECT_NEAR(amp[0], 2, Tolerance(8));
    EXPECT_TRUE(SameBits(phase[0], M_PI));
}

TEST(SpecAmplitudePhase, OfASingleSampleIsItsMagnitudeWhateverTheUnwrapping) {
    for (int unwrap : {0, 1}) {
        Reals amp = Output(1), phase = Output(1), df = Output(1);
        EXPECT_EQ(ZemFunc5(Reals{-3}, 1, unwrap, 0.5, amp, phase, df), 0);
        EXPECT_EQ(amp[0], 3);
        EXPECT_EQ(phase[0], M_PI);
        EXPECT_EQ(df[0], 2);
        EXPECT_EQ(ZemFunc5(Reals{3}, 1, unwrap, 0.5, amp, phase, df), 0);
        EXPECT_EQ(amp[0], 3);
        EXPECT_EQ(phase[0], 0);
    }
}

// A pulse that comes d samples late falls by 2 pi d / n from bin to bin.
TEST(SpecAmplitudePhase, UnwrapsOnRequest) {
    const int n = 64, delay = 20;
    Reals x(n), amp = Output(n / 2), phase = Output(n / 2), df = Output(1);
    x[delay] = 1;
    ASSERT_EQ(ZemFunc5(x, n, 0, 1, amp, phase, df), 0);
    EXPECT_TRUE(std::all_of(phase.begin(), phase.end(), [](double v) { return std::fabs(v) <= M_PI; }));
    Reals unwrapped = phase;
    ASSERT_EQ(ZemFunc183(unwrapped, n / 2), 0);
    ASSERT_EQ(ZemFunc5(x, n, -1, 1, amp, phase, df), 0);
    EXPECT_EQ(phase.values(), unwrapped.values());
    for (int k = 0; k < n / 2; ++k) EXPECT_NEAR(phase[k], -2 * M_PI * k * delay / n, 40 * Tolerance(n));
}

TEST(SpecPowerSpectrum, IsTheAutoPowerWithInnerBinsDoubled) {
    for (int n : kSizes) {
        const Reals x = RandomReals(n, n);
        Reals twoSided = x, power = Output(Bins(n)), df = Output(1);
        ASSERT_EQ(ZemFunc161(twoSided, n), 0);
        ASSERT_EQ(ZemFunc10(x, n, 0.25, power, df), 0);
        EXPECT_TRUE(SameBits(power[0], twoSided[0]));
        for (int k = 1; k < n / 2; ++k) EXPECT_TRUE(SameBits(power[k], 2 * twoSided[k]));
        EXPECT_EQ(df[0], 1 / (n * 0.25));
    }
}

TEST(SpecPowerSpectrum, IsTheSquareOfTheAmplitude) {
    const int n = 100;
    const Reals x = RandomReals(n);
    Reals amp = Output(50), phase = Output(50), power = Output(50), df = Output(1);
    ASSERT_EQ(ZemFunc5(x, n, 0, 1, amp, phase, df), 0);
    ASSERT_EQ(ZemFunc10(x, n, 1, power, df), 0);
    for (int k = 0; k < 50; ++k) EXPECT_NEAR(power[k], amp[k] * amp[k], 16 * 2.3e-16 * power[k]);
}

TEST(SpecCrossPowerPolar, IsTheCrossPowerInPolarFormWithInnerBinsDoubled) {
    for (int n : kSizes) {
        const Reals x = RandomReals(n, 1), y = RandomReals(n, 2);
        Reals re = Output(n), im = Output(n), mag = Output(Bins(n)), phase = Output(Bins(n)), df = Output(1);
        ASSERT_EQ(ZemFunc36(x, y, n, re, im), 0);
        ASSERT_EQ(ZemFunc37(x, y, n, 0.25, mag, phase, df), 0);
        EXPECT_TRUE(SameBits(mag[0], std::fabs(re[0])));
        EXPECT_TRUE(SameBits(phase[0], re[0] < 0 ? M_PI : 0));
        for (int k = 1; k < n / 2; ++k) {
            EXPECT_TRUE(SameBits(mag[k], 2 * std::sqrt(re[k] * re[k] + im[k] * im[k])));
            EXPECT_TRUE(SameBits(phase[k], std::atan2(im[k], re[k])));
        }
        EXPECT_EQ(df[0], 1 / (n * 0.25));
    }
}

TEST(OneSidedSpectra, GiveAnInfiniteStepForNoTimeBetweenSamples) {
    Reals power = Output(1), df = Output(1);
    EXPECT_EQ(ZemFunc10(Reals{1, 2}, 2, 0.0, power, df), 0);
    EXPECT_EQ(df[0], kInf);
}

TEST(OneSidedSpectra, RefuseSizesAndTouchNothing) {
    Reals a = Output(2), b = Output(2), df = Output(1);
    const Reals x{1, 2};
    for (Size n : {Size{0}, Size{-1}, kTooLarge, -kTooLarge - 1}) {
        const Status expected = n == 0 || n == -1 ? -20003 : -20046;
        EXPECT_EQ(ZemFunc5(x, n, 1, 1, a, b, df), expected);
        EXPECT_EQ(ZemFunc10(x, n, 1, a, df), expected);
        EXPECT_EQ(ZemFunc37(x, x, n, 1, a, b, df), expected);
    }
    EXPECT_TRUE(Untouched(a) && Untouched(b) && Untouched(df));
}

TEST(OneSidedSpectra, TellExhaustedMemory) {
    for (int n : {12, 53}) {
        const Reals x = RandomReals(n, 1), y = RandomReals(n, 2);
        Reals a(n / 2), b(n / 2), df(1);
        ExpectEveryAllocationFails([&] { return ZemFunc5(x, n, 1, 1, a, b, df); });
        ExpectEveryAllocationFails([&] { return ZemFunc10(x, n, 1, a, df); });
        ExpectEveryAllocationFails([&] { return ZemFunc37(x, y, n, 1, a, b, df); });
    }
}

}  // namespace
}  // namespace quorvan::testing
