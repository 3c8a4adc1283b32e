// The cascade engine: its arithmetic to the last bit, blocks, resets, the flush, and the check of the record.
#include "tests/filters/filters.h"
#include "tests/support/failing_heap.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

constexpr double kSmallest = 2.2250738585072014e-308;

void ExpectSame(const std::vector<double>& expected, const double* got, const char* what) {
    for (std::size_t i = 0; i < expected.size(); ++i)
        ASSERT_TRUE(SameBits(expected[i], got[i])) << what << " " << i << ": " << expected[i] << ", " << got[i];
}

std::vector<double> Filtered(const Filter& filter, const Reals& x, std::vector<double>& state) {
    std::vector<double> y;
    for (double v : x) y.push_back(Sample(filter, v, state));
    return y;
}

Reals Parts(const Records& z, bool imaginary) {
    Reals part(z.size());
    for (std::size_t i = 0; i < z.size(); ++i) part[i] = imaginary ? z[i].im : z[i].re;
    return part;
}

// Stage counts on both sides of every register's width and of several groups of registers.
constexpr int kStageCounts[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16, 17, 24, 25, 30, 49};
constexpr int kLengths[] = {1, 2, 3, 4, 7, 8, 19, 64, 150};

TEST(IirCascadeApply, IsItsDefinitionToTheLastBitOnEveryInstructionSet) {
    ForEachTarget([] {
        for (int kind : {0, 2})
            for (int stages : kStageCounts)
                for (int n : kLengths) {
                    const Filter filter(kind, 2 * stages);
                    FillStages(filter, stages);
                    const Reals start = RandomReals(filter->state_count, 7), x = RandomReals(n, 8);
                    std::copy(start.begin(), start.end(), filter->state);
                    std::vector<double> state = start.values();
                    const std::vector<double> expected = Filtered(filter, x, state);
                    Reals y = Output(n);
                    ASSERT_EQ(ZemFunc91(x, n, filter, y), 0);
                    SCOPED_TRACE(::testing::Message() << kind << ", " << stages << " stages, " << n);
                    ExpectSame(expected, y, "sample");
                    ExpectSame(state, filter->state, "delay");
                }
    });
}

TEST(IirCascadeApplyComplex, FiltersBothPartsAsRealsOnEveryInstructionSet) {
    ForEachTarget([] {
        for (int kind : {1, 3})
            for (int stages : kStageCounts)
                for (int n : kLengths) {
                    const Filter filter(kind, 2 * stages);
                    FillStages(filter, stages);
                    const ComplexState delays(kind, 2 * stages);
                    const Records start = RandomRecords(delays->count, 9), x = RandomRecords(n, 10);
                    std::copy(start.begin(), start.end(), delays->values);
                    Records y = RecordOutput(n);
                    ASSERT_EQ(ZemFunc466(x, n, filter, delays, y), 0);
                    SCOPED_TRACE(::testing::Message() << kind << ", " << stages << " stages, " << n);
                    const Records end(std::vector<ComplexRecord>(delays->values, delays->values + delays->count));
                    for (bool imaginary : {false, true}) {
                        std::vector<double> state = Parts(start, imaginary).values();
                        ExpectSame(Filtered(filter, Parts(x, imaginary), state), Parts(y, imaginary), "sample");
                        ExpectSame(state, Parts(end, imaginary), "delay");
                    }
                }
    });
}

TEST(IirCascadeApply, OfABlockInPiecesIsTheBlockBitForBit) {
    ForEachTarget([] {
        for (int kind : {0, 3})
            for (int order : {1, 2, 5, 8, 20, 60}) {
                const Filter whole(kind, order), pieces(kind, order);
                FillStages(whole, order);
                FillStages(pieces, order);
                const Reals x = RandomReals(400, 3);
                Reals y = Output(400), z = Output(400);
                ASSERT_EQ(ZemFunc91(x, 400, whole, y), 0);
                int at = 0;
                for (int n : {1, 1, 2, 3, 193, 200}) {
                    ASSERT_EQ(ZemFunc91(x + at, n, pieces, z + at), 0);
                    at += n;
                }
                ASSERT_EQ(at, 400);
                ExpectSame(y.values(), z, "sample");
                ExpectSame(whole.delays(), pieces->state, "delay");
            }
    });
}

TEST(IirCascadeApply, OfTwoHalvesIsTheWholeForADesignedFilter) {
    const Filter whole(2, 6), halves(2, 6);
    ASSERT_EQ(ZemFunc61(1000, 100, 200, 1, 60, whole), 0);
    ASSERT_EQ(ZemFunc61(1000, 100, 200, 1, 60, halves), 0);
    const Reals x = RandomReals(500, 4);
    Reals y = Output(500), z = Output(500);
    ASSERT_EQ(ZemFunc91(x, 500, whole, y), 0);
    ASSERT_EQ(ZemFunc91(x, 250, halves, z), 0);
    ASSERT_EQ(ZemFunc91(x + 250, 250, halves, z + 250), 0);
    ExpectSame(y.values(), z, "sample");
}

TEST(IirCascadeApply, WorksInPlaceAndTakesNoMemory) {
    ForEachTarget([] {
        for (int order : {1, 6, 20, 60}) {
            const Filter filter(0, order);
            FillStages(filter, 2);
            const Reals x = RandomReals(100, 5);
            Reals y = Output(100), z = x;
            FailAllocation(0);
            ASSERT_EQ(ZemFunc91(x, 100, filter, y), 0);
            ZemFunc235(filter);
            ASSERT_EQ(ZemFunc91(z, 100, filter, z), 0);
            FailAllocation(-1);
            ExpectSame(y.values(), z, "sample");
            const ComplexState state(0, order);
            const Records records = RandomRecords(100, 6);
            Records out = RecordOutput(100), same = records;
            ASSERT_EQ(ZemFunc466(records, 100, filter, state, out), 0);
            ZemFunc235(filter);
            ASSERT_EQ(ZemFunc466(same, 100, filter, state, same), 0);
            EXPECT_EQ(std::memcmp(out.data(), same.data(), 100 * sizeof(ComplexRecord)), 0);
        }
    });
}

TEST(IirCascadeApply, KeepsNaNAndInfinityOutOfTheOtherStages) {
    // A stage with zero coefficients stands beside others in one register.
    ForEachTarget([] {
        const Filter filter(0, 6);
        for (int s = 0; s < 3; ++s) {
            filter->b[3 * s] = 1;
            filter->b[3 * s + 1] = filter->b[3 * s + 2] = filter->a[2 * s] = filter->a[2 * s + 1] = 0;
        }
        const Reals x{1, kNaN, 2, kInf, 3, 4, 5};
        Reals y = Output(7);
        std::vector<double> state(6);
        const std::vector<double> expected = Filtered(filter, x, state);
        ASSERT_EQ(ZemFunc91(x, 7, filter, y), 0);
        EXPECT_EQ(y[0], 1);
        for (int i = 0; i < 7; ++i) EXPECT_EQ(std::isnan(expected[i]), std::isnan(y[i])) << i;
    });
}

// The flush

TEST(IirCascadeFlush, ZerosWhatIsAtTheSmallestNormalNumberAndKeepsWhatIsAbove) {
    ForEachTarget([] {
        const double above = std::nextafter(kSmallest, 1), below = std::nextafter(kSmallest, 0);
        const Filter filter(0, 1);  // y = x, d = (x, x of before)
        filter->a[0] = filter->a[1] = filter->b[1] = filter->b[2] = 0;
        filter->b[0] = 1;
        const Reals x{kSmallest, above, -kSmallest, -above, below, 4e-320, -0.0};
        const Reals expected{0.0, above, 0.0, -above, 0.0, 0.0, 0.0};
        Reals y = Output(7);
        for (int i = 0; i < 7; ++i) {
            ASSERT_EQ(ZemFunc91(x + i, 1, filter, y + i), 0);
            EXPECT_TRUE(SameBits(y[i], expected[i])) << i;
            EXPECT_TRUE(SameBits(filter->state[0], expected[i])) << i;
        }
    });
}

TEST(IirCascadeFlush, LeavesTheOutputSumItsUnflushedValue) {
    ForEachTarget([] {
        const Filter filter(0, 1);
        filter->a[0] = filter->a[1] = filter->b[1] = filter->b[2] = 0;
        filter->b[0] = 16;
        const Reals x{kSmallest / 2};
        Reals y = Output(1);
        ASSERT_EQ(ZemFunc91(x, 1, filter, y), 0);
        EXPECT_EQ(y[0], 8 * kSmallest);
        EXPECT_EQ(filter->state[0], 0);
    });
}

TEST(IirCascadeFlush, DoesNotTouchWhatGoesFromStageToStage) {
    ForEachTarget([] {
        for (int stages : {2, 5, 49}) {  // 49: also from one group of registers to the next
            const Filter filter(0, 2 * stages);
            std::fill_n(filter->a, filter->a_count, 0.0);
            std::fill_n(filter->b, filter->b_count, 0.0);
            for (int s = 0; s < stages; ++s) filter->b[3 * s] = s == 0 ? 0.25 : s == stages - 1 ? 64 : 1;
            const Reals x{2 * kSmallest};
            Reals y = Output(1);
            ASSERT_EQ(ZemFunc91(x, 1, filter, y), 0);
            EXPECT_EQ(y[0], 32 * kSmallest) << stages;
            EXPECT_EQ(filter->state[0], 2 * kSmallest);
            EXPECT_EQ(filter->state[2], 0);
        }
    });
}

TEST(IirCascadeFlush, TestsThePartsOfComplexSamplesOneByOne) {
    ForEachTarget([] {
        const Filter filter(0, 1);
        filter->a[0] = filter->a[1] = filter->b[1] = filter->b[2] = 0;
        filter->b[0] = 1;
        const ComplexState state(0, 1);
        const Records x{{kSmallest, 3}, {-2, -kSmallest}, {kNaN, kSmallest}};
        Records y = RecordOutput(3);
        ASSERT_EQ(ZemFunc466(x, 3, filter, state, y), 0);
        EXPECT_TRUE(SameBits(y[0].re, 0) && y[0].im == 3);
        EXPECT_TRUE(y[1].re == -2 && SameBits(y[1].im, 0));
        EXPECT_TRUE(std::isnan(y[2].re) && SameBits(y[2].im, 0));
    });
}

TEST(IirCascadeFlush, IsTheSameInEveryLane) {
    ForEachTarget([] {
        for (int stages : {1, 3, 8, 10, 30}) {
            const Filter filter(2, 2 * stages);
            FillStages(filter, 11);
            const ComplexState delays(2, 2 * stages);
            Reals x = RandomReals(200, 12);
            for (int i = 0; i < 200; ++i) x[i] *= i % 50 < 10 ? 1e-307 : 1e-308;
            Records z(200);
            for (int i = 0; i < 200; ++i) z[i] = {x[i], x[199 - i]};
            std::vector<double> state(filter->state_count);
            const std::vector<double> expected = Filtered(filter, x, state);
            Reals y = Output(200);
            Records v = RecordOutput(200);
            ASSERT_EQ(ZemFunc91(x, 200, filter, y), 0);
            ExpectSame(expected, y, "sample");
            ExpectSame(state, filter->state, "delay");
            ASSERT_EQ(ZemFunc466(z, 200, filter, delays, v), 0);
            ExpectSame(expected, Parts(v, false), "real part");
        }
    });
}

TEST(IirCascadeFlush, EndsAPulseInZerosWithoutADenormal) {
    ForEachTarget([] {
        for (int kind : kKinds) {
            const Filter filter(kind, 4);
            ASSERT_EQ(ZemFunc18(1000, 100, 200, filter), 0);
            Reals x(20000);
            x[0] = 1;
            ASSERT_EQ(ZemFunc91(x, 20000, filter, x), 0);
            EXPECT_NE(x[100], 0);
            for (double v : x) ASSERT_TRUE(v == 0 || std::fabs(v) > kSmallest);
            for (int i = 19000; i < 20000; ++i) ASSERT_TRUE(SameBits(x[i], 0.0)) << i;
            for (double d : filter.delays()) EXPECT_TRUE(SameBits(d, 0.0));
        }
    });
}

// Resets

TEST(IirCascadeReset, MakesTheNextBlockAFreshStartAndOnlyThatOne) {
    const Filter used(0, 5), fresh(0, 5);
    ASSERT_EQ(ZemFunc18(1000, 100, 0, used), 0);
    ASSERT_EQ(ZemFunc18(1000, 100, 0, fresh), 0);
    const Reals x = RandomReals(64, 20);
    Reals y = Output(64), z = Output(64);
    ASSERT_EQ(ZemFunc91(x, 64, used, y), 0);
    for (int mark : {1, -1, INT32_MIN, 2}) {  // any mark but 0
        used->reset = mark;
        fresh->reset = 1;
        ASSERT_EQ(ZemFunc91(x, 64, used, y), 0);
        EXPECT_EQ(used->reset, 0);
        ASSERT_EQ(ZemFunc91(x, 64, fresh, z), 0);
        ExpectSame(z.values(), y, "sample");
        ASSERT_EQ(ZemFunc91(x, 64, used, y), 0);
        EXPECT_NE(y[0], z[0]) << "the second block starts from zero again";
    }
}

TEST(IirCascadeReset, IsConsumedByACallWithoutSamples) {
    const Filter filter(0, 3);
    FillStages(filter, 21);
    const ComplexState state(0, 3);
    double y = kUnwritten;
    ComplexRecord z = {kUnwritten, kUnwritten};
    const double x = 1;
    for (Size n : {Size{0}, Size{-1}, Size{INT32_MIN}}) {
        filter->state[1] = 7;
        ZemFunc235(filter);
        EXPECT_EQ(ZemFunc91(&x, n, filter, &y), -20003);
        EXPECT_EQ(filter->reset, 0);
        EXPECT_EQ(filter->state[1], 0);
        state->values[1] = {7, 7};
        ZemFunc235(filter);
        EXPECT_EQ(ZemFunc466(&z, n, filter, state, &z), -20003);
        EXPECT_EQ(filter->reset, 0);
        EXPECT_TRUE(state->values[1].re == 0 && state->values[1].im == 0);
    }
    EXPECT_EQ(y, kUnwritten);
    // Without a reset the delay lines keep their values.
    filter->state[1] = 7;
    EXPECT_EQ(ZemFunc91(&x, 0, filter, &y), -20003);
    EXPECT_EQ(filter->state[1], 7);
}

TEST(IirCascadeReset, ClearsTheDelayLinesOfTheNextStreamOnly) {
    const Filter filter(0, 2);
    FillStages(filter, 22);
    const ComplexState state(0, 2);
    filter->state[0] = 1;
    state->values[0] = {2, 3};
    ZemFunc235(filter);
    ComplexRecord z = {0, 0};
    ASSERT_EQ(ZemFunc466(&z, 1, filter, state, &z), 0);
    EXPECT_TRUE(z.re == 0 && z.im == 0);
    EXPECT_EQ(filter->state[0], 1);
    EXPECT_EQ(filter->reset, 0);
    state->values[0] = {2, 3};
    ZemFunc235(filter);
    double y = 0;
    ASSERT_EQ(ZemFunc91(&y, 1, filter, &y), 0);
    EXPECT_EQ(y, 0);
    EXPECT_TRUE(state->values[0].re == 2 && state->values[0].im == 3);
}

// The record

TEST(IirCascadeRecord, WithCountsThatDoNotFitIsRefusedBeforeAnythingElse) {
    const Filter filter(0, 4);  // 2 stages: 4, 6, 4
    FillStages(filter, 30);
    const ComplexState state(0, 4);
    const QvIirFilter good = *filter;
    const Reals x{1, 2};
    Reals y = Output(2);
    const auto refused = [&](const char* what, auto bend) {
        bend(*static_cast<QvIirFilter*>(filter));
        filter->reset = 1;
        filter->state[0] = 5;
        for (Size n : {2, 0, -1}) {
            EXPECT_EQ(ZemFunc91(x, n, filter, y), -20066) << what;
            EXPECT_EQ(filter->reset, 1) << what;
            EXPECT_EQ(good.state[0], 5) << what;
        }
        *static_cast<QvIirFilter*>(filter) = good;
    };
    refused("state count", [](QvIirFilter& f) { f.state_count = 5; });
    refused("state count", [](QvIirFilter& f) { f.state_count = 3; });
    refused("no state", [](QvIirFilter& f) { f.state_count = 0; });
    refused("feedback count", [](QvIirFilter& f) { f.a_count = 5; });
    refused("feedback count of width 3", [](QvIirFilter& f) { f.a_count = f.state_count = 6, f.b_count = 8; });
    refused("feedback count of width 1", [](QvIirFilter& f) { f.a_count = f.state_count = 2, f.b_count = 4; });
    refused("width 4 with the forward count of 2", [](QvIirFilter& f) { f.a_count = f.state_count = 8; });
    refused("forward count", [](QvIirFilter& f) { f.b_count = 5; });
    refused("forward count", [](QvIirFilter& f) { f.b_count = 0; });
    refused("negative counts", [](QvIirFilter& f) { f.a_count = f.state_count = -4, f.b_count = -6; });
    refused("another order", [](QvIirFilter& f) { f.order = 5; });
    refused("another order", [](QvIirFilter& f) { f.order = INT32_MAX; });
    refused("no order", [](QvIirFilter& f) { f.order = 0; });
    refused("negative order", [](QvIirFilter& f) { f.order = -1; });
    refused("negative order", [](QvIirFilter& f) { f.order = INT32_MIN; });
    EXPECT_TRUE(Untouched(y));

    Records records(2), out = RecordOutput(2);
    filter->reset = 1;
    for (int count : {3, 5, 0, -4}) {
        state->count = count;
        EXPECT_EQ(ZemFunc466(records, 2, filter, state, out), -20066);
        EXPECT_EQ(ZemFunc466(records, 0, filter, state, out), -20066);
        EXPECT_EQ(filter->reset, 1);
    }
    state->count = 4;
    EXPECT_TRUE(Untouched(out));
    // The filter's own delay lines play no part here.
    filter->state_count = 99;
    EXPECT_EQ(ZemFunc466(records, 2, filter, state, out), 0);
    filter->state_count = 4;
}

TEST(IirCascadeRecord, TellsTheWidthByItsCountsAndNotByItsKind) {
    const Filter filter(0, 4), other(0, 4);
    FillStages(filter, 31);
    FillStages(other, 31);
    const Reals x = RandomReals(20, 32);
    Reals y = Output(20), z = Output(20);
    ASSERT_EQ(ZemFunc91(x, 20, filter, y), 0);
    for (int type : {2, 3, 77, -1}) {
        other->type = type;
        other->reset = 1;
        ASSERT_EQ(ZemFunc91(x, 20, other, z), 0);
        ExpectSame(y.values(), z, "sample");
    }
    other->type = 0;
    // An odd order of one less has the same stages.
    other->order = 3;
    other->reset = 1;
    ASSERT_EQ(ZemFunc91(x, 20, other, z), 0);
    ExpectSame(y.values(), z, "sample");
}

TEST(IirCascadeRecord, IsNotLookedAtWhenTheSizeDoesNotFit) {
    const Filter filter(0, 4);
    filter->state_count = 0;
    filter->reset = 1;
    double y = kUnwritten;
    ComplexRecord z = {kUnwritten, 0};
    const ComplexState state(0, 4);
    for (Size n : {kTooLarge, -kTooLarge - 1, Size{1} << 32}) {
        EXPECT_EQ(ZemFunc91(&y, n, filter, &y), -20046);
        EXPECT_EQ(ZemFunc466(&z, n, filter, state, &z), -20046);
    }
    EXPECT_EQ(filter->reset, 1);
    EXPECT_EQ(y, kUnwritten);
    EXPECT_EQ(z.re, kUnwritten);
}

TEST(IirCascadeRecord, OfARedesignedFilterGoesOnFromItsDelayLines) {
    const Filter filter(0, 2);
    ASSERT_EQ(ZemFunc18(1000, 100, 0, filter), 0);
    const Reals x = RandomReals(10, 33);
    Reals y = Output(10);
    ASSERT_EQ(ZemFunc91(x, 10, filter, y), 0);
    const std::vector<double> delays = filter.delays();
    filter->reset = 6;
    ASSERT_EQ(ZemFunc18(1000, 200, 0, filter), 0);
    EXPECT_EQ(filter.delays(), delays);
    EXPECT_EQ(filter->reset, 6);
}

}  // namespace
}  // namespace quorvan::testing
