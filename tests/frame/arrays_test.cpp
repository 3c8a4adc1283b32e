// Array primitives.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"
#include "tests/support/targets.h"

namespace quorvan::testing {
namespace {

TEST(ArrAdd, AddsElementByElementOnEveryInstructionSet) {
    ForEachTarget([] {
        for (int n = 1; n < 70; ++n) {
            const Reals x = RandomReals(n, 1), y = RandomReals(n, 2);
            Reals out = Output(n);
            ASSERT_EQ(ZemFunc3(x, y, n, out), 0);
            for (int i = 0; i < n; ++i) EXPECT_TRUE(SameBits(out[i], x[i] + y[i]));
        }
    });
}

TEST(ArrAdd, RefusesSizesAndTouchesNothing) {
    const Reals x{1, 2}, y{3, 4};
    Reals out = Output(2);
    EXPECT_EQ(ZemFunc3(x, y, 0, out), -20003);
    EXPECT_EQ(ZemFunc3(x, y, -1, out), -20003);
    EXPECT_EQ(ZemFunc3(x, y, kTooLarge, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(ArrAdd2D, FormsTheElementCountIn32Bits) {
    const Reals x(65536, 1.0), y(65536, 2.0);
    Reals out = Output(65536);
    EXPECT_EQ(ZemFunc4(x, y, 65536, 65537, out), 0);
    EXPECT_EQ(out[65535], 3.0);
    EXPECT_EQ(ZemFunc4(x, y, 65536, 32768, out), -20003);
}

}  // namespace
}  // namespace quorvan::testing
