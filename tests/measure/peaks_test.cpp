// Peaks and valleys, in one array and in streams of blocks.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

constexpr std::uint32_t kPeaks = 0, kValleys = 1;
constexpr Size kNoCount = -77;
constexpr Size kWidest = Size{1} << 30;

struct Peak {
    double location, amplitude, second;
    bool operator==(const Peak&) const = default;
};
using Peaks = std::vector<Peak>;

struct Options {
    Size width;
    double threshold = -kInf;
    std::uint32_t polarity = kPeaks;
    bool first = true, last = true;
};

// The status, and the peaks; after a failure there must be none. The arrays are released.
Status Detect(const std::vector<double>& samples, Options o, Peaks* peaks) {
    const Reals x(samples);
    Guarded<Size> count{kNoCount};
    double mark = 0;
    Guarded<double*> arrays{&mark, &mark, &mark};
    const Status status = ZemFunc194(x, static_cast<Size>(x.size()), o.threshold, o.width, o.polarity, o.first, o.last,
                                     count, arrays, arrays + 1, arrays + 2);
    peaks->clear();
    for (Size k = 0; k < count[0]; ++k) peaks->push_back({arrays[0][k], arrays[1][k], arrays[2][k]});
    for (const double* array : arrays) EXPECT_EQ(array == nullptr, count[0] == 0);
    EXPECT_TRUE(status == 0 || count[0] == 0);
    for (double* array : arrays) ZemFunc234(array);
    return status;
}

Peaks Found(const std::vector<double>& x, Options o) {
    Peaks peaks;
    EXPECT_EQ(Detect(x, o, &peaks), 0);
    return peaks;
}

Status Refused(const std::vector<double>& x, Options o) {
    Peaks peaks;
    return Detect(x, o, &peaks);
}

Options Stream(Size width, bool first, bool last, std::uint32_t polarity = kPeaks) {
    return {width, polarity == kPeaks ? -kInf : kInf, polarity, first, last};
}

TEST(PeakDetect, FindsAPeakOfThreeSamples) {
    EXPECT_EQ(Found({0, 1, 0}, {3, 0.5}), (Peaks{{1, 1, -2}}));
    EXPECT_EQ(Found({1, 0, 1}, {3, 0.5, kValleys}), (Peaks{{1, 0, 2}}));
    EXPECT_EQ(Found({1, 0, 1}, {3, 0.5}), (Peaks{}));
    EXPECT_EQ(Found({0, 1, 0}, {3, 0.5, kValleys}), (Peaks{}));
}

TEST(PeakDetect, WantsPeaksAboveTheThresholdAndValleysBelow) {
    EXPECT_EQ(Found({0, 1, 0}, {3, 1}), (Peaks{})) << "not on it";
    EXPECT_EQ(Found({0, 1, 0}, {3, std::nextafter(1, 0)}).size(), 1u);
    EXPECT_EQ(Found({1, 0, 1}, {3, 0, kValleys}), (Peaks{}));
    EXPECT_EQ(Found({1, 0, 1}, {3, 5e-324, kValleys}).size(), 1u);
    EXPECT_EQ(Found({0, 1, 0}, {3, kNaN}), (Peaks{}));
}

TEST(PeakDetect, FindsNothingOfAnUnknownPolarity) {
    for (Size width : {3, 4, 5})
        for (std::uint32_t polarity : {2u, UINT32_MAX}) {
            EXPECT_EQ(Found({0, 1, 0, 1, 0, 1, 0}, {width, -kInf, polarity}), (Peaks{}));
            EXPECT_EQ(Found({0, 1, 0, 1, 0, 1, 0}, {width, kInf, polarity}), (Peaks{}));
        }
}

TEST(PeakDetect, InterpolatesBetweenSamples) {
    // Through 1, 2 and 1.5: slope 0.25, curvature -0.75, apex at 1/6.
    const Peaks peaks = Found({1, 2, 1.5}, {3});
    ASSERT_EQ(peaks.size(), 1u);
    EXPECT_NEAR(peaks[0].location, 1 + 1.0 / 6, 2 * kEpsilon);
    EXPECT_NEAR(peaks[0].amplitude, 2 + 1.0 / 48, 2 * kEpsilon);
    EXPECT_EQ(peaks[0].second, -1.5);
}

TEST(PeakDetect, KeepsOneOfTwoWindowsThatFindOneApex) {
    // Both windows see the apex 1.125 half way between the two samples on top.
    EXPECT_EQ(Found({0, 1, 1, 0}, {3}), (Peaks{{1.5, 1.125, -1}}));
    EXPECT_EQ(Found({1, 0, 0, 1}, {3, kInf, kValleys}), (Peaks{{1.5, -0.125, 1}}));
}

TEST(PeakDetect, KeepsTheBetterOfPeaksLessThanASampleApart) {
    // Around 1, 1 the apexes are at 1.5 with 9/8 and, from the flatter side, with less.
    EXPECT_EQ(Found({0, 1, 1, 0.5}, {3}), (Peaks{{1.5, 1.125, -1}})) << "the first is higher";
    EXPECT_EQ(Found({0.5, 1, 1, 0}, {3}), (Peaks{{1.5, 1.125, -1}})) << "the second replaces it";
    EXPECT_EQ(Found({0.5, 0, 0, 1}, {3, kInf, kValleys}), (Peaks{{1.5, -0.125, 1}}));
    // A sample apart: 1.5 and 2.5 both stand.
    EXPECT_EQ(Found({0, 1, 1, 1, 0}, {3}).size(), 2u);
}

TEST(PeakDetect, WantsTheApexInTheMiddleHalfOfTheWindow) {
    EXPECT_EQ(Found({0, 1, 1}, {3}).size(), 1u) << "half a sample from the middle";
    EXPECT_EQ(Found({0, 1, 1 + 1e-9}, {3}), (Peaks{}));
    // The vertex of 0, 1, 1 + e is at 1/2 + e and a rounding of it, e² being far below.
    EXPECT_EQ(Found({0, 1, 1 + 9 * kEpsilon}, {3}).size(), 1u) << "nine roundings beyond are forgiven";
    EXPECT_EQ(Found({0, 1, 1 + 11 * kEpsilon}, {3}), (Peaks{})) << "eleven are not";
    // The same before the middle, where the first window has none before it.
    EXPECT_EQ(Found({1 + 9 * kEpsilon, 1, 0}, {3}).size(), 1u);
    EXPECT_EQ(Found({1 + 11 * kEpsilon, 1, 0}, {3}), (Peaks{}));
}

TEST(PeakDetect, IgnoresCurvaturesBelow1em10) {
    EXPECT_EQ(Found({0, 4e-11, 0}, {3}), (Peaks{}));
    EXPECT_EQ(Found({0, 6e-11, 0}, {3}).size(), 1u);
}

TEST(PeakDetect, HasNoSignRuleForWidthsOf3And4) {
    // The first window can be no change of the trend, so that width 5 needs a second one.
    EXPECT_EQ(Found({0, 1, 1, 0}, {4}).size(), 1u);
    EXPECT_EQ(Found({0, 1, 2, 1, 0}, {5}), (Peaks{}));
    EXPECT_EQ(Found({-1, 0, 1, 2, 1, 0}, {5}).size(), 1u);
    EXPECT_EQ(Found({1, 0, 0, 1}, {4, kInf, kValleys}).size(), 1u);
}

// 3 - (i - t0)² / 8 has its parabola in every window.
TEST(PeakDetect, RecoversAParabolaWithEveryWidth) {
    for (Size width = 3; width <= 15; ++width)
        for (double t0 : {10.0, 10.125, 10.3, 10.5, 10.7, 10.999})
            for (double sign : {1.0, -1.0}) {
                std::vector<double> x;
                for (int i = 0; i < 22; ++i) x.push_back(sign * (3 - (i - t0) * (i - t0) / 8));
                const Peaks peaks = Found(x, Stream(width, true, true, sign > 0 ? kPeaks : kValleys));
                ASSERT_EQ(peaks.size(), 1u) << width << " " << t0;
                // Samples reach 15 and the apex is their weighted sum: a rounding each, and the fit's own.
                const double tolerance = 15 * 64 * kEpsilon;
                EXPECT_NEAR(peaks[0].location, t0, tolerance * 8);
                EXPECT_NEAR(peaks[0].amplitude, sign * 3, tolerance);
                EXPECT_NEAR(peaks[0].second, -sign / 4, tolerance);
            }
}

TEST(PeakDetect, GivesTheSameBitsForEveryInstructionSet) {
    const std::vector<double> x = RandomReals(1000, 3).values();
    for (Size width : {3, 4, 5, 8, 31}) {
        const Peaks here = Found(x, {width});
        EXPECT_GT(here.size(), 10u);
        ForEachTarget([&] { EXPECT_EQ(Found(x, {width}), here); });
    }
}

TEST(PeakDetect, LeavesTheLastWindowToTheNextBlock) {
    EXPECT_EQ(Found({0, 1, 0}, Stream(3, true, false)), (Peaks{}));
    EXPECT_EQ(Found({0, 2, 0}, Stream(3, false, false)), (Peaks{{1, 1, -2}}));
    EXPECT_EQ(Found({0, 1, 0}, Stream(3, false, true)), (Peaks{{4, 2, -4}, {7, 1, -2}}));
}

TEST(PeakDetect, CountsLocationsFromTheStartOfTheStream) {
    EXPECT_EQ(Found({0, 0, 0, 1, 0}, Stream(3, true, false)), (Peaks{}));
    EXPECT_EQ(Found({0, 0, 0, 1, 0}, Stream(3, false, false)), (Peaks{{3, 1, -2}}));
    EXPECT_EQ(Found({0, 0, 0, 1, 0}, Stream(3, false, true)), (Peaks{{8, 1, -2}, {13, 1, -2}}));
    EXPECT_EQ(Found({0, 1, 0}, Stream(3, true, true)), (Peaks{{1, 1, -2}})) << "first begins anew";
}

TEST(PeakDetect, BeginsAnewInTheMiddleOfAStream) {
    EXPECT_EQ(Found({0, 0, 0, 1, 0}, Stream(3, true, false)), (Peaks{}));
    EXPECT_EQ(Found({5, 4, 5, 4, 5, 4}, Stream(5, true, false)).size(), 0u);
    EXPECT_EQ(Found({5, 4, 5, 4, 5}, Stream(5, false, true)).size(), 3u) << "with another width";
}

// What one call would have kept of peaks that come from two: the memory of the last peak is that of a call. It holds
// where an apex has no other neighbour than itself.
void Join(const Peaks& more, std::uint32_t polarity, Peaks* all) {
    for (const Peak& peak : more) {
        if (all->empty() || !(std::fabs(peak.location - all->back().location) < 1)) {
            all->push_back(peak);
        } else if (polarity == kPeaks ? peak.amplitude > all->back().amplitude
                                      : peak.amplitude < all->back().amplitude) {
            all->back() = peak;
        }
    }
}

TEST(PeakDetect, RemembersTheLastPeakWithinACallOnly) {
    // The apex between the samples 1 and 2 is seen by the windows 0 and 1, the second of which belongs to the next
    // block.
    const Peaks before = Found({0, 1, 1, 0}, Stream(3, true, false));
    const Peaks behind = Found({0, 0, 0}, Stream(3, false, true));
    EXPECT_EQ(before, (Peaks{{1.5, 1.125, -1}}));
    EXPECT_EQ(behind, (Peaks{{1.5, 1.125, -1}}));
    EXPECT_EQ(Found({0, 1, 1, 0, 0, 0, 0}, Stream(3, true, true)), before);
}

Peaks FoundInBlocks(const std::vector<double>& x, Size width, std::uint32_t polarity, const std::vector<int>& lengths) {
    Peaks all;
    auto start = x.begin();
    for (int length : lengths) {
        const std::vector<double> block(start, start + length);
        Join(Found(block, Stream(width, start == x.begin(), start + length == x.end(), polarity)), polarity, &all);
        start += length;
    }
    return all;
}

// Every sequence of block lengths of at least `least` that adds up to n.
template <class Body>
void ForEachCut(int n, int least, std::vector<int>* lengths, const Body& body) {
    if (n == 0) return body(*lengths);
    for (int length = least; length <= n; ++length) {
        if (n - length > 0 && n - length < least) continue;
        lengths->push_back(length);
        ForEachCut(n - length, least, lengths, body);
        lengths->pop_back();
    }
}

TEST(PeakDetect, GivesTheSameForEveryWayOfCuttingAShortSignal) {
    std::mt19937 engine(11);
    int cuts = 0;
    for (int width : {3, 4, 5, 6})
        for (int round = 0; round < 12; ++round) {
            // Few values, so that plateaus and equal neighbours come up.
            std::vector<double> x(static_cast<std::size_t>(4 * width + 2));
            for (double& v : x) v = engine() % 4;
            for (std::uint32_t polarity : {kPeaks, kValleys}) {
                const Peaks whole = Found(x, Stream(width, true, true, polarity));
                std::vector<int> lengths;
                ForEachCut(static_cast<int>(x.size()), width, &lengths, [&](const std::vector<int>& cut) {
                    ++cuts;
                    ASSERT_EQ(FoundInBlocks(x, width, polarity, cut), whole) << width << " " << round;
                });
            }
        }
    EXPECT_GT(cuts, 2000);
}

TEST(PeakDetect, GivesTheSameForRandomCutsOfALongSignal) {
    std::mt19937 engine(5);
    const auto below = [&](int bound) { return static_cast<int>(engine() % static_cast<unsigned>(bound)); };
    std::size_t found = 0;
    for (int round = 0; round < 40; ++round) {
        const int width = 3 + below(38);
        // Waves several windows long: no apex is near another one but itself, seen from the next window.
        std::vector<double> x(3000);
        for (int wave = 0; wave < 5; ++wave) {
            const double period = width * (4 + below(1000) / 100.0), phase = below(1000) / 1000.0;
            for (std::size_t i = 0; i < x.size(); ++i)
                x[i] += std::sin(kTwoPi * (static_cast<double>(i) / period + phase));
        }
        std::vector<int> lengths;
        int rest = static_cast<int>(x.size());
        while (rest >= 2 * width) {
            lengths.push_back(width + below(std::min(rest - 2 * width, 600) + 1));
            rest -= lengths.back();
        }
        lengths.push_back(rest);
        const std::uint32_t polarity = round % 2;
        const Peaks whole = Found(x, Stream(width, true, true, polarity));
        ASSERT_EQ(FoundInBlocks(x, width, polarity, lengths), whole) << round;
        found += whole.size();
    }
    EXPECT_GT(found, 500u);
}

TEST(PeakDetect, HandsOutAnyNumberOfPeaks) {
    for (int count : {511, 512, 513, 1024, 1025, 3000}) {
        std::vector<double> x{0};
        for (int k = 0; k < count; ++k) x.insert(x.end(), {1.0 + k, 0.0});
        const Peaks peaks = Found(x, {3});
        ASSERT_EQ(peaks.size(), static_cast<std::size_t>(count));
        for (int k = 0; k < count; ++k)
            ASSERT_EQ(peaks[static_cast<std::size_t>(k)], (Peak{2.0 * k + 1, 1.0 + k, -2 * (1.0 + k)}));
    }
}

TEST(PeakDetect, FindsNothingInConstantsAndPassesByNan) {
    for (Size width : {3, 4, 7}) {
        EXPECT_EQ(Found(std::vector<double>(20, 1.0), {width}), (Peaks{}));
        EXPECT_EQ(Found(std::vector<double>(20, kNaN), {width}), (Peaks{}));
    }
    EXPECT_EQ(Found({0, 1, 0, kNaN, 0, 2, 0}, {3}), (Peaks{{1, 1, -2}, {5, 2, -4}}));
}

// The blocks that live when this thread has its state and no stream.
long BlocksWithoutAStream() {
    Refused({0, 1, 0}, Stream(3, true, true));
    return LiveBlocks();
}

TEST(PeakDetect, KeepsNothingBehindTheLastBlock) {
    const long live = BlocksWithoutAStream();
    Found({0, 1, 0}, Stream(3, true, false));
    EXPECT_EQ(LiveBlocks(), live + 2) << "a stream holds its state and its buffer";
    Found({0, 1, 0}, Stream(3, true, false));
    EXPECT_EQ(LiveBlocks(), live + 2) << "and its successor takes their place";
    Found({0, 1, 0}, Stream(3, false, true));
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(PeakDetect, RefusesAWidthAndReleasesTheStream) {
    const long live = BlocksWithoutAStream();
    for (Size width : {Size{2}, Size{0}, Size{-1}, kWidest + 1}) {
        Found({0, 1, 0}, Stream(3, true, false));
        EXPECT_EQ(Refused({0, 1, 0}, Stream(width, false, false)), -20061) << width;
        EXPECT_EQ(LiveBlocks(), live);
        EXPECT_EQ(Refused({0, 1, 0}, Stream(3, false, false)), -20064) << "there is no stream any more";
    }
    EXPECT_EQ(Refused({}, Stream(2, true, true)), -20061) << "before the length of the block";
}

TEST(PeakDetect, RefusesABlockShorterThanTheWidthAndReleasesTheStream) {
    const long live = BlocksWithoutAStream();
    EXPECT_EQ(Refused({0, 1}, Stream(3, true, false)), -20013);
    EXPECT_EQ(Refused({}, Stream(3, true, false)), -20013);
    EXPECT_EQ(LiveBlocks(), live);
    Found({0, 1, 0}, Stream(3, true, false));
    EXPECT_EQ(Refused({0, 1}, Stream(3, false, false)), -20013);
    EXPECT_EQ(LiveBlocks(), live);
    EXPECT_EQ(Refused({0, 1}, Stream(3, false, false)), -20013) << "before the missing stream";
    Found({0, 1, 0}, Stream(3, true, false));
    EXPECT_EQ(Refused({0, 1, 0}, Stream(4, false, false)), -20013) << "before the changed width";
}

TEST(PeakDetect, RefusesALaterBlockWithoutAStreamOrWithAnotherWidth) {
    const long live = BlocksWithoutAStream();
    EXPECT_EQ(Refused({0, 1, 0}, Stream(3, false, false)), -20064);
    EXPECT_EQ(Refused({0, 1, 0}, Stream(3, false, true)), -20064);
    Found({0, 1, 0}, Stream(3, true, false));
    EXPECT_EQ(Refused({0, 1, 0, 1}, Stream(4, false, false)), -20058);
    EXPECT_EQ(LiveBlocks(), live);
    EXPECT_EQ(Refused({0, 1, 0}, Stream(3, false, false)), -20064);
}

TEST(PeakDetect, TouchesNothingWhenASizeDoesNotFit) {
    Found({0, 1, 0}, Stream(3, true, false));
    const Reals x{0, 1, 0};
    Guarded<Size> count{kNoCount};
    double mark = 0;
    Guarded<double*> arrays{&mark, &mark, &mark};
    EXPECT_EQ(ZemFunc194(x, kTooLarge, 0, 2, 0, 1, 1, count, arrays, arrays + 1, arrays + 2), -20046);
    EXPECT_EQ(ZemFunc194(x, 3, 0, kTooLarge, 0, 1, 1, count, arrays, arrays + 1, arrays + 2), -20046);
    EXPECT_EQ(count[0], kNoCount);
    for (const double* array : arrays) EXPECT_EQ(array, &mark);
    EXPECT_EQ(Found({0, 1, 0}, Stream(3, false, true)).size(), 2u) << "the stream goes on";
}

TEST(PeakDetect, TellsExhaustedMemoryAndKeepsNothing) {
    std::vector<double> x{0};
    for (int k = 0; k < 600; ++k) x.insert(x.end(), {1.0, 0.0});
    for (Size width : {3, 4, 5}) {
        Refused(x, {width});
        ExpectEveryAllocationFails([&] { return Refused(x, {width}); });
        // The same in the second block of a stream.
        ExpectEveryAllocationFails([&] {
            Peaks peaks;
            const Status first = Detect(x, Stream(width, true, false), &peaks);
            return first < 0 ? (Detect(x, Stream(width, false, true), &peaks), first)
                             : Detect(x, Stream(width, false, true), &peaks);
        });
    }
}

TEST(PeakDetect, DoesNotDisturbTheRunsOfTheSameThread) {
    Size count = 0, index = -1;
    const double one = 1;
    ASSERT_EQ(ZemFunc493(&one, 1, 1, 2, 1, 0, &index, &count), 0);
    Found({0, 1, 0}, Stream(3, true, false));
    ASSERT_EQ(ZemFunc493(&one, 1, 1, 2, 0, 1, &index, &count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(Found({0, 1, 0}, Stream(3, false, true)).size(), 2u);
}

}  // namespace
}  // namespace quorvan::testing
