// FFT plans: their life, their factors and the tables that they share with every transform.
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"
#include "transforms/fft_plan_record.h"

namespace quorvan::testing {
namespace {

const FftPlan& RecordOf(const QvFftPlan* plan) { return *reinterpret_cast<const FftPlan*>(plan); }

// A plan held for the length of a test.
class Held {
public:
    explicit Held(Size size) : plan_(ZemFunc260(size)) {}
    ~Held() { ZemFunc261(plan_); }
    operator QvFftPlan*() const { return plan_; }
    const FftPlan* operator->() const { return &RecordOf(plan_); }

private:
    QvFftPlan* plan_;
};

std::vector<Count> Factors(Size size) {
    const Held plan(size);
    return {plan->factors, plan->factors + plan->factorCount};
}

std::vector<Count> Kinds(Size size) {
    const Held plan(size);
    return {plan->kinds, plan->kinds + plan->factorCount};
}

using Counts = std::vector<Count>;

TEST(Plan, IsOneForAllWhoHoldItsSizeAndEndsWithTheLastRelease) {
    const long live = LiveBlocks();
    QvFftPlan* first = ZemFunc260(360);
    QvFftPlan* second = ZemFunc260(360);
    EXPECT_EQ(first, second);
    EXPECT_EQ(RecordOf(first).refCount, 2);
    ZemFunc261(first);
    EXPECT_EQ(RecordOf(second).refCount, 1);
    const Reals x = RandomReals(360);
    Records out = RecordOutput(360);
    EXPECT_EQ(ZemFunc262(x, 360, 0, second, 0, out), 0);
    ZemFunc261(second);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(Plan, OfNoPositiveSizeThatFitsIsNull) {
    EXPECT_EQ(ZemFunc260(0), nullptr);
    EXPECT_EQ(ZemFunc260(-1), nullptr);
    EXPECT_EQ(ZemFunc260(kTooLarge), nullptr);
    EXPECT_EQ(ZemFunc260((Size{1} << 32) + 8), nullptr);
}

TEST(Plan, ReleaseOfNullDoesNothing) {
    const long live = LiveBlocks();
    ZemFunc261(nullptr);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(Plan, OfOneHasNoFactorsAndWorksWithEveryTransform) {
    const Held plan(1);
    EXPECT_EQ(plan->factorCount, 0);
    const Reals x{2.5};
    const Records z{{1.5, -2}};
    Records out = RecordOutput(1);
    Reals real = Output(1);
    EXPECT_EQ(ZemFunc262(x, 1, 1, plan, 0, out), 0);
    EXPECT_EQ(out[0].re, 2.5);
    EXPECT_EQ(ZemFunc263(z, 1, 1, plan, 1, out), 0);
    EXPECT_EQ(out[0].im, -2);
    EXPECT_EQ(ZemFunc264(z, 1, plan, 0, real), 0);
    EXPECT_EQ(real[0], 1.5);
    EXPECT_EQ(ZemFunc265(z, 1, plan, 1, out), 0);
    EXPECT_EQ(out[0].re, 1.5);
}

TEST(Plan, OfAPrimeSharesThePlanOfItsPredecessorWithItsOtherHolders) {
    const long live = LiveBlocks();
    QvFftPlan* prime = ZemFunc260(53);
    ASSERT_EQ(RecordOf(prime).factorCount, 1);
    FftPlan* predecessor = RecordOf(prime).stages[0]->raderPlan;
    EXPECT_EQ(predecessor->size, 52);
    EXPECT_EQ(predecessor->refCount, 1);
    QvFftPlan* held = ZemFunc260(52);
    EXPECT_EQ(&RecordOf(held), predecessor);
    EXPECT_EQ(predecessor->refCount, 2);
    ZemFunc261(prime);
    EXPECT_EQ(predecessor->refCount, 1);
    const Records z = RandomRecords(52);
    Records out = RecordOutput(52);
    EXPECT_EQ(ZemFunc263(z, 52, 0, held, 0, out), 0);
    ZemFunc261(held);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(Plan, FactorsGreedilyWithTenFirstAndSortsThem) {
    EXPECT_EQ(Factors(1024), (Counts{32, 32}));
    EXPECT_EQ(Factors(2048), (Counts{2, 32, 32}));
    EXPECT_EQ(Factors(1000), (Counts{10, 10, 10}));
    EXPECT_EQ(Factors(60), (Counts{2, 3, 10}));
    EXPECT_EQ(Factors(96), (Counts{3, 32}));
    EXPECT_EQ(Factors(23), (Counts{23}));
    EXPECT_EQ(Factors(106), (Counts{2, 53}));
    EXPECT_EQ(Factors(2809), (Counts{53, 53}));
    EXPECT_EQ(Factors(4093), (Counts{4093}));
    EXPECT_EQ(Factors(4092), (Counts{3, 4, 11, 31}));
    EXPECT_EQ(Factors(23 * 47 * 59 * 6), (Counts{2, 3, 23, 47, 59}));
}

TEST(Plan, KindsAreKernelGenericPrimeBelowFiftyAndLargePrime) {
    EXPECT_EQ(Kinds(106), (Counts{kKernelFactor, kLargePrime}));
    EXPECT_EQ(Kinds(2 * 3 * 23 * 47 * 59),
              (Counts{kKernelFactor, kKernelFactor, kGenericPrime, kGenericPrime, kLargePrime}));
    for (Count size : {10, 43, 41, 37, 32, 31, 29, 19, 18, 17, 16, 14, 13, 11, 9, 8, 7, 5, 4, 3, 2})
        EXPECT_EQ(Kinds(size), Counts{kKernelFactor}) << size;
}

TEST(Plan, EveryKernelSizeHasItsFourEntries) {
    for (Count size : {10, 43, 41, 37, 32, 31, 29, 19, 18, 17, 16, 14, 13, 11, 9, 8, 7, 5, 4, 3, 2}) {
        const Held plan(size);
        EXPECT_NE(plan->leafKernels[0], nullptr);
        EXPECT_NE(plan->stageKernels[0], nullptr);
        EXPECT_NE(plan->realLeafKernels[0], nullptr);
        EXPECT_NE(plan->realStageKernels[0], nullptr);
    }
}

// The recurrence as it is documented, told again: c' = c - (c d + (-t) w), w' = w - (w d - (-t) c).
struct Point {
    double c, w;
    Point Turned(double angle) const {
        const double s = std::sin(angle / 2), d = s * (2 * s), t = std::sin(angle);
        const volatile double cd = c * d, tw = -t * w, wd = w * d, tc = -t * c;  // each product rounded by itself
        const volatile double turnC = cd + tw, turnW = wd - tc;
        return {c - turnC, w - turnW};
    }
};

TEST(Plan, TwiddlesFollowTheirRecurrenceToTheLastBitOnEveryInstructionSet) {
    ForEachTarget([] {
        for (Count size : {6, 60, 1024, 1000, 106 * 3}) {
            const Held plan(size);
            Count length = size;
            for (Count i = 0; i + 1 < plan->factorCount; ++i) {
                const Count f = plan->factors[i], m = length / f;
                const double theta = 6.283185307179586 / length;
                for (Count r = 1; r < f; ++r) {
                    Point point{1, 0};
                    for (Count j = 1; j < m; ++j) {
                        point = point.Turned(r * theta);
                        const Count at = (j - 1) * (f - 1) + (r - 1);
                        ASSERT_EQ(plan->stages[i]->twiddleCos[at], point.c) << size << " " << r << " " << j;
                        ASSERT_EQ(plan->stages[i]->twiddleSin[at], point.w) << size << " " << r << " " << j;
                    }
                }
                length = m;
            }
            EXPECT_EQ(plan->stages[plan->factorCount - 1]->twiddleCos, nullptr) << "the last stage has no twiddles";
        }
    });
}

// Lane by lane, against the rows of the plain tables.
void ExpectBlockedAsStated(const FftStage& stage, Count f, Count m) {
    const FftKernelTable& kernels = kFftKernels();
    const double* block = stage.blockedTwiddles;
    for (Count j = 0; j < m;) {
        const Count width = kernels.blockWidth(m - j);
        for (Count r = 1; r < f; ++r, block += 2 * width)
            for (Count lane = 0; lane < width; ++lane) {
                const Count column = j + kernels.laneColumn(width, lane);
                if (column >= m) continue;
                const Count at = (column - 1) * (f - 1) + (r - 1);
                ASSERT_EQ(block[lane], column ? stage.twiddleCos[at] : 1) << f << " " << m << " " << r << " " << column;
                ASSERT_EQ(block[width + lane], column ? stage.twiddleSin[at] : 0) << f << " " << m << " " << r;
            }
        j += width;
    }
}

TEST(Plan, GivesItsKernelsTheStatedTwiddlesInTheirOwnOrder) {
    ForEachTarget([] {
        for (Count size : {4, 6, 12, 60, 75, 1024, 1000, 2048, 23 * 47, 2 * 43 * 41, 2 * 3 * 5 * 7 * 11 * 13, 9 * 53}) {
            const Held plan(size);
            for (Count i = 0; i + 1 < plan->factorCount; ++i)
                ExpectBlockedAsStated(*plan->stages[i], plan->factors[i], plan->columns[i]);
        }
    });
}

TEST(Plan, OfATransformGetsItsPlainTwiddlesWhenACallerHoldsIt) {
    for (Count size : {60, 2 * 53 * 3}) {
        const HeldPlan ofTransform(size);
        const FftPlan* plan = ofTransform;
        EXPECT_EQ(plan->stages[0]->twiddleCos, nullptr) << "no transform reads them";
        FailAllocation(0);
        EXPECT_EQ(ZemFunc260(size), nullptr);
        FailAllocation(-1);
        EXPECT_EQ(plan->refCount, 1);
        EXPECT_EQ(plan->stages[0]->twiddleCos, nullptr);
        const Held held(size);
        EXPECT_EQ(&RecordOf(held), plan);
        for (Count i = 0; i + 1 < plan->factorCount; ++i) {
            EXPECT_NE(plan->stages[i]->twiddleCos, nullptr);
            EXPECT_NE(plan->stages[i]->twiddleSin, nullptr);
        }
        const Held again(size);
        EXPECT_EQ(plan->refCount, 3);
    }
}

TEST(Plan, OfAPrimeThatACallerHoldsHasThePlainTwiddlesOfItsPredecessorToo) {
    const HeldPlan ofTransform(59);  // 58 = 2 * 29
    const FftPlan* predecessor = static_cast<const FftPlan*>(ofTransform)->stages[0]->raderPlan;
    EXPECT_EQ(predecessor->stages[0]->twiddleCos, nullptr);
    const Held held(59);
    EXPECT_NE(predecessor->stages[0]->twiddleCos, nullptr);
}

TEST(Plan, TablesOfGenericPrimesStartAtOneAndFollowTheRecurrence) {
    for (Count prime : {23, 47}) {
        const Held plan(prime);
        Point point{1, 0};
        for (Count k = 0; k < prime; ++k) {
            EXPECT_EQ(plan->stages[0]->primeCos[k], point.c);
            EXPECT_EQ(plan->stages[0]->primeSin[k], point.w);
            point = point.Turned(6.283185307179586 / prime);
        }
    }
}

TEST(Plan, IndexTablesOfALargePrimeRunThroughThePowersOfItsRootAndOfTheInverse) {
    for (Count prime : {53, 59, 683, 1009, 4099}) {
        const Held plan(prime);
        const FftStage& stage = *plan->stages[0];
        EXPECT_EQ(stage.raderGather[0], 0);
        EXPECT_EQ(stage.raderScatter[0], 0);
        EXPECT_EQ(stage.raderGather[1], 1);
        EXPECT_EQ(stage.raderScatter[1], 1);
        const Count root = stage.raderScatter[2];
        std::vector<int> seen(prime);
        for (Count k = 1; k < prime; ++k) {
            ++seen[stage.raderScatter[k]];
            const Count next = k + 1 < prime ? stage.raderScatter[k + 1] : stage.raderScatter[1];
            EXPECT_EQ(Size{stage.raderScatter[k]} * root % prime, next);
            EXPECT_TRUE(k == 1 || stage.raderGather[prime - k + 1] == stage.raderScatter[k]) << k;
        }
        for (Count v = 1; v < prime; ++v) EXPECT_EQ(seen[v], 1) << "the powers of the root leave out " << v;
    }
}

TEST(Plan, TakesTheSmallestPrimitiveRoot) {
    // Smallest primitive roots (OEIS A001918).
    const std::pair<Count, Count> roots[] = {{53, 2}, {59, 2}, {61, 2}, {71, 7}, {73, 5}, {191, 19}, {409, 21}};
    for (const auto& [prime, root] : roots) {
        const Held plan(prime);
        EXPECT_EQ(plan->stages[0]->raderScatter[2], root) << prime;
    }
}

TEST(Plan, OfAPrimeWithARoughPredecessorHoldsThatPlanAndGivesAllBack) {
    const long live = LiveBlocks();
    {
        const Held plan(10007);  // 10006 = 2 * 5003, 5002 = 2 * 41 * 61
        EXPECT_EQ(plan->stages[0]->raderPlan->size, 10006);
        EXPECT_EQ(plan->stages[0]->raderPlan->refCount, 1);
    }
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(Plan, EveryFailedAllocationGivesNullAndLeavesTheListAsItWas) {
    for (Size size : {1, 2, 60, 132, 1024, 23, 46, 53, 106, 2809, 683, 1367, 4099}) {
        SCOPED_TRACE(size);
        ExpectEveryAllocationFails([size] {
            QvFftPlan* plan = ZemFunc260(size);
            ZemFunc261(plan);
            return plan ? status::kSuccess : status::kOutOfMemory;
        });
    }
}

TEST(Plan, ThatFailedToBuildLeavesNoReferenceOnASharedPredecessor) {
    const Held predecessor(52);
    FailAllocation(-1);
    ZemFunc261(ZemFunc260(53));
    const long count = AllocationCount();
    for (long k = 0; k < count; ++k) {
        FailAllocation(k);
        EXPECT_EQ(ZemFunc260(53), nullptr) << k;
        EXPECT_EQ(predecessor->refCount, 1) << k;
    }
    FailAllocation(-1);
}

TEST(FftFastSize, IsTheNextSizeOfKernelPrimesAndLeavesValuesBelowTwo) {
    EXPECT_EQ(FftFastSize(-5), -5);
    EXPECT_EQ(FftFastSize(0), 0);
    EXPECT_EQ(FftFastSize(1), 1);
    EXPECT_EQ(FftFastSize(2), 2);
    EXPECT_EQ(FftFastSize(23), 24);
    EXPECT_EQ(FftFastSize(47), 48);
    EXPECT_EQ(FftFastSize(53), 54);
    EXPECT_EQ(FftFastSize(59), 60);
    EXPECT_EQ(FftFastSize(2 * 23), 48);
    EXPECT_EQ(FftFastSize(43 * 43), 43 * 43);
    EXPECT_EQ(FftFastSize(1009), 1014);  // 1010 = 2 5 101, 1011 = 3 337, 1012 = 4 11 23, 1013 prime, 1014 = 2 3 13 13
}

}  // namespace
}  // namespace quorvan::testing
