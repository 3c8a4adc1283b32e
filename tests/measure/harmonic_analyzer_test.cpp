// The harmonics in a power spectrum.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

struct Analysis {
    explicit Analysis(int harmonics) : amp(Output(harmonics)), freq(Output(harmonics)) {}
    Reals amp, freq, thd = Output(1), thdPlusNoise = Output(1);
    bool untouched() const { return Untouched(amp) && Untouched(freq) && Untouched(thd) && Untouched(thdPlusNoise); }
};

constexpr std::uint32_t kHanning = 1;

Analysis Analyze(const Reals& power, int harmonics, double fundamental, double fs = 128, Size fftSize = 0,
                 std::uint32_t window = kHanning) {
    Analysis out(harmonics);
    EXPECT_EQ(ZemFunc87(power, static_cast<Size>(power.size()), fftSize, harmonics, window, fs, fundamental, out.amp,
                        out.freq, out.thd, out.thdPlusNoise),
              0);
    return out;
}

// A line of rms amplitude a on a bin, seen through a Hanning window.
void AddLine(Reals& power, int bin, double a) {
    power[bin] += a * a;
    power[bin - 1] += a * a / 4;
    power[bin + 1] += a * a / 4;
}

// 64 bins of 128 points at fs = 128, so that a bin is 1 Hz: lines on 10, 20, 30 and 40 Hz.
Reals Lines() {
    Reals power(64);
    AddLine(power, 10, 1);
    AddLine(power, 20, 0.25);
    AddLine(power, 30, 0.125);
    AddLine(power, 40, 0.0625);
    return power;
}

TEST(SpecHarmonicAnalyzer, GivesTheBinItselfBetweenEqualNeighbours) {
    const Analysis out = Analyze(Lines(), 4, 10);
    const double amp[] = {1, 0.25, 0.125, 0.0625};
    for (int j = 0; j < 4; ++j) {
        EXPECT_EQ(out.amp[j], amp[j]);
        EXPECT_EQ(out.freq[j], 10 * (j + 1));
    }
    EXPECT_EQ(out.thd[0], std::sqrt(0.0625 + 0.015625 + 0.00390625) * 100);
    // Of the fundamental the bins 9 to 11 count; both sums are exact.
    const double harmonics = 1.5 * (0.0625 + 0.015625 + 0.00390625);
    EXPECT_EQ(out.thdPlusNoise[0], std::sqrt(harmonics) * 100 / std::sqrt(1.5 + harmonics));
}

TEST(SpecHarmonicAnalyzer, TakesTheFundamentalToTheNearestBin) {
    for (double fundamental : {9.5, 10.0, 10.49}) EXPECT_EQ(Analyze(Lines(), 1, fundamental).freq[0], 10);
    // Bins 7 to 11 are searched for 9, so the line is found all the same; from 12.5 on bins 11 to 15 are.
    EXPECT_EQ(Analyze(Lines(), 1, 9).freq[0], 10);
    EXPECT_NE(Analyze(Lines(), 1, 12.5).freq[0], 10);
}

TEST(SpecHarmonicAnalyzer, WithAFundamentalAboveTheRangeFallsBackToTheLargestBinBeyondTheFirstLobe) {
    Reals power = Lines();
    power[0] = power[1] = 100;  // in the lobe of bin 0
    for (double fundamental : {63.5, 64.0, 1e300, -5.0, 0.4, 2.0, kNaN}) {
        Analysis out = Analyze(power, 1, fundamental);
        if (fundamental > 64 || fundamental < 0) {
            EXPECT_EQ(out.amp[0], 0) << "no harmonic lies below fs / 2";
            continue;
        }
        EXPECT_EQ(out.freq[0], 10) << fundamental;
        EXPECT_EQ(out.amp[0], 1);
    }
}

TEST(SpecHarmonicAnalyzer, LeavesOutTheFirstLobeFromTheWhole) {
    Reals power = Lines();
    power[0] = power[1] = 100;
    EXPECT_EQ(Analyze(power, 4, 10).thdPlusNoise[0], Analyze(Lines(), 4, 10).thdPlusNoise[0]);
    power[2] = 100;
    EXPECT_NE(Analyze(power, 4, 10).thdPlusNoise[0], Analyze(Lines(), 4, 10).thdPlusNoise[0]);
}

TEST(SpecHarmonicAnalyzer, RoundsTheHalfWidthUp) {
    // 1.21 and 1.81 count as 2: bins 9 to 11 are the fundamental's, and bin 2 counts as the rest. 2.13 counts as 3.
    Reals power(64);
    power[2] = 1;
    power[8] = 2;
    power[10] = 5;
    for (std::uint32_t code : {0, 1, 2, 3})
        EXPECT_EQ(Analyze(power, 1, 10, 128, 0, code).thdPlusNoise[0], std::sqrt(3.0) * 100 / std::sqrt(8.0)) << code;
    for (std::uint32_t code : {4, 5, 7}) EXPECT_EQ(Analyze(power, 1, 10, 128, 0, code).thdPlusNoise[0], 0) << code;
    for (std::uint32_t code : {6, 8}) EXPECT_EQ(Analyze(power, 1, 10, 128, 0, code).thdPlusNoise[0], 0) << code;
}

TEST(SpecHarmonicAnalyzer, OfAnAllZeroSpectrumReadsABillionTwice) {
    const Analysis out = Analyze(Reals(64), 3, 10);
    EXPECT_EQ(out.thd[0], 1e9);
    EXPECT_EQ(out.thdPlusNoise[0], 1e9);
    for (double a : out.amp) EXPECT_EQ(a, 0);
}

TEST(SpecHarmonicAnalyzer, ClearsWhatLiesAboveHalfTheRate) {
    const Analysis out = Analyze(Lines(), 9, 10);  // floor(128 / 20) = 6 harmonics; the window of 60 ends at 62
    for (int j = 6; j < 9; ++j) EXPECT_TRUE(out.amp[j] == 0 && out.freq[j] == 0);
    EXPECT_NE(out.freq[5], 0);
    // The fs told bounds them, too: floor(70 / 20) = 3.
    const Analysis few = Analyze(Lines(), 5, 10, 70, 0);
    EXPECT_TRUE(few.freq[2] != 0 && few.freq[3] == 0 && few.freq[4] == 0);
}

TEST(SpecHarmonicAnalyzer, StopsWhereTheBinsEnd) {
    // With 45 of the 64 bins, those around 40 are there and those around 50 are not; with 42 not even the former.
    const Reals lines = Lines();
    Reals power(45), fewer(42);
    std::copy(lines.begin(), lines.begin() + 45, power.begin());
    std::copy(lines.begin(), lines.begin() + 42, fewer.begin());
    const Analysis out = Analyze(power, 5, 10, 128, 128), less = Analyze(fewer, 5, 10, 128, 128);
    EXPECT_EQ(out.freq[3], 40);
    EXPECT_EQ(out.freq[4], 0);
    EXPECT_EQ(less.freq[2], 30);
    EXPECT_EQ(less.freq[3], 0);
}

TEST(SpecHarmonicAnalyzer, DoesNotInterpolateBelowAnAbsoluteDifference) {
    // Between bins, but the neighbours differ by less than 1e-7 times the index of the larger one in its window.
    Reals power(64);
    power[10] = 3e-7;
    power[11] = 2.9e-7;
    power[9] = 0;
    EXPECT_EQ(Analyze(power, 1, 10).freq[0], 10) << "2.9e-7 / 3 is below the limit";
    power[10] = 3.2e-7;
    power[11] = 3.1e-7;
    EXPECT_GT(Analyze(power, 1, 10).freq[0], 10) << "3.1e-7 / 3 is above it";
}

TEST(SpecHarmonicAnalyzer, InterpolatesTwoEqualBinsToTheirMiddle) {
    Reals power(64);
    power[10] = power[11] = 0.5;
    const Analysis out = Analyze(power, 1, 10);
    EXPECT_NEAR(out.freq[0], 10.5, 1e-6);
    // Half a bin off, a Hanning window shows 8 / (3 pi) of the amplitude.
    EXPECT_NEAR(out.amp[0], std::sqrt(0.5) * 3 * kPi / 8, 1e-3);
}

TEST(SpecHarmonicAnalyzer, TakesNarrowWindowsAroundALowFundamental) {
    // On bin 3 with a half-width of 2 only r = (3 - 1) / 2 = 1 bin either side is searched.
    Reals power(64);
    AddLine(power, 3, 1);
    AddLine(power, 6, 0.5);
    power[5] = 0.9;  // the largest of bins 5 to 7
    const Analysis out = Analyze(power, 2, 3);
    EXPECT_EQ(out.freq[0], 3);
    EXPECT_LT(out.freq[1], 6);
}

TEST(SpecHarmonicAnalyzer, ReadsNothingOfNan) {
    const Analysis out = Analyze(Reals(64, kNaN), 3, 10);
    EXPECT_TRUE(std::isnan(out.amp[0]) && std::isnan(out.thd[0]) && std::isnan(out.thdPlusNoise[0]));
    EXPECT_TRUE(std::isnan(Analyze(Reals(64, kNaN), 3, 1).amp[0])) << "without any largest bin";
}

TEST(SpecHarmonicAnalyzer, WithoutHarmonicsWritesDistortionsOnly) {
    for (int harmonics : {0, -1, INT32_MIN}) {
        Reals nothing(0), thd = Output(1), thdPlusNoise = Output(1);
        const Reals power = Lines();
        EXPECT_EQ(ZemFunc87(power, 64, 0, harmonics, 1, 128, 10, nothing, nothing, thd, thdPlusNoise), 0);
        EXPECT_EQ(thd[0], 1e9);
        EXPECT_EQ(thdPlusNoise[0], Analyze(power, 4, 10).thdPlusNoise[0]);
    }
}

TEST(SpecHarmonicAnalyzer, RefusesInItsOrder) {
    const Reals power = Lines();
    Analysis out(2);
    const auto status = [&](Size n, Size fftSize, std::uint32_t window, double fs, double fundamental) {
        return ZemFunc87(power, n, fftSize, 2, window, fs, fundamental, out.amp, out.freq, out.thd, out.thdPlusNoise);
    };
    EXPECT_EQ(status(kTooLarge, 0, 9, 0, 0), -20046);
    EXPECT_EQ(status(0, kTooLarge, 9, 0, 0), -20046);
    EXPECT_EQ(status(0, 0, 9, 0, 0), -20003);
    EXPECT_EQ(status(-1, 0, 1, 1, 1), -20003);
    EXPECT_EQ(status(64, 0, 9, 0, 1), -20067);
    EXPECT_EQ(status(64, 0, 9, 1, -0.0), -20067);
    for (std::uint32_t window : {9u, 11u, 30u, 0xFFFFFFFFu}) EXPECT_EQ(status(64, 0, window, 1, 0.1), -20061);
    EXPECT_EQ(status(2, 0, 1, 1, 0.1), -20003) << "nothing beyond the first lobe";
    EXPECT_TRUE(out.untouched());
}

TEST(SpecHarmonicAnalyzer, StaysInItsArraysForAnyBits) {
    std::mt19937_64 engine(13);
    const auto bits = [&] { return std::bit_cast<double>(engine()); };
    for (int i = 0; i < 3000; ++i) {
        const int n = 1 + static_cast<int>(engine() % 40);
        Reals power = RandomReals(n, i);
        if (i % 3 == 0) power[engine() % n] = bits();
        const int harmonics = static_cast<int>(engine() % 12);
        Analysis out(harmonics);
        const double fs = i % 2 ? bits() : 1, fundamental = i % 4 > 1 ? bits() : 0.01 + 0.5 * (i % 100) / 100;
        const auto fftSize = static_cast<std::int32_t>(engine()) >> (engine() % 31);
        const Status status = ZemFunc87(power, n, fftSize, harmonics, static_cast<std::uint32_t>(i % 9), fs,
                                        fundamental, out.amp, out.freq, out.thd, out.thdPlusNoise);
        EXPECT_TRUE(status == 0 || status == -20003 || status == -20067) << status;
        if (status == -20003) {
            EXPECT_LE(n, 4);
        }
    }
}

TEST(SpecHarmonicAnalyzer, TakesTheLongestTransform) {
    // 2n of the largest n would not fit 32 bits; a given size that does needs no more bins than there are.
    const Analysis out = Analyze(Lines(), 2, 10, 128, INT32_MAX);
    EXPECT_TRUE(out.amp[0] == 0 && out.amp[1] == 0) << "bin 167772160 is not there";
}

}  // namespace
}  // namespace quorvan::testing
