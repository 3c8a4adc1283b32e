// Derivatives by differences: statuses, boundary arrays, in place, the documented expressions to the last bit.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

struct Method {
    int initial, final;  // values needed
    double (*factor)(double dt);
    double (*difference)(const double* e);
    Status too_short;
};

const Method kMethods[] = {
    {1, 1, [](double dt) { return 0.5 / dt; }, [](const double* e) { return e[1] - e[-1]; }, -20003},
    {2, 2, [](double dt) { return 1 / (dt * 12.0); },
     [](const double* e) { return 8 * e[1] - e[2] - 8 * e[-1] + e[-2]; }, -20006},
    {0, 1, [](double dt) { return 1 / dt; }, [](const double* e) { return e[1] - e[0]; }, -20003},
    {1, 0, [](double dt) { return 1 / dt; }, [](const double* e) { return e[0] - e[-1]; }, -20003},
};

TEST(Differentiate, ChecksSizeThenIntervalThenMethodWithItsBoundaries) {
    Reals x = {1, 2}, out = Output(2), edge = {0, 0};
    EXPECT_EQ(ZemFunc56(x, 0, 0.0, 1, 1, out), -20003);
    EXPECT_EQ(ZemFunc56(x, -1, 1.0, 1, 1, out), -20003);
    EXPECT_EQ(ZemFunc56(x, 2, 0.0, 1, 1, out), -20016);
    EXPECT_EQ(ZemFunc56(x, 2, -1.0, 1, 1, out), -20016);
    EXPECT_EQ(ZemFunc56(x, kTooLarge, 1.0, 1, 1, out), -20046);
    EXPECT_EQ(ZemFunc367(x, 0, 0.0, edge, 0, edge, 0, 9, out), -20003);
    EXPECT_EQ(ZemFunc367(x, 2, 0.0, edge, 0, edge, 0, 9, out), -20016);
    EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, 0, edge, 0, 9, out), -20061);
    EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, 2, edge, 2, 4, out), -20061);
    EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, 2, edge, 2, 0xFFFFFFFFu, out), -20061);
    EXPECT_EQ(ZemFunc367(x, kTooLarge, 1.0, edge, 2, edge, 2, 0, out), -20046);
    EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, kTooLarge, edge, 2, 0, out), -20046);
    EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, 2, edge, -kTooLarge - 1, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(DifferentiateMethod, EachMethodNeedsItsBoundaryValuesAndOnlyTheFourthOrderHasAStatusOfItsOwn) {
    Reals x = {1, 2}, out = Output(2), edge = {0, 0};
    for (unsigned m = 0; m < 4; ++m)
        for (int initial = -1; initial <= 2; ++initial)
            for (int final = -1; final <= 2; ++final) {
                // A boundary that a method does not read may have any size.
                const bool reads_initial = kMethods[m].initial > 0, reads_final = kMethods[m].final > 0;
                const bool accepted =
                    (!reads_initial || initial >= kMethods[m].initial) && (!reads_final || final >= kMethods[m].final);
                EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, initial, edge, final, m, out),
                          accepted ? 0 : kMethods[m].too_short)
                    << m << " " << initial << " " << final;
            }
    EXPECT_EQ(ZemFunc367(x, 2, 1.0, edge, 1, edge, 2, 1, out), -20006);
}

TEST(DifferentiateMethod, FollowsTheExpressionsToTheLastBitWithReciprocalFactors) {
    const double initial[] = {0.3, -1.7, 99.0}, final[] = {2.1, 0.9, 99.0};
    for (unsigned m = 0; m < 4; ++m)
        for (const Size n : {1, 2, 3, 4, 10, 1023, 1024, 1025, 1026, 2047, 2048, 2049})
            for (const double dt : {0.1, 3.0}) {
                const Method& method = kMethods[m];
                Reals x = RandomReals(n, m + 1), out = Output(n);
                std::vector<double> e(initial, initial + method.initial);
                e.insert(e.end(), x.begin(), x.end());
                e.insert(e.end(), final, final + method.final);
                ASSERT_EQ(ZemFunc367(x, n, dt, initial, 3, final, 3, m, out), 0);
                for (Size i = 0; i < n; ++i)
                    ASSERT_TRUE(SameBits(out[i], method.difference(&e[method.initial + i]) * method.factor(dt)))
                        << m << " " << n << " " << i;
                Reals by_null = x, by_input = x;
                ASSERT_EQ(ZemFunc367(by_null, n, dt, initial, 3, final, 3, m, nullptr), 0);
                ASSERT_EQ(ZemFunc367(by_input, n, dt, initial, 3, final, 3, m, by_input), 0);
                EXPECT_EQ(by_null.values(), out.values());
                EXPECT_EQ(by_input.values(), out.values());
            }
}

TEST(Differentiate, IsMethod0WithOneValueAtEitherEnd) {
    Reals x = RandomReals(30), out = Output(30), same = Output(30);
    const double initial = 0.25, final = -3.0;
    ASSERT_EQ(ZemFunc56(x, 30, 0.7, initial, final, out), 0);
    ASSERT_EQ(ZemFunc367(x, 30, 0.7, &initial, 1, &final, 1, 0, same), 0);
    EXPECT_EQ(out.values(), same.values());
    ASSERT_EQ(ZemFunc56(x, 30, 0.7, initial, final, nullptr), 0);
    EXPECT_EQ(x.values(), same.values());
}

TEST(DifferentiateMethod, DifferentiatesPolynomialsUpToItsOrderExactly) {
    // Small integers, so that nothing but the factor 1/12 rounds.
    const int degree[] = {2, 4, 1, 1};
    for (unsigned m = 0; m < 4; ++m) {
        const int n = 20;
        const auto power = [&](double t) { return std::pow(t, degree[m]); };
        const double initial[] = {power(kMethods[m].initial == 2 ? -2 : -1), power(-1)},
                     final[] = {power(n), power(n + 1)};
        Reals x(n), out = Output(n);
        for (int i = 0; i < n; ++i) x[i] = power(i);
        ASSERT_EQ(ZemFunc367(x, n, 1.0, initial, 2, final, 2, m, out), 0);
        for (int i = 0; i < n; ++i) {
            const double slope = degree[m] * std::pow(i, degree[m] - 1);
            EXPECT_NEAR(out[i], slope, 2 * kEpsilon * slope) << m << " " << i;
        }
    }
}

TEST(DifferentiateMethod, BoundariesThatAreNotReadMayBeNull) {
    Reals x = {1, 4, 9}, out = Output(3);
    const double edge = 16;
    ASSERT_EQ(ZemFunc367(x, 3, 1.0, nullptr, 0, &edge, 1, 2, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{3, 5, 7}));
    ASSERT_EQ(ZemFunc367(x, 3, 1.0, &edge, 1, nullptr, 0, 3, out), 0);
    EXPECT_EQ(out.values(), (std::vector<double>{-15, 3, 5}));
}

}  // namespace
}  // namespace quorvan::testing
