// A fundamental and its harmonics in a time record.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

struct Analysis {
    explicit Analysis(std::size_t room) : amp(Output(room)), freq(Output(room)) {}
    Reals amp, freq, thd = Output(1), thdPlusNoise = Output(1);
};

Status Analyze(const Reals& x, int harmonics, double fs, double fundamental, Analysis& out) {
    return ZemFunc362(x, static_cast<Size>(x.size()), harmonics, fs, fundamental, out.amp, out.freq, out.thd,
                      out.thdPlusNoise);
}

// Sines of these amplitudes on multiples of a frequency in cycles per sample, about an offset.
Reals Harmonics(int n, double f, std::initializer_list<double> amplitudes, double offset = 0) {
    Reals x(n, offset);
    int k = 0;
    for (double a : amplitudes) {
        ++k;
        for (int i = 0; i < n; ++i) x[i] += a * std::sin(kTwoPi * k * f * i + 0.7 * k);
    }
    return x;
}

TEST(SpecToneHarmonics, FindsTheFundamentalItsHarmonicsAndTheDistortion) {
    // The offset leaks into bins 0 and 1 alone, which are never looked at.
    const Reals x = Harmonics(4000, 0.0412345, {2, 0.02, 0.01}, 5);
    Analysis out(3);
    ASSERT_EQ(Analyze(x, 3, 1000, 45, out), 0);
    // 165 bins apart, sidelobes of a Hanning window are down to 1e-7.
    const double amp[] = {2, 0.02, 0.01};
    for (int j = 0; j < 3; ++j) {
        EXPECT_NEAR(out.amp[j], amp[j], 2e-7) << j;
        EXPECT_NEAR(out.freq[j], 41.2345 * (j + 1), 5e-6 / amp[j]) << j;
    }
    const double ratio = std::sqrt(0.0005);
    EXPECT_NEAR(out.thd[0], ratio / 2 * 100, 1e-4);
    EXPECT_NEAR(out.thdPlusNoise[0], ratio / std::sqrt(4.0005) * 100, 1e-3);
}

TEST(SpecToneHarmonics, ClearsWhatLiesBeyondHalfTheRate) {
    const Reals x = Harmonics(1000, 0.1301, {1, 0.1, 0.1});
    Analysis out(8);
    ASSERT_EQ(Analyze(x, 8, 1, 0.13, out), 0);  // floor(1 / 0.2602) = 3
    EXPECT_NEAR(out.amp[2], 0.1, 1e-4);
    for (int j = 3; j < 8; ++j) EXPECT_TRUE(out.amp[j] == 0 && out.freq[j] == 0);
}

TEST(SpecToneHarmonics, BelowOneHarmonicTakesAllThereAre) {
    const Reals x = Harmonics(1000, 0.0901, {1, 0.1, 0.05, 0.02, 0.01});
    for (int harmonics : {0, -1, INT32_MIN}) {
        Analysis all(1000), five(5);
        ASSERT_EQ(Analyze(x, harmonics, 1, 0.09, all), 0);
        ASSERT_EQ(Analyze(x, 5, 1, 0.09, five), 0);  // floor(1 / 0.1802) = 5
        for (int j = 0; j < 5; ++j) EXPECT_TRUE(all.amp[j] == five.amp[j] && all.freq[j] == five.freq[j]);
        for (int j = 5; j < 1000; ++j) EXPECT_EQ(all.amp[j], kUnwritten);
        EXPECT_EQ(all.thd[0], five.thd[0]);
    }
}

TEST(SpecToneHarmonics, NeverSearchesAboveHalfTheRate) {
    // The third harmonic of 0.17 would fold to 0.49: it is beyond the last one, and left out.
    const Reals x = Harmonics(1000, 0.1703, {1, 0.1, 0.1});
    Analysis out(3);
    ASSERT_EQ(Analyze(x, 3, 1, 0.17, out), 0);
    EXPECT_NEAR(out.freq[1], 0.3406, 1e-5);
    EXPECT_EQ(out.freq[2], 0);
    EXPECT_NEAR(out.thd[0], 10, 1e-3);
}

TEST(SpecToneHarmonics, SearchesFivePercentOfTheRateAroundTheGuess) {
    const Reals x = Harmonics(1000, 0.2003, {1});
    Analysis out(1);
    for (double guess : {0.151, 0.2, 0.249}) {
        ASSERT_EQ(Analyze(x, 1, 1, guess, out), 0);
        EXPECT_NEAR(out.freq[0], 0.2003, 1e-6) << guess;
    }
    for (double guess : {0.14, 0.26}) {
        const Status done = Analyze(x, 1, 1, guess, out);
        EXPECT_TRUE(done < 0 || std::fabs(out.freq[0] - 0.2003) > 1e-3) << guess;
    }
}

TEST(SpecToneHarmonics, TakesATonePreciselyOnABin) {
    const Reals x = Harmonics(256, 32.0 / 256, {1.5});
    Analysis out(1);
    ASSERT_EQ(Analyze(x, 1, 256, 32, out), 0);
    EXPECT_NEAR(out.freq[0], 32, 1e-10);
    EXPECT_NEAR(out.amp[0], 1.5, 1e-10);
    EXPECT_LT(out.thdPlusNoise[0], 1e-7);
}

TEST(SpecToneHarmonics, OfConstantDataDividesByZero) {
    // The bins of silence give a tone of amplitude 0; what is left is as constant as the input.
    Analysis out(2);
    EXPECT_EQ(Analyze(Reals(64), 2, 1, 0.2, out), -20060);
    for (double v : {out.amp[0], out.amp[1], out.freq[0], out.freq[1], out.thd[0], out.thdPlusNoise[0]})
        EXPECT_EQ(v, 0);
}

TEST(SpecToneHarmonics, OfNanDividesByZero) {
    Analysis out(2);
    EXPECT_EQ(Analyze(Reals(64, kNaN), 2, 1, 0.2, out), -20060);
    Reals one(64);
    one[7] = kInf;
    EXPECT_EQ(Analyze(one, 2, 1, 0.2, out), -20060);
    EXPECT_TRUE(out.amp[0] == 0 && out.freq[0] == 0 && out.thd[0] == 0 && out.thdPlusNoise[0] == 0);
}

TEST(SpecToneHarmonics, RefusesAToneInTheLastBin) {
    // 32 bins of 64 samples, the last one 31.
    Analysis out(1);
    EXPECT_EQ(Analyze(Harmonics(64, 31.0 / 64, {1}), 1, 64, 31, out), -20017);
    EXPECT_EQ(Analyze(Harmonics(64, 10.0 / 64, {1}), 1, 64, 1e300, out), -20017) << "a guess beyond all bins";
    EXPECT_EQ(out.amp[0], 0);
    for (int n : {1, 2, 3, 4}) EXPECT_EQ(Analyze(Reals(n, 1.0), 1, 1, 0.25, out), -20017) << n;
}

TEST(SpecToneHarmonics, EndsAtAHarmonicInTheLastBin) {
    // The second harmonic of a quarter of the rate stands behind the last bin.
    const Reals x = Harmonics(64, 0.25, {1});
    Analysis out(2);
    EXPECT_EQ(Analyze(x, 2, 1, 0.25, out), -20017);
    EXPECT_NEAR(out.amp[0], 1, 1e-10);
    EXPECT_TRUE(out.amp[1] == 0 && out.thd[0] == 0);
    EXPECT_EQ(Analyze(x, 1, 1, 0.25, out), 0);
    Analysis all(64);
    EXPECT_EQ(Analyze(x, 0, 1, 0.25, all), -20017);
    EXPECT_NEAR(all.amp[0], 1, 1e-10);
    EXPECT_TRUE(all.amp[1] == 0 && all.freq[1] == 0) << "the second is the last one";
    EXPECT_TRUE(all.amp[2] == kUnwritten && all.freq[2] == kUnwritten);
}

TEST(SpecToneHarmonics, RefusesInItsOrder) {
    const Reals x = Harmonics(64, 0.2, {1});
    Analysis out(2);
    const auto status = [&](Size n, double fs, double fundamental) {
        return ZemFunc362(x, n, 2, fs, fundamental, out.amp, out.freq, out.thd, out.thdPlusNoise);
    };
    EXPECT_EQ(status(kTooLarge, 0, 0), -20046);
    EXPECT_EQ(status(0, 0, 0), -20003);
    EXPECT_EQ(status(-1, 1, 0.2), -20003);
    EXPECT_EQ(status(64, 0, 0.2), -20059);
    EXPECT_EQ(status(64, -1, 0.2), -20059);
    EXPECT_EQ(status(64, 1, 0), -20059);
    EXPECT_EQ(status(64, 1, -0.2), -20059);
    EXPECT_TRUE(Untouched(out.amp) && Untouched(out.freq) && Untouched(out.thd) && Untouched(out.thdPlusNoise));
}

TEST(SpecToneHarmonics, StaysInItsArraysForEveryShortRecordAndGuess) {
    for (int n = 1; n <= 40; ++n)
        for (double guess : {1e-300, 0.01, 0.1, 0.25, 0.4, 0.4999, 0.5, 3.0, kInf, kNaN})
            for (unsigned seed : {1u, 2u, 3u}) {
                Analysis out(n);
                const Status done = Analyze(RandomReals(n, seed), seed == 1 ? 0 : n, 1, guess, out);
                EXPECT_TRUE(done == 0 || done == -20017 || done == -20020 || done == -20060) << done;
                for (double fs : {1e-310, 1e300, kInf, kNaN}) Analyze(RandomReals(n, seed), 0, fs, guess, out);
            }
}

TEST(SpecToneHarmonics, ReportsEveryFailedAllocation) {
    const Reals x = Harmonics(60, 0.2, {1, 0.1});
    Analysis out(2);
    ExpectEveryAllocationFails([&] { return Analyze(x, 2, 1, 0.2, out); });
}

}  // namespace
}  // namespace quorvan::testing
