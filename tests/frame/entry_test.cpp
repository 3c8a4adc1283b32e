// What every entry shares: narrowing of sizes and arrays of sizes, widening of indices. Inside the library, for no
// export shows an array of sizes that stays unwritten.
#include "frame/entry.h"

#include <gtest/gtest.h>

#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Sizes = Guarded<Size>;
using Counts = Guarded<Count>;

TEST(SizeNarrow, PassesWhatEqualsItsOwnLowHalf) {
    for (Size fits : {Size{0}, Size{-1}, Size{1}, Size{INT32_MAX}, Size{INT32_MIN}})
        EXPECT_TRUE(SizeNarrow(fits)) << fits;
    for (Size wide :
         {Size{INT32_MAX} + 1, Size{INT32_MIN} - 1, Size{1} << 32, (Size{1} << 32) + 5, INT64_MAX, INT64_MIN})
        EXPECT_FALSE(SizeNarrow(wide)) << wide;
}

TEST(Narrowed, CallsNothingWhenAnySizeDoesNotFit) {
    int calls = 0;
    const auto body = [&](Count, Count) {
        ++calls;
        return status::kSuccess;
    };
    EXPECT_EQ(narrowed(kTooLarge, 1, body), -20046);
    EXPECT_EQ(narrowed(1, kTooLarge, body), -20046);
    EXPECT_EQ(narrowed(-1, kTooLarge, body), -20046);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(narrowed(-1, 1, body), 0);
    EXPECT_EQ(calls, 1);
}

TEST(Product, WrapsIn32Bits) {
    EXPECT_EQ(Product(65536, 65537), 65536);
    EXPECT_EQ(Product(65536, 32768), INT32_MIN);
    EXPECT_EQ(Product(65536, 65536), 0);
    EXPECT_EQ(Product(-3, -4), 12);
    EXPECT_EQ(Product(-3, 4), -12);
}

TEST(SizeArrayNarrow, NarrowsWithTheSign) {
    const Sizes in{0, -1, 7, INT32_MAX, INT32_MIN};
    Counts out(5, 99);
    EXPECT_EQ(SizeArrayNarrow(out, in, 5), 0);
    EXPECT_EQ(out.values(), (std::vector<Count>{0, -1, 7, INT32_MAX, INT32_MIN}));
}

TEST(SizeArrayNarrow, LeavesTheOutputUnwrittenWhenTheLastElementDoesNotFit) {
    const Sizes in{1, 2, kTooLarge};
    Counts out(3, 99);
    EXPECT_EQ(SizeArrayNarrow(out, in, 3), -20046);
    EXPECT_EQ(out.values(), (std::vector<Count>{99, 99, 99}));
}

TEST(SizeArrayNarrow, DoesNothingForANullInputEvenWithABadCount) {
    Counts out(1, 99);
    EXPECT_EQ(SizeArrayNarrow(out, nullptr, 1), 0);
    EXPECT_EQ(SizeArrayNarrow(out, nullptr, kTooLarge), 0);
    EXPECT_EQ(out[0], 99);
}

TEST(SizeArrayNarrow, RefusesACountThatDoesNotFitAndPassesOneBelowOne) {
    const Sizes in{kTooLarge};
    Counts out(1, 99);
    EXPECT_EQ(SizeArrayNarrow(out, in, kTooLarge), -20046);
    EXPECT_EQ(SizeArrayNarrow(out, in, -kTooLarge - 1), -20046);
    EXPECT_EQ(SizeArrayNarrow(out, in, 0), 0);
    EXPECT_EQ(SizeArrayNarrow(out, in, -1), 0);
    EXPECT_EQ(out[0], 99);
}

TEST(IndexArrayWiden, ExtendsTheSign) {
    const Counts in{-1, 0, INT32_MAX, INT32_MIN};
    Sizes out(4, 99);
    EXPECT_EQ(IndexArrayWiden(out, in, 4), 0);
    EXPECT_EQ(out.values(), (std::vector<Size>{-1, 0, INT32_MAX, INT32_MIN}));
}

TEST(IndexArrayWiden, DoesNothingForANullOutputAndRefusesACountThatDoesNotFit) {
    const Counts in{5};
    Sizes out(1, 99);
    EXPECT_EQ(IndexArrayWiden(nullptr, in, 1), 0);
    EXPECT_EQ(IndexArrayWiden(nullptr, in, kTooLarge), 0);
    EXPECT_EQ(IndexArrayWiden(out, in, kTooLarge), -20046);
    EXPECT_EQ(IndexArrayWiden(out, in, 0), 0);
    EXPECT_EQ(IndexArrayWiden(out, in, -1), 0);
    EXPECT_EQ(out[0], 99);
}

}  // namespace
}  // namespace quorvan::testing
