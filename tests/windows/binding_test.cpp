// The names of the provider, each bound in the middle of its first call: no argument may be lost on the way.
#include <cstdint>
#include <gtest/gtest.h>

#include "linalg/provider.h"
#include "linalg/provider_memory.h"

namespace quorvan {
namespace {

TEST(ProviderBinding, KeepsAllArgumentsOfTheFirstCall) {
    const double x[4] = {1, 2, 3, 4};
    for (int round = 0; round < 2; ++round) {
        double y[4] = {10, 20, 30, 40};
        provider::cblas_daxpy(4, 0.5, x, 1, y, 1);  // a double among the arguments that come in registers
        EXPECT_EQ(y[0], 10.5);
        EXPECT_EQ(y[1], 21.0);
        EXPECT_EQ(y[2], 31.5);
        EXPECT_EQ(y[3], 42.0);
    }
}

TEST(ProviderBinding, KeepsArgumentsOnTheStackAndTheResult) {
    const double a[4] = {1, 2, 3, 4}, x[2] = {5, 6};
    for (int round = 0; round < 2; ++round) {
        double y[2] = {100, 200};
        provider::cblas_dgemv(provider::Order::kRowMajor, provider::Transposition::kNone, 2, 2, 2.0, a, 2, x, 1, 0.5, y,
                              1);
        EXPECT_EQ(y[0], 2 * 17 + 50.0);
        EXPECT_EQ(y[1], 2 * 39 + 100.0);
        EXPECT_EQ(provider::cblas_ddot(2, a, 1, x, 1), 17.0);
    }
}

TEST(ProviderBinding, ReachesFortranByItsNameWithoutUnderscore) {
    double a[4] = {4, 2, 2, 3};
    provider::Int n = 2, info = -1;
    provider::dpotrf("L", &n, a, &n, &info, 1);
    EXPECT_EQ(info, 0);
    EXPECT_EQ(a[0], 2.0);
    EXPECT_EQ(a[1], 1.0);
    EXPECT_DOUBLE_EQ(a[3] * a[3], 2.0);
}

TEST(ProviderBinding, BlocksOfTheProvidersAllocatorAreAligned) {
    for (std::size_t bytes : {0, 1, 31, 32, 33, 1000000}) {
        void* block = ProviderAllocate(bytes);
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % kProviderAlignment, 0u);
        ProviderFree(block);
    }
    EXPECT_EQ(ProviderAllocate(SIZE_MAX / 2), nullptr);
}

}  // namespace
}  // namespace quorvan
