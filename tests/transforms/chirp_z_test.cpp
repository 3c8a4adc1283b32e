// The chirp-Z transform and its inverse.
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/transforms/reference.h"

namespace quorvan::testing {
namespace {

constexpr ComplexRecord kOne{1, 0};

ComplexRecord Polar(double magnitude, double phase) {
    return {magnitude * std::cos(phase), magnitude * std::sin(phase)};
}

// z to an integer power, by squaring in long double.
Wide Power(ComplexRecord z, long long p) {
    Wide base = Widen(z), result = 1;
    if (p < 0) base = 1.0L / base, p = -p;
    for (; p; p /= 2, base *= base)
        if (p % 2) result *= base;
    return result;
}

template <class T>
std::vector<Wide> ReferenceChirpZ(const Guarded<T>& x, ComplexRecord a, ComplexRecord w, int m) {
    std::vector<Wide> out(m);
    for (long long j = 0; j < m; ++j)
        for (long long k = 0; k < static_cast<long long>(x.size()); ++k)
            out[j] += Widen(x[k]) * Power(a, -k) * Power(w, j * k);
    return out;
}

// The sum of the magnitudes of all terms of X[j], the measure of rounding in it.
template <class T>
double TermSum(const Guarded<T>& x, ComplexRecord a, ComplexRecord w, long long j) {
    long double sum = 0;
    for (long long k = 0; k < static_cast<long long>(x.size()); ++k)
        sum += std::abs(Widen(x[k]) * Power(a, -k) * Power(w, j * k));
    return static_cast<double>(sum);
}

Status ChirpZ(const Reals& x, ComplexRecord a, ComplexRecord w, std::uint32_t method, Size m, Records& out) {
    return ZemFunc341(x, x.size(), a, w, method, m, out);
}
Status ChirpZ(const Records& x, ComplexRecord a, ComplexRecord w, std::uint32_t method, Size m, Records& out) {
    return ZemFunc342(x, x.size(), a, w, method, m, out);
}

// A power w^p has a relative error of about 4 pi eps |p|, from the rounded phase and magnitude; p stays below n m. The
// sums of the direct method add n more eps.
template <class T>
void ExpectDirect(const Guarded<T>& x, ComplexRecord a, ComplexRecord w, int m) {
    const int n = static_cast<int>(x.size());
    Records out = RecordOutput(m);
    ASSERT_EQ(ChirpZ(x, a, w, 0, m, out), 0);
    const auto expected = ReferenceChirpZ(x, a, w, m);
    for (int j = 0; j < m; ++j)
        EXPECT_LE(Distance(expected[j], out[j]), kEpsilon * (13.0 * n * (j + 1) + n + 8) * TermSum(x, a, w, j))
            << "point " << j << " of " << m;
}

// On the unit circle the chirp has magnitude 1 and the powers are (n + m)^2 / 2 at most; the convolution mixes all
// terms.
template <class T>
void ExpectBluestein(const Guarded<T>& x, ComplexRecord a, ComplexRecord w, int m) {
    const int n = static_cast<int>(x.size());
    Records out = RecordOutput(m);
    ASSERT_EQ(ChirpZ(x, a, w, 1, m, out), 0);
    const auto expected = ReferenceChirpZ(x, a, w, m);
    const double square = 0.5 * (n + m) * (n + m), norm = Norm(x);
    for (int j = 0; j < m; ++j)
        EXPECT_LE(Distance(expected[j], out[j]),
                  13 * kEpsilon * square * std::sqrt(n) * norm + 3 * Rounding(2 * n + m, norm * std::sqrt(n + m)))
            << "point " << j << " of " << m;
}

TEST(ChirpZ, IsItsDefiningSumWithBothMethods) {
    for (int n : {1, 2, 3, 8, 13, 30})
        for (int m : {1, 2, 5, 30}) {
            const Reals x = RandomReals(n, n + m);
            const Records z = RandomRecords(n, n + m);
            for (ComplexRecord w : {Polar(1, -0.3), Polar(1, 1.1), Polar(1, -2 * kPi / n)})
                for (ComplexRecord a : {kOne, Polar(1, 0.7)}) {
                    ExpectDirect(x, a, w, m);
                    ExpectDirect(z, a, w, m);
                    ExpectBluestein(x, a, w, m);
                    ExpectBluestein(z, a, w, m);
                }
        }
}

TEST(ChirpZ, RunsOnSpiralsAndOnTheRealLine) {
    const Records z = RandomRecords(12, 3);
    for (ComplexRecord w : {Polar(1.02, 0.4), Polar(0.97, -0.2), ComplexRecord{-0.9, 0}, ComplexRecord{1, 0}})
        for (ComplexRecord a : {Polar(1.1, 0.3), Polar(0.8, -2), ComplexRecord{0, 1}}) ExpectDirect(z, a, w, 9);
}

TEST(ChirpZ, BluesteinAgreesWithTheSumOffTheUnitCircle) {
    // The chirp spans 0.99^(-(n + m)^2 / 2) = 0.99^-200, a factor of 7.5; each division and product carries it along.
    const Records z = RandomRecords(10, 4);
    for (double magnitude : {0.99, 1.01}) {
        const ComplexRecord w = Polar(magnitude, 0.5), a = Polar(1.05, 0.2);
        Records out = RecordOutput(10);
        ASSERT_EQ(ZemFunc342(z, 10, a, w, 1, 10, out), 0);
        const auto expected = ReferenceChirpZ(z, a, w, 10);
        const double spread = std::pow(1.01, 200);
        for (int j = 0; j < 10; ++j)
            EXPECT_LE(Distance(expected[j], out[j]), spread * spread * (13 * 200 * kEpsilon * 10 + Rounding(30, 10)));
    }
}

TEST(ChirpZ, AtTheRootsOfUnityIsTheFourierTransform) {
    for (int n : {1, 2, 7, 16, 53}) {
        const Records z = RandomRecords(n, 5);
        Records fft = RecordOutput(n);
        ASSERT_EQ(ZemFunc263(z, n, 0, nullptr, 0, fft), 0);
        for (std::uint32_t method : {0u, 1u}) {
            Records out = RecordOutput(n);
            ASSERT_EQ(ZemFunc342(z, n, kOne, Polar(1, -2 * kPi / n), method, n, out), 0);
            // Powers up to 2 n^2 of a rounded w.
            ExpectNear(
                fft, out,
                13 * kEpsilon * 2.0 * n * n * std::sqrt(n) * Norm(z) + 4 * Rounding(3 * n, Norm(z) * std::sqrt(2 * n)));
        }
    }
}

TEST(ChirpZ, MBelowOneMeansN) {
    const Reals x = RandomReals(6, 6);
    const Records z = RandomRecords(6, 6);
    const ComplexRecord w = Polar(1, -0.3);
    for (std::uint32_t method : {0u, 1u}) {
        Records six = RecordOutput(6), none = RecordOutput(6);
        ASSERT_EQ(ZemFunc341(x, 6, kOne, w, method, 6, six), 0);
        ASSERT_EQ(ZemFunc341(x, 6, kOne, w, method, 0, none), 0);
        ExpectNear(six, none, 0);
        ASSERT_EQ(ZemFunc342(z, 6, kOne, w, method, 6, six), 0);
        ASSERT_EQ(ZemFunc342(z, 6, kOne, w, method, -4, none), 0);
        ExpectNear(six, none, 0);
    }
}

TEST(ChirpZ, ChecksInTheStatedOrder) {
    const Reals x(3);
    const Records z(3);
    Records out = RecordOutput(3);
    const ComplexRecord nan{kNaN, 0}, zero{0, -0.0}, infinite{0, kInf}, tiny{1e-170, 1e-170};
    const auto gives = [&](Size n, ComplexRecord a, ComplexRecord w, std::uint32_t method, Size m, Status expected) {
        EXPECT_EQ(ZemFunc341(x, n, a, w, method, m, out), expected);
        EXPECT_EQ(ZemFunc342(z, n, a, w, method, m, out), expected);
    };
    gives(kTooLarge, nan, nan, 2, 3, -20046);
    gives(0, nan, nan, 2, kTooLarge, -20046);
    gives(0, nan, nan, 2, 3, -20003);
    gives(-1, nan, nan, 2, 3, -20003);
    gives(3, nan, nan, 2, 3, -20061);
    gives(3, kOne, kOne, 0xFFFFFFFF, 3, -20061);
    gives(3, nan, zero, 1, 3, -20068);
    gives(3, infinite, zero, 1, 3, -20068);
    gives(3, zero, nan, 1, 3, -20141);  // a is done with before w is looked at
    gives(3, tiny, nan, 1, 3, -20141);  // its squared magnitude is what is zero
    gives(3, kOne, nan, 1, 3, -20068);
    gives(3, kOne, infinite, 0, 3, -20068);
    gives(3, kOne, zero, 1, 3, -20141);
    gives(3, kOne, tiny, 0, 3, -20141);
    EXPECT_TRUE(Untouched(out));
}

TEST(ChirpZ, RefusesAConvolutionOfMorePointsThanACountHolds) {
    const Records z(3);
    Records out = RecordOutput(3);
    EXPECT_EQ(ZemFunc342(z, 3, kOne, kOne, 1, INT32_MAX, out), -20046);
    EXPECT_EQ(ZemFunc342(z, Size{1} << 30, kOne, kOne, 1, 0, out), -20046);
    EXPECT_TRUE(Untouched(out));
}

TEST(ChirpZ, ReportsEveryFailedAllocation) {
    const Reals x = RandomReals(9);
    const Records z = RandomRecords(9);
    Records out = RecordOutput(5);
    for (std::uint32_t method : {0u, 1u}) {
        ExpectEveryAllocationFails([&] { return ZemFunc341(x, 9, kOne, Polar(1, 0.3), method, 5, out); });
        ExpectEveryAllocationFails([&] { return ZemFunc342(z, 9, kOne, Polar(1, 0.3), method, 5, out); });
    }
}

// InverseChirpZ

// Where the nodes are spread evenly over the unit circle the condition of the Vandermonde system is 1, and what remains
// is the weight of each sample: a product of m powers of w, each up to 4 pi eps m away. Off the circle the condition
// comes in as a factor.
double InverseBound(int m, const Records& x) { return 13 * kEpsilon * m * m * Norm(x); }

TEST(InverseChirpZ, RecoversTheInputOfAWellConditionedTransform) {
    // Roots of unity, expanded in the order of their index, would lose all digits long before the 128th: this also
    // shows that they are not.
    for (int n : {1, 2, 3, 4, 7, 8, 16, 31, 128}) {
        const Records x = RandomRecords(n, 7);
        for (ComplexRecord a : {kOne, Polar(1, 0.4)}) {
            const ComplexRecord w = Polar(1, -2 * kPi / n);
            Records X = RecordOutput(n), back = RecordOutput(n);
            ASSERT_EQ(ZemFunc342(x, n, a, w, 0, n, X), 0);
            ASSERT_EQ(ZemFunc351(X, n, a, w, back, n), 0);
            ExpectNear(x, back, InverseBound(n, x));
        }
    }
}

TEST(InverseChirpZ, RecoversTheInputOnASpiral) {
    for (int n : {2, 5, 8, 12}) {
        const Records x = RandomRecords(n, 8);
        const ComplexRecord w = Polar(std::pow(1.1, 1.0 / n), -2 * kPi / n), a = Polar(1.05, 0.1);
        Records X = RecordOutput(n), back = RecordOutput(n);
        ASSERT_EQ(ZemFunc342(x, n, a, w, 0, n, X), 0);
        ASSERT_EQ(ZemFunc351(X, n, a, w, back, n), 0);
        // Radii between 1 / 1.05 and 1.1 / 1.05.
        ExpectNear(x, back, InverseBound(n, x) * std::pow(1.1, n));
    }
}

TEST(InverseChirpZ, ChoosesMOfMorePointsNearTheUnitCircle) {
    // 24 points on a spiral that crosses the unit circle; three turns, so that any 8 neighbours go once around.
    const int n = 24, m = 8;
    const Records x = RandomRecords(m, 9);
    const ComplexRecord w = Polar(1.1, -2 * kPi / m), a = Polar(3, 0);
    Records X = RecordOutput(n), back = RecordOutput(m);
    ASSERT_EQ(ZemFunc342(x, m, a, w, 0, n, X), 0);
    // |1/a| 1.1^k comes nearest to 1 at k = 12 (1.046), against 0.951 at 11; k stops at 13, and the window starts at
    // 13 - 1 - 8 / 2 = 8. What lies outside of 8 to 15 is not read.
    for (int j = 0; j < n; ++j)
        if (j < 8 || j >= 16) X[j] = {kNaN, kNaN};
    ASSERT_EQ(ZemFunc351(X, n, a, w, back, m), 0);
    // The radii of the window span 1.1^8 = 2.1, to the power 7 at most.
    ExpectNear(x, back, InverseBound(m, x) * std::pow(2.1, 7));
}

TEST(InverseChirpZ, HalvesAnOddCountDownwards) {
    // The same spiral and 7 samples: the window starts at 13 - 1 - 3 = 9.
    const int n = 24, m = 7;
    const Records x = RandomRecords(m, 9);
    const ComplexRecord w = Polar(1.1, -2 * kPi / m), a = Polar(3, 0);
    Records X = RecordOutput(n), back = RecordOutput(m);
    ASSERT_EQ(ZemFunc342(x, m, a, w, 0, n, X), 0);
    for (int j = 0; j < n; ++j)
        if (j < 9 || j >= 16) X[j] = {kNaN, kNaN};
    ASSERT_EQ(ZemFunc351(X, n, a, w, back, m), 0);
    ExpectNear(x, back, InverseBound(m, x) * std::pow(2.1, 6));
}

TEST(InverseChirpZ, StartsItsWindowNoLaterThanNMinusM) {
    // The radii fall towards 1 without reaching it: the search ends at k = n, the cap holds.
    const int n = 6, m = 2;
    const Records x = RandomRecords(m, 10);
    const ComplexRecord w = Polar(0.9, 1.3), a = Polar(0.2, 0.5);
    Records X = RecordOutput(n), back = RecordOutput(m);
    ASSERT_EQ(ZemFunc342(x, m, a, w, 0, n, X), 0);
    for (int j = 0; j < n - m; ++j) X[j] = {kNaN, kNaN};
    ASSERT_EQ(ZemFunc351(X, n, a, w, back, m), 0);
    ExpectNear(x, back, InverseBound(m, x) * 5);
}

TEST(InverseChirpZ, KeepsTheFirstWindowWhereTheRadiiOnlyGrow) {
    const int n = 6, m = 3;
    const Records x = RandomRecords(m, 11);
    const ComplexRecord w = Polar(1.2, 2.1), a = kOne;
    Records X = RecordOutput(n), back = RecordOutput(m);
    ASSERT_EQ(ZemFunc342(x, m, a, w, 0, n, X), 0);
    for (int j = m; j < n; ++j) X[j] = {kNaN, kNaN};
    ASSERT_EQ(ZemFunc351(X, n, a, w, back, m), 0);
    ExpectNear(x, back, InverseBound(m, x) * 5);
}

TEST(InverseChirpZ, OverwritesOnlyMRecordsOfXForANullOutput) {
    const int n = 9, m = 4;
    const Records x = RandomRecords(m, 12);
    const ComplexRecord w = Polar(1, -2 * kPi / m + 0.05), a = kOne;
    Records X = RecordOutput(n), expected = RecordOutput(m);
    ASSERT_EQ(ZemFunc342(x, m, a, w, 0, n, X), 0);
    const Records before = X;
    ASSERT_EQ(ZemFunc351(X, n, a, w, expected, m), 0);
    for (int i = 0; i < n; ++i) EXPECT_EQ(X[i].re, before[i].re);
    ASSERT_EQ(ZemFunc351(X, n, a, w, nullptr, m), 0);
    for (int i = 0; i < m; ++i) {
        EXPECT_TRUE(SameBits(X[i].re, expected[i].re));
        EXPECT_TRUE(SameBits(X[i].im, expected[i].im));
    }
    for (int i = m; i < n; ++i) {
        EXPECT_TRUE(SameBits(X[i].re, before[i].re));
        EXPECT_TRUE(SameBits(X[i].im, before[i].im));
    }
}

TEST(InverseChirpZ, MBelowOneMeansN) {
    Records X = RandomRecords(5, 13), same = RecordOutput(5), none = RecordOutput(5);
    const ComplexRecord w = Polar(1, 1.2);
    ASSERT_EQ(ZemFunc351(X, 5, kOne, w, same, 5), 0);
    ASSERT_EQ(ZemFunc351(X, 5, kOne, w, none, 0), 0);
    ExpectNear(same, none, 0);
}

TEST(InverseChirpZ, OfOnePointIsThePoint) {
    Records X{{2, -3}};
    Records out = RecordOutput(1);
    ASSERT_EQ(ZemFunc351(X, 1, Polar(0.5, 0.3), Polar(1, 0.1), out, 1), 0);
    EXPECT_EQ(out[0].re, 2);
    EXPECT_EQ(out[0].im, -3);
}

TEST(InverseChirpZ, ChecksInTheStatedOrder) {
    Records X = RecordOutput(3), out = RecordOutput(3);
    const ComplexRecord nan{0, kNaN}, zero{0, 0}, tiny{1e-170, 0};
    const auto gives = [&](Size n, ComplexRecord a, ComplexRecord w, Size m, Status expected) {
        EXPECT_EQ(ZemFunc351(X, n, a, w, out, m), expected);
    };
    gives(kTooLarge, nan, nan, 4, -20046);
    gives(0, nan, nan, kTooLarge, -20046);
    gives(0, nan, nan, 4, -20003);
    gives(-1, nan, nan, 4, -20003);
    gives(3, nan, zero, 4, -20068);
    gives(3, zero, nan, 4, -20068);  // unlike forward: both are screened before one is compared with zero
    gives(3, zero, kOne, 4, -20141);
    gives(3, kOne, tiny, 4, -20141);
    gives(3, kOne, kOne, 4, -20008);
    EXPECT_TRUE(Untouched(X));
    EXPECT_TRUE(Untouched(out));
}

TEST(InverseChirpZ, RefusesCoincidingNodesAndWritesNothing) {
    Records X = RecordOutput(9), out = RecordOutput(9);
    EXPECT_EQ(ZemFunc351(X, 2, kOne, kOne, out, 2), -20116);
    EXPECT_EQ(ZemFunc351(X, 3, kOne, {-1, 0}, out, 3), -20116);
    EXPECT_EQ(ZemFunc351(X, 9, Polar(2, 1), Polar(1, 2 * kPi / 8), out, 9), -20116);
    EXPECT_EQ(ZemFunc351(X, 9, kOne, Polar(1, 2 * kPi / 5), nullptr, 6), -20116);
    EXPECT_TRUE(Untouched(X));
    EXPECT_TRUE(Untouched(out));
    // As many as there are roots of unity, or fewer, do not coincide.
    Records Y = RandomRecords(8);
    EXPECT_EQ(ZemFunc351(Y, 8, kOne, Polar(1, 2 * kPi / 8), out, 8), 0);
    EXPECT_EQ(ZemFunc351(Y, 2, kOne, {-1, 0}, out, 2), 0);
}

TEST(InverseChirpZ, ReportsEveryFailedAllocation) {
    Records X = RandomRecords(7), out = RecordOutput(5);
    ExpectEveryAllocationFails([&] { return ZemFunc351(X, 7, kOne, Polar(1, 0.9), out, 5); });
}

}  // namespace
}  // namespace quorvan::testing
