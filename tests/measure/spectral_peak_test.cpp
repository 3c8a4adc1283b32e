// Power and frequency of a spectral peak.
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

struct Peak {
    double frequency, power;
    bool operator==(const Peak&) const = default;
};

Peak Find(const Reals& power, double search, Size span, double df = 1, double enbw = 1) {
    const WinProperties window{enbw, kNaN};
    Reals frequency = Output(1), peak = Output(1);
    EXPECT_EQ(ZemFunc139(power, static_cast<Size>(power.size()), search, &window, df, span, frequency, peak), 0);
    return {frequency[0], peak[0]};
}

// Powers of two: the power tells which bins were summed.
const Reals kBits{1, 2, 4, 8, 16, 32, 64, 32, 16};

TEST(SpecPeakPowerFrequency, SumsAnOddNumberOfBinsAndAtLeastThree) {
    for (Size span : {Size{-5}, Size{0}, Size{1}, Size{2}, Size{3}}) EXPECT_EQ(Find(kBits, 3, span).power, 4 + 8 + 16);
    for (Size span : {4, 5}) EXPECT_EQ(Find(kBits, 3, span).power, 2 + 4 + 8 + 16 + 32);
    for (Size span : {6, 7}) EXPECT_EQ(Find(kBits, 3, span).power, 1 + 2 + 4 + 8 + 16 + 32 + 64);
}

TEST(SpecPeakPowerFrequency, LeavesOutBinsOutsideTheSpectrum) {
    EXPECT_EQ(Find(kBits, 0, 3).power, 1 + 2);
    EXPECT_EQ(Find(kBits, 8, 5).power, 64 + 32 + 16);
    EXPECT_EQ(Find(kBits, 4, 2147483647).power, 175);
    EXPECT_EQ(Find({5}, 0, 3), (Peak{0, 5}));
}

TEST(SpecPeakPowerFrequency, TruncatesTheSearchFrequencyToABin) {
    EXPECT_EQ(Find(kBits, 1.99, 3).power, 1 + 2 + 4);
    EXPECT_EQ(Find(kBits, 0.99, 3, 0.5).power, 1 + 2 + 4);
}

TEST(SpecPeakPowerFrequency, TakesTheLargestBinForANegativeOrDistantSearch) {
    const double around = 32 + 64 + 32;
    EXPECT_EQ(Find(kBits, -1, 3).power, around);
    EXPECT_EQ(Find(kBits, 9, 3).power, around);
    EXPECT_EQ(Find(kBits, 4294967296.0 + 3, 3).power, around) << "an index beyond 32 bits lies outside";
    EXPECT_EQ(Find(kBits, kInf, 3).power, around);
    EXPECT_EQ(Find(kBits, kNaN, 3).power, around);
    EXPECT_EQ(Find(kBits, 8.99, 3).power, 32 + 16);
}

TEST(SpecPeakPowerFrequency, DividesThePowerByTheNoiseBandwidthAndTakesTheCentreOfMass) {
    // (2 * 4 + 3 * 8 + 4 * 16) / 28
    EXPECT_EQ(Find(kBits, 1.5, 3, 0.5, 1.5), (Peak{96 * 0.5 / 28, 28 / 1.5}));
}

TEST(SpecPeakPowerFrequency, GivesTheCentreBinWithoutAPositiveSum) {
    EXPECT_EQ(Find({0, 0, 0, 0}, 2.5, 3, 0.5), (Peak{0, 0}) /* bin 5 lies outside: the largest, bin 0 */);
    EXPECT_EQ(Find({0, 0, 0, 0}, 1.25, 3, 0.5), (Peak{1, 0}));
    EXPECT_EQ(Find({0, -1, 0, 0}, 1.25, 3, 0.5), (Peak{1, -1}));
}

TEST(SpecPeakPowerFrequency, LooksForTheLargestBinPastNan) {
    EXPECT_EQ(Find({kNaN, 0, 0, 1, 2, 4}, -1, 3).power, 2 + 4);
    EXPECT_TRUE(std::isnan(Find({kNaN, kNaN}, -1, 3).power));
}

TEST(SpecPeakPowerFrequency, RefusesSizesAndTouchesNothing) {
    const WinProperties window{1, 1};
    Reals frequency = Output(1), peak = Output(1);
    EXPECT_EQ(ZemFunc139(kBits, 0, 1, &window, 1, 3, frequency, peak), -20003);
    EXPECT_EQ(ZemFunc139(kBits, -1, 1, &window, 1, 3, frequency, peak), -20003);
    EXPECT_EQ(ZemFunc139(kBits, kTooLarge, 1, &window, 1, 3, frequency, peak), -20046);
    EXPECT_EQ(ZemFunc139(kBits, 0, 1, &window, 1, kTooLarge, frequency, peak), -20046);
    EXPECT_TRUE(Untouched(frequency) && Untouched(peak));
}

}  // namespace
}  // namespace quorvan::testing
