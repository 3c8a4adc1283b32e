// One edge of a pulse train, and the ringing around it.
#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

enum Method : std::uint32_t { kHistogram, kPeak, kAutoselect };
enum Polarity : std::int32_t { kFalling = 0, kRising = 1 };

struct References {
    double high, mid, low;
    std::int32_t percent = 0;
    std::uint32_t method = kPeak;
    Size bins = 8;
};
struct Told {
    double low, mid, high;
    bool operator==(const Told&) const = default;
};
struct Excursion {
    double under, over;
    bool operator==(const Excursion&) const = default;
};
struct Timing {
    double first, second, duration, slew;
    bool operator==(const Timing&) const = default;
};
struct Edge {
    Status status;
    Timing timing;
    Excursion before, after;
    bool operator==(const Edge&) const = default;
};

Edge Measure(const Reals& x, std::int32_t polarity, Size edge, References r, Told* told = nullptr) {
    Reals high{r.high}, mid{r.mid}, low{r.low};
    std::array<Reals, 11> out{Output(1), Output(1), Output(1), Output(1), Output(1), Output(1),
                              Output(1), Output(1), Output(1), Output(1), Output(1)};
    const Status status =
        ZemFunc366(x, static_cast<Size>(x.size()), polarity, edge, high, mid, low, r.percent, r.method, r.bins, out[0],
                   out[1], out[2], out[3], out[4], out[5], out[6], out[7], out[8], out[9], out[10]);
    EXPECT_EQ((Told{*out[4], *out[5], *out[6]}), (Told{low[0], mid[0], high[0]})) << "both tell one thing";
    if (told) *told = {*out[4], *out[5], *out[6]};
    return {status, {*out[2], *out[3], *out[1], *out[0]}, {*out[7], *out[8]}, {*out[9], *out[10]}};
}

using Values = std::vector<double>;

Values Join(std::initializer_list<Values> parts) {
    Values x;
    for (const Values& part : parts) x.insert(x.end(), part.begin(), part.end());
    return x;
}

// Two levels, eight bins from -0.5 to 1.5: the lower one lies in the bin from 0 to 0.25, below its centre 0.125, the
// upper one in the bin from 1 to 1.25, above its centre 1.125. The modes are 1 apart.
constexpr double kLow = 0.0625, kHigh = 1.1875;
const Values kLows(20, kLow), kHighs(20, kHigh);
constexpr References kQuarters{0.75, 0.5, 0.25};

TEST(PulseTransition, TimesAnEdgeBetweenTheReferences) {
    const Values ramp{0.25, 0.5, 0.75};
    const Reals rising(Join({Values(8, 0.0), ramp, Values(8, 1.0)}));
    const Excursion none{0, 0};
    EXPECT_EQ(Measure(rising, kRising, 1, {0.875, 0.5, 0.125}), (Edge{0, {7.5, 10.5, 3, 0.25}, none, none}));
    const Values fall(ramp.rbegin(), ramp.rend());
    const Reals falling(Join({Values(8, 1.0), fall, Values(8, 0.0)}));
    EXPECT_EQ(Measure(falling, kFalling, 1, {0.875, 0.5, 0.125}), (Edge{0, {7.5, 10.5, 3, 0.25}, none, none}))
        << "the slew rate has no sign";
}

TEST(PulseTransition, OfACleanEdgeHasNoOvershootAndNoUndershoot) {
    const Values ramp{0.25, 0.5, 0.75}, back{0.75, 0.5, 0.25};
    const Reals x(Join({Values(20, 0.0), ramp, Values(20, 1.0), back, Values(20, 0.0), ramp, Values(20, 1.0)}));
    for (std::uint32_t method : {kHistogram, kPeak, kAutoselect})
        for (std::int32_t polarity : {kFalling, kRising}) {
            const Edge edge = Measure(x, polarity, 1, {90, 50, 10, 1, method, 256});
            EXPECT_EQ(edge.status, 0);
            EXPECT_EQ(edge.before, (Excursion{0, 0}));
            EXPECT_EQ(edge.after, (Excursion{0, 0}));
            EXPECT_GT(edge.timing.slew, 0);
        }
}

TEST(PulseTransition, CountsTheEdgesOfThePolarity) {
    // Edges at 19.5 up, 39.5 down, 59.5 up, 79.5 down.
    const Reals x(Join({kLows, kHighs, kLows, kHighs, kLows, {-0.5, 1.5}}));
    const auto middle = [&](std::int32_t polarity, Size number) {
        const Edge edge = Measure(x, polarity, number, kQuarters);
        EXPECT_EQ(edge.status, 0);
        return std::trunc(edge.timing.first);
    };
    EXPECT_EQ(middle(kRising, 1), 19);
    EXPECT_EQ(middle(kFalling, 1), 39);
    EXPECT_EQ(middle(kRising, 2), 59);
    EXPECT_EQ(middle(kFalling, 2), 79);
}

TEST(PulseTransition, TellsWhenThereAreTooFewEdges) {
    const Reals up(Join({kLows, kHighs}));
    EXPECT_EQ(Measure(up, kRising, 1, kQuarters).status, 0);
    EXPECT_EQ(Measure(up, kFalling, 1, kQuarters), (Edge{-20310, {}, {}, {}}));
    EXPECT_EQ(Measure(up, kRising, 2, kQuarters).status, -20310);
    EXPECT_EQ(Measure(up, kRising, (Size{1} << 30) - 1, kQuarters).status, -20310);
    EXPECT_EQ(Measure({0, 1}, kRising, 1, kQuarters).status, -20312) << "the edge ends with the record";
    for (std::int32_t polarity : {2, -1}) EXPECT_EQ(Measure(up, polarity, 1, kQuarters).status, -20310);
}

// A rising and a falling edge from sample 19 to 20. Before them are looked at the samples 17 and 18, behind them 20 to
// 22, since a duration of no sample counts as one and three durations are the reach.
TEST(PulseTransition, MeasuresRingingFromTheModesInPercentOfTheirDistance) {
    Values up = Join({kLows, kHighs, {-0.5, 1.5}});
    up[17] = 0.375, up[18] = -0.125, up[21] = 1.375, up[22] = 0.875;
    const Edge rising = Measure(Reals(up), kRising, 1, kQuarters);
    EXPECT_EQ(rising.status, 0);
    EXPECT_EQ(rising.before, (Excursion{25, 25}));
    EXPECT_EQ(rising.after, (Excursion{25, 25}));

    Values down = Join({kHighs, kLows, {-0.5, 1.5}});
    down[17] = 0.875, down[18] = 1.5, down[21] = 0.625, down[22] = -0.5;
    const Edge falling = Measure(Reals(down), kFalling, 1, kQuarters);
    EXPECT_EQ(falling.status, 0);
    EXPECT_EQ(falling.before, (Excursion{25, 37.5}));
    EXPECT_EQ(falling.after, (Excursion{62.5, 50}));
}

TEST(PulseTransition, TakesTheModesAlsoWhereTheLevelsAreTheExtremes) {
    Values x = Join({kLows, kHighs, {-0.5, 1.5}});
    x[18] = -0.375;
    for (std::uint32_t method : {kHistogram, kPeak, kAutoselect}) {
        Told told;
        const Edge edge = Measure(Reals(x), kRising, 1, {75, 50, 25, 1, method}, &told);
        EXPECT_EQ(edge.before, (Excursion{50, 0}));
        EXPECT_EQ(told, (method == kPeak ? Told{0, 0.5, 1} : Told{0.375, 0.625, 0.875}));
    }
}

TEST(PulseTransition, SeesNoExcursionWithinTheBinOfTheMode) {
    const double insideLow = 0.25, belowLow = 0, insideHigh = 1.25, belowHigh = 1;
    Values x = Join({kLows, kHighs, {-0.5, 1.5}});
    x[17] = insideLow, x[18] = belowLow, x[21] = insideHigh, x[22] = belowHigh;
    Edge edge = Measure(Reals(x), kRising, 1, {0.75, 0.5, 0.3});
    EXPECT_EQ(edge.before, (Excursion{0, 0}));
    EXPECT_EQ(edge.after, (Excursion{0, 0}));
    x[17] = std::nextafter(insideLow, 1), x[18] = std::nextafter(belowLow, -1);
    x[21] = std::nextafter(insideHigh, 2), x[22] = std::nextafter(belowHigh, 0);
    edge = Measure(Reals(x), kRising, 1, {0.75, 0.5, 0.3});
    EXPECT_GT(edge.before.over, 12) << "from the middle of the bin, at once";
    EXPECT_GT(edge.before.under, 12);
    EXPECT_GT(edge.after.over, 12);
    EXPECT_GT(edge.after.under, 12);
}

TEST(PulseTransition, LooksThreeDurationsBack) {
    Values x = Join({kLows, kHighs, {-0.5, 1.5}});
    x[16] = -0.125;
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).before.under, 0);
    x[17] = -0.125;
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).before.under, 25);
    // An edge over two samples: six before its first one, 20.
    Values slow = Join({kLows, {0.5}, kHighs, {-0.5, 1.5}});
    slow[13] = -0.125;
    EXPECT_EQ(Measure(Reals(slow), kRising, 1, {0.75, 0.5, 0.25}).before.under, 0);
    EXPECT_EQ(Measure(Reals(slow), kRising, 1, {0.75, 0.5, 0.25}).timing.first, 19 + (0.25 - kLow) / (0.5 - kLow));
}

TEST(PulseTransition, LooksThreeDurationsAhead) {
    Values x = Join({kLows, kHighs, {-0.5, 1.5}});
    x[23] = 1.375;
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).after.over, 0);
    x[22] = 1.375;
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).after.over, 25);
}

// Edges that last six samples, plateaus of eight: three durations reach beyond the middle of a plateau.
TEST(PulseTransition, LooksNoFurtherThanHalfWayToTheNeighbouringEdges) {
    const Values up{0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875}, down(up.rbegin(), up.rend());
    const References references{0.9375, 0.5, 0.0625, 0, kPeak, 16};
    const Values base = Join({Values(20, 0.03125), up, Values(8, 1.09375), down, Values(20, 0.03125), {1.5, -0.5}});
    // The plateau is 27 to 34; the rise crosses high before 27, the fall crosses it before 35: half way is 31.
    ASSERT_EQ(base[26], 0.875);
    ASSERT_EQ(base[35], 0.875);
    for (int bump = 28; bump < 34; ++bump) {
        Values x = base;
        x[bump] = 1.25;
        const Edge rise = Measure(Reals(x), kRising, 1, references), fall = Measure(Reals(x), kFalling, 1, references);
        ASSERT_EQ(rise.status, 0);
        ASSERT_EQ(fall.status, 0);
        EXPECT_EQ(rise.after.over > 0, bump < 31) << bump;
        EXPECT_EQ(fall.before.over > 0, bump >= 31) << bump;
    }
}

TEST(PulseTransition, LeavesTheMovingPartOfTheEdgeOut) {
    // Below the low reference and above the high one the edge still moves.
    const Values x = Join({Values(20, 0), {0.25, 0.375, 0.625, 0.75}, Values(20, 1)});
    const Edge edge = Measure(Reals(x), kRising, 1, {0.5625, 0.5, 0.4375, 0, kPeak, 16});
    EXPECT_EQ(edge.before, (Excursion{0, 0}));
    EXPECT_EQ(edge.after, (Excursion{0, 0}));
}

TEST(PulseTransition, KeepsOneSampleBeforeAnEdgeThatNeverRested) {
    // The record begins above the mode: the walk back stops before its first sample.
    const Values x = Join({{0.375, 0.4375}, kHighs, kLows, {-0.5, 1.5}});
    const Edge edge = Measure(Reals(x), kRising, 1, {0.75, 0.5, 0.4375});
    EXPECT_EQ(edge.status, 0);
    EXPECT_EQ(edge.before, (Excursion{0, 25}));
}

TEST(PulseTransition, NeverLooksAtTheLastSample) {
    Values x = Join({kLows, {kHigh, kHigh, 1.5}});
    x[5] = -0.5;
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).after.over, 0);
    x.push_back(kHigh);
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).after.over, 37.5);
}

TEST(PulseTransition, KeepsWhatItHasMeasuredWhenALaterStepFails) {
    // The edge ends at the last sample: nothing is left behind it.
    Values x = Join({kLows, {1.5}});
    x[18] = -0.5;
    const double step = 1.5 - kLow;
    const Timing times{19 + (0.25 - kLow) / step, 19 + (0.75 - kLow) / step, 0, 0};
    Told told;
    const Edge edge = Measure(Reals(x), kRising, 1, kQuarters, &told);
    EXPECT_EQ(edge.status, -20312);
    EXPECT_NEAR(edge.timing.first, times.first, 20 * kEpsilon);
    EXPECT_NEAR(edge.timing.second, times.second, 20 * kEpsilon);
    EXPECT_EQ(edge.timing.duration, 0);
    EXPECT_EQ(edge.timing.slew, 0);
    EXPECT_GT(edge.before.under, 0);
    EXPECT_EQ(edge.after, (Excursion{0, 0}));
    EXPECT_EQ(told, (Told{0.25, 0.5, 0.75}));
}

TEST(PulseTransition, FindsNothingBehindAnEdgeThatNeverArrives) {
    // Behind the edge the signal stays below the upper mode for three durations.
    const Values x = Join({kLows, {1, 1, 1, 1}, kHighs, {-0.5, 1.5}});
    EXPECT_EQ(Measure(Reals(x), kRising, 1, kQuarters).status, -20312);
}

TEST(PulseTransition, RefusesAnEdgeWithoutDuration) {
    const double high = std::nextafter(0.5, 1);
    const Edge edge = Measure(Reals(Join({Values(8, 0.0), Values(8, 1.0)})), kRising, 1, {high, 0.5, 0.5});
    EXPECT_EQ(edge, (Edge{-20326, {7.5, 7.5, 0, 0}, {0, 0}, {0, 0}}));
}

TEST(PulseTransition, RefusesReferencesThatDoNotDescendAndReferencesThatAreEqual) {
    const Reals x(Join({kLows, kHighs}));
    Told told;
    EXPECT_EQ(Measure(x, kRising, 1, {0.4, 0.5, 0.1}, &told), (Edge{-20313, {}, {}, {}}));
    EXPECT_EQ(told, (Told{0.1, 0.5, 0.4}));
    EXPECT_EQ(Measure(x, kRising, 1, {0.9, 0.5, 0.6}).status, -20313);
    EXPECT_EQ(Measure(x, kRising, 1, {0.5, 0.5, 0.5}).status, -20313);
    FailAllocation(1);
    EXPECT_EQ(Measure(x, kRising, 1, {0.9, 0.5, 0.6}).status, -20313) << "before the room for edges is taken";
    FailAllocation(1);
    EXPECT_EQ(Measure(x, kRising, 1, {0.5, 0.5, 0.5}).status, -20311) << "behind it";
    FailAllocation(-1);
}

TEST(PulseTransition, OfAConstantSignalIsRefusedByEveryMethod) {
    const Reals x{1, 1, 1};
    for (std::uint32_t method : {kHistogram, kPeak, kAutoselect}) {
        EXPECT_EQ(Measure(x, kRising, 1, {0.75, 0.5, 0.25, 0, method}), (Edge{-20309, {}, {}, {}}));
        EXPECT_EQ(Measure(x, kRising, 1, {75, 50, 25, 1, method}).status, -20309);
        const Status crossed = Measure(x, kRising, 1, {0.25, 0.5, 0.75, 0, method}).status;
        EXPECT_EQ(crossed, method == kPeak ? -20313 : -20309) << "the peak method has no range of its own to refuse";
    }
}

TEST(PulseTransition, ConvertsPercentInPlaceAndTellsThemAfterErrorsToo) {
    const Reals x{-1, -1, -1, 3, 3, 3};
    Told told;
    EXPECT_EQ(Measure(x, kRising, 1, {90.1, 49.9, 10.3, -2}, &told).status, 0);
    EXPECT_EQ(told, (Told{4 * 10.3 / 100 - 1, 4 * 49.9 / 100 - 1, 4 * 90.1 / 100 - 1}));
    EXPECT_EQ(Measure(x, kRising, 1, {25, 50, 75, 1}, &told).status, -20313);
    EXPECT_EQ(told, (Told{2, 1, 0}));
    EXPECT_EQ(Measure(x, kRising, 1, {25, 50, 75, 1, 3}, &told).status, -20316);
    EXPECT_EQ(told, (Told{75, 50, 25}));
    EXPECT_EQ(Measure(x, kRising, 0, {25, 50, 75, 1}, &told).status, -20323);
    EXPECT_EQ(told, (Told{75, 50, 25}));
}

// One low sample of 21 is less than 5 percent, of 20 it is not.
TEST(PulseTransition, WarnsOfAThinModeWhateverTheMethod) {
    for (std::uint32_t method : {kHistogram, kPeak, kAutoselect})
        for (int highs : {19, 20}) {
            const Reals x(Join({{0}, Values(highs, 1.0)}));
            const Edge edge = Measure(x, kRising, 1, {0.75, 0.5, 0.25, 0, method});
            EXPECT_EQ(edge.status, highs == 20 ? 20021 : 0);
            EXPECT_EQ(edge.timing, (Timing{0.25, 0.75, 0.5, 1}));
            EXPECT_EQ(Measure(x, kFalling, 1, {0.75, 0.5, 0.25, 0, method}).status, -20310) << "an error comes first";
        }
}

TEST(PulseTransition, StaysInsideTheRecordWhereSamplesDoNotCompare) {
    // NaN between the levels hides crossings, so that edges of one slope can follow each other.
    const Values x = Join({kLows, kHighs, {kNaN}, kLows, kHighs, {kNaN}, kLows, {kNaN}, kHighs, kLows});
    for (std::int32_t polarity : {kFalling, kRising})
        for (Size edge = 1; edge < 5; ++edge) {
            const Status status = Measure(Reals(x), polarity, edge, kQuarters).status;
            EXPECT_TRUE(status == 0 || status == -20310 || status == -20312) << status;
        }
    EXPECT_EQ(Measure({kNaN, kNaN, kNaN}, kRising, 1, kQuarters).status, -20310);
    EXPECT_EQ(Measure({-kInf, kInf, -kInf, kInf}, kRising, 1, kQuarters).status, -20312) << "the next edge is at once";
}

TEST(PulseTransition, TestsItsArgumentsInOrder) {
    const Reals x(Join({kLows, kHighs}));
    Reals o = Output(14);
    const auto call = [&](const double* data, Size n, Size edge, Size bins) {
        return ZemFunc366(data, n, kRising, edge, o, o + 1, o + 2, 1, 9, bins, o + 3, o + 4, o + 5, o + 6, o + 7, o + 8,
                          o + 9, o + 10, o + 11, o + 12, o + 13);
    };
    EXPECT_EQ(call(x, kTooLarge, 0, 0), -20046);
    EXPECT_EQ(call(x, 0, kTooLarge, 0), -20046);
    EXPECT_EQ(call(x, 0, Size{1} << 30, 0), -20046) << "2 edge + 1 does not fit";
    EXPECT_EQ(call(x, 0, 0, kTooLarge), -20046);
    EXPECT_EQ(call(x, 0, 0, 0), -20317);
    EXPECT_EQ(call(x, 0, 0, -1), -20317);
    FailAllocation(0);
    EXPECT_EQ(call(x, 0, 0, 16), -20001);
    FailAllocation(-1);
    EXPECT_TRUE(Untouched(o)) << "before anything is written";
    EXPECT_EQ(call(x, 0, 0, 16), -20323);
    for (int i : {3, 4, 5, 6, 10, 11, 12, 13}) EXPECT_EQ(o[i], 0);
    EXPECT_EQ(call(x, 0, 1, 16), -20312);
    EXPECT_EQ(call(x, -1, 1, 16), -20312);
    EXPECT_EQ(call(nullptr, 40, 1, 16), -20312);
    EXPECT_EQ(call(x, 40, 1, 16), -20316);
}

TEST(PulseTransition, TellsWhenThereIsNoRoomForTheEdges) {
    const Reals x(Join({kLows, kHighs}));
    const long live = LiveBlocks();
    FailAllocation(1);
    EXPECT_EQ(Measure(x, kRising, 1, kQuarters), (Edge{-20311, {}, {}, {}}));
    FailAllocation(2);
    EXPECT_EQ(Measure(x, kRising, 1, kQuarters).status, 0) << "there is no third allocation";
    FailAllocation(-1);
    EXPECT_EQ(LiveBlocks(), live);
}

}  // namespace
}  // namespace quorvan::testing
