// Interpolation at a point, by a polynomial and by a rational function.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Scheme = Status (*)(const double*, const double*, Size, double, double*, double*);
constexpr Scheme kSchemes[] = {ZemFunc138, ZemFunc146};

struct Value {
    double result = kUnwritten;
    double error = kUnwritten;
};

Value At(Scheme scheme, const Reals& x, const Reals& y, double point) {
    Value v;
    EXPECT_EQ(scheme(x, y, x.size(), point, &v.result, &v.error), 0);
    return v;
}

TEST(InterpPolynomial, OfOneSampleIsItsOrdinateWithoutError) {
    for (Scheme scheme : kSchemes) {
        const Value v = At(scheme, {2}, {7}, 5);
        EXPECT_EQ(v.result, 7);
        EXPECT_EQ(v.error, 0);
    }
}

TEST(InterpPolynomial, ReproducesAQuadraticExactly) {
    const Reals x{0, 1, 3}, y{1, 2, 10};  // x² + 1
    EXPECT_EQ(At(ZemFunc138, x, y, 2).result, 5);
    EXPECT_EQ(At(ZemFunc138, x, y, -1).result, 2);
}

TEST(InterpPolynomial, ErrorIsTheLastCorrection) {
    // At 2 the samples 1 and 3 tie, and the first wins: 2, corrected to 3 by the line through 0 and 1, then to 5.
    const Reals x{0, 1, 3}, y{1, 2, 10};
    EXPECT_EQ(At(ZemFunc138, x, y, 2).error, 2);
}

TEST(InterpPolynomial, StartsAtTheFirstOfTwoNearestSamples) {
    // With two samples the path shows in the correction: from the first sample the line gains (y1 - y0) / 2 = 3.
    EXPECT_EQ(At(ZemFunc138, {0, 2}, {1, 7}, 1).error, 3);
    EXPECT_EQ(At(ZemFunc138, {0, 2}, {1, 7}, 1.5).error, -1.5);
}

TEST(InterpPolynomial, AtASampleIsThatSample) {
    const Reals x{3, -1, 0.5, 8}, y = RandomReals(4);
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(At(ZemFunc138, x, y, x[i]).result, y[i], 20 * kEpsilon) << i;
}

TEST(InterpPolynomial, RefusesDuplicatesWhereverTheyStand) {
    for (int other : {1, 2, 4}) {
        Reals x{1, 2, 3, 4, 5};
        x[other] = x[0];
        Value v;
        EXPECT_EQ(ZemFunc138(x, RandomReals(5), 5, 2.5, &v.result, &v.error), -20049);
        EXPECT_EQ(v.result, kUnwritten);
        EXPECT_EQ(v.error, kUnwritten);
    }
}

TEST(InterpRational, AtASampleIsThatSampleWithNoOtherWork) {
    // Duplicates and infinities behind it are never looked at.
    const Value v = At(ZemFunc146, {1, 1, 2, 2}, {5, kInf, 7, kNaN}, 2);
    EXPECT_EQ(v.result, 7);
    EXPECT_EQ(v.error, 0);
}

TEST(InterpRational, ReproducesARationalFunction) {
    // 1 / (1 + x²) has degree (0, 2): five samples determine the diagonal function of degree (2, 2). The offset of
    // 1e-10 in the scheme is amplified by a few.
    Reals x{-2, -0.7, 0.1, 1.3, 2.5}, y(5);
    for (int i = 0; i < 5; ++i) y[i] = 1 / (1 + x[i] * x[i]);
    for (double point : {-1.5, 0.6, 2.0})
        EXPECT_NEAR(At(ZemFunc146, x, y, point).result, 1 / (1 + point * point), 1e-8);
}

TEST(InterpRational, RefusesAPoleAtThePoint) {
    // Two samples: y0·y1·(x1 - x0) over a line that vanishes where (p - x0)·(y0 + 1e-10) = (p - x1)·y1. With y0 = -y1
    // up to the offset the pole is in the middle: y1 = 1 and y0 + 1e-10 = -1 at p = 0.
    Reals y{-1 - 1e-10, 1};
    ASSERT_EQ(y[0] + 1e-10, -1);
    Value v;
    EXPECT_EQ(ZemFunc146(Reals{-1, 1}, y, 2, 0, &v.result, &v.error), -20050);
    EXPECT_EQ(v.result, kUnwritten);
    EXPECT_EQ(v.error, kUnwritten);
}

TEST(InterpRational, StartsFromOrdinatesOffsetByATinyAmountOnOneSide) {
    // Ordinates of zero would be 0/0 in the scheme: with the offset the result is finite and of its size.
    const Value v = At(ZemFunc146, {0, 1, 2}, {0, 0, 0}, 0.4);
    EXPECT_NEAR(v.result, 0, 2e-10);
    EXPECT_NE(v.result, 0);
}

TEST(InterpPolynomial, BothRefuseSizesBelowOneAndSizesThatDoNotNarrow) {
    const Reals x{1, 2}, y{1, 2};
    for (Scheme scheme : kSchemes) {
        Value v;
        EXPECT_EQ(scheme(x, y, 0, 1.5, &v.result, &v.error), -20003);
        EXPECT_EQ(scheme(x, y, -1, 1.5, &v.result, &v.error), -20003);
        EXPECT_EQ(scheme(x, y, kTooLarge, 1.5, &v.result, &v.error), -20046);
        EXPECT_EQ(v.result, kUnwritten);
        EXPECT_EQ(v.error, kUnwritten);
    }
}

TEST(InterpPolynomial, BothKeepTheirInputs) {
    const Reals x{1, 2, 4, 5}, y{3, 1, 4, 1};
    for (Scheme scheme : kSchemes) At(scheme, x, y, 3);
    EXPECT_EQ(x.values(), (std::vector<double>{1, 2, 4, 5}));
    EXPECT_EQ(y.values(), (std::vector<double>{3, 1, 4, 1}));
}

TEST(InterpPolynomial, EveryAllocationFails) {
    const Reals x{1, 2, 4, 5}, y{3, 1, 4, 1};
    Value v;
    for (Scheme scheme : kSchemes) ExpectEveryAllocationFails([&] { return scheme(x, y, 4, 3, &v.result, &v.error); });
}

}  // namespace
}  // namespace quorvan::testing
