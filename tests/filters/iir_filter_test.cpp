// The filter objects: shape, creation, release.
#include <cstddef>

#include "tests/filters/filters.h"
#include "tests/support/failing_heap.h"

namespace quorvan::testing {
namespace {

TEST(IirFilter, OfOrderOneLowpassHasOneStageOfWidthTwo) {
    const Filter filter(0, 1);
    EXPECT_EQ(filter->type, 0);
    EXPECT_EQ(filter->order, 1);
    EXPECT_EQ(filter->reset, 0);
    EXPECT_EQ(filter->a_count, 2);
    EXPECT_EQ(filter->b_count, 3);
    EXPECT_EQ(filter->state_count, 2);
}

TEST(IirFilter, OfOrderTwoBandpassHasOneStageOfWidthFour) {
    const Filter filter(2, 2);
    EXPECT_EQ(filter->a_count, 4);
    EXPECT_EQ(filter->b_count, 5);
    EXPECT_EQ(filter->state_count, 4);
}

TEST(IirFilter, OfOrderFiveBandpassHasTwelveAndFifteenCoefficients) {
    const Filter filter(2, 5);
    EXPECT_EQ(filter->a_count, 12);
    EXPECT_EQ(filter->b_count, 15);
    EXPECT_EQ(filter->state_count, 12);
}

TEST(IirFilter, IsOneBlockOfRecordFeedbackForwardAndState) {
    for (int kind : kKinds)
        for (int order = 1; order <= 9; ++order) {
            const Filter filter(kind, order);
            EXPECT_EQ(filter->type, kind);
            EXPECT_EQ(filter->order, order);
            EXPECT_EQ(static_cast<void*>(filter->a), static_cast<void*>(static_cast<QvIirFilter*>(filter) + 1));
            EXPECT_EQ(filter->b, filter->a + filter->a_count);
            EXPECT_EQ(filter->state, filter->b + filter->b_count);
            for (double v : filter.delays()) EXPECT_TRUE(SameBits(v, 0.0));
            const ComplexState state(kind, order);
            EXPECT_EQ(state->count, filter->state_count);
            EXPECT_EQ(static_cast<void*>(state->values),
                      static_cast<void*>(static_cast<QvIirStateComplex*>(state) + 1));
            for (int k = 0; k < state->count; ++k) {
                EXPECT_TRUE(SameBits(state->values[k].re, 0.0));
                EXPECT_TRUE(SameBits(state->values[k].im, 0.0));
            }
        }
}

TEST(IirFilter, HasItsFieldsInTheDocumentedOrder) {
    EXPECT_EQ(offsetof(QvIirFilter, type), 0u);
    EXPECT_EQ(offsetof(QvIirFilter, order), 4u);
    EXPECT_EQ(offsetof(QvIirFilter, reset), 8u);
    EXPECT_EQ(offsetof(QvIirFilter, a_count), 12u);
    EXPECT_EQ(offsetof(QvIirFilter, a), 16u);
    EXPECT_EQ(offsetof(QvIirFilter, b_count), 24u);
    EXPECT_EQ(offsetof(QvIirFilter, b), 32u);
    EXPECT_EQ(offsetof(QvIirFilter, state_count), 40u);
    EXPECT_EQ(offsetof(QvIirFilter, state), 48u);
    EXPECT_EQ(offsetof(QvIirStateComplex, count), 0u);
    EXPECT_EQ(offsetof(QvIirStateComplex, values), 8u);
}

TEST(IirFilter, IsNullForAnotherKindOrNoOrder) {
    for (std::uint32_t kind : {4u, 5u, 0x80000000u, 0xFFFFFFFFu}) {
        EXPECT_EQ(ZemFunc233(kind, 2), nullptr);
        EXPECT_EQ(ZemFunc469(kind, 2), nullptr);
    }
    for (std::uint32_t kind : {0u, 1u, 2u, 3u})
        for (std::int32_t order : {0, -1, INT32_MIN}) {
            EXPECT_EQ(ZemFunc233(kind, order), nullptr);
            EXPECT_EQ(ZemFunc469(kind, order), nullptr);
        }
}

TEST(IirFilter, IsNullWhereNoCountHoldsItsCoefficients) {
    EXPECT_EQ(ZemFunc233(0, INT32_MAX), nullptr);
    EXPECT_EQ(ZemFunc233(3, INT32_MAX), nullptr);
    EXPECT_EQ(ZemFunc469(0, INT32_MAX), nullptr);
    EXPECT_EQ(ZemFunc469(3, INT32_MAX), nullptr);
}

TEST(IirFilter, IsNullWhenMemoryRunsOut) {
    const long live = LiveBlocks();
    FailAllocation(0);
    EXPECT_EQ(ZemFunc233(0, 3), nullptr);
    FailAllocation(0);
    EXPECT_EQ(ZemFunc469(3, 3), nullptr);
    FailAllocation(-1);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(IirFilter, IsOneAllocationThatAnyOfTheThreeReleasesGivesBack) {
    const long live = LiveBlocks();
    FailAllocation(-1);
    void* objects[] = {ZemFunc233(1, 7), ZemFunc233(2, 7), ZemFunc469(0, 7)};
    EXPECT_EQ(AllocationCount(), 3);
    ZemFunc238(objects[0]);
    ZemFunc470(objects[1]);
    ZemFunc234(objects[2]);
    EXPECT_EQ(LiveBlocks(), live);
}

TEST(IirFilterReset, SetsOnlyTheMarkAndIgnoresNull) {
    ZemFunc235(nullptr);
    const Filter filter(0, 4);
    FillStages(filter, 1);
    filter->state[0] = 5;
    const auto a = filter.feedback(), b = filter.forward();
    ZemFunc235(filter);
    EXPECT_EQ(filter->reset, 1);
    EXPECT_EQ(filter->state[0], 5);
    EXPECT_EQ(filter.feedback(), a);
    EXPECT_EQ(filter.forward(), b);
}

}  // namespace
}  // namespace quorvan::testing
