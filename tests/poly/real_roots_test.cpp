// Roots of real polynomials, with their multiplicities.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <complex>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Complex = std::complex<double>;

// The coefficients in ascending powers of the product of (x - z).
Reals FromRoots(const std::vector<Complex>& roots) {
    std::vector<std::complex<long double>> c{1};
    for (const Complex& z : roots) {
        c.insert(c.begin(), 0);
        for (std::size_t k = 0; k + 1 < c.size(); ++k) c[k] -= std::complex<long double>(z) * c[k + 1];
    }
    Reals out(c.size());
    for (std::size_t k = 0; k < c.size(); ++k) out[k] = double(c[k].real());
    return out;
}

std::vector<Complex> Roots(const Reals& c) {
    Records roots = RecordOutput(c.size() - 1);
    EXPECT_EQ(ZemFunc299(c, std::uint32_t(c.size()), roots), 0);
    std::vector<Complex> out;
    for (const ComplexRecord& v : roots) out.emplace_back(v.re, v.im);
    return out;
}

void ExpectRoots(const Reals& c, std::vector<Complex> truth, double tolerance) {
    for (const Complex& found : Roots(c)) {
        const auto nearest = std::min_element(truth.begin(), truth.end(), [&](const Complex& a, const Complex& b) {
            return std::abs(a - found) < std::abs(b - found);
        });
        ASSERT_NE(nearest, truth.end());
        EXPECT_LE(std::abs(*nearest - found), tolerance * (1 + std::abs(found))) << found;
        truth.erase(nearest);
    }
    EXPECT_TRUE(truth.empty());
}

TEST(PolyRootsReal, OfZerosAloneHasNoPolynomial) {
    Records roots = RecordOutput(2);
    EXPECT_EQ(ZemFunc299(Reals{0, 0, 0}, 3, roots), -20111);
    EXPECT_TRUE(Untouched(roots));
}

TEST(PolyRootsReal, OfAConstantHasNoRoots) {
    Records roots = RecordOutput(1);
    EXPECT_EQ(ZemFunc299(Reals{5, 0}, 2, roots), -20021);
    EXPECT_EQ(ZemFunc299(Reals{5}, 1, roots), -20021);
    EXPECT_TRUE(Untouched(roots));
}

TEST(PolyRootsReal, OfXPlusOneSquaredIsMinusOneTwice) { EXPECT_EQ(Roots({1, 2, 1}), (std::vector<Complex>{-1, -1})); }

TEST(PolyRootsReal, OfXSquaredIsZeroTwice) { EXPECT_EQ(Roots({0, 0, 1}), (std::vector<Complex>{0, 0})); }

TEST(PolyRootsReal, OfALine) { EXPECT_EQ(Roots({6, -2})[0], Complex(3)); }

TEST(PolyRootsReal, OfAThreefoldOneKeepsTenDigits) {
    for (const Complex& root : Roots({-1, 3, -3, 1})) EXPECT_LT(std::abs(root - 1.0), 1e-10);
}

TEST(PolyRootsReal, PutTheZeroRootLast) {
    const std::vector<Complex> roots = Roots({0, 1, 0, 1});
    EXPECT_EQ(roots, (std::vector<Complex>{{0, 1}, {0, -1}, {0, 0}}));
    const std::vector<Complex> more = Roots({0, 0, -6, 11, -6, 1});
    EXPECT_EQ(more[3], Complex(0));
    EXPECT_EQ(more[4], Complex(0));
    EXPECT_NE(more[2], Complex(0));
}

TEST(PolyRootsReal, OfAQuadraticAvoidCancellation) {
    // x² - 1e8 x + 1: the small root is 2C / t.
    const std::vector<Complex> roots = Roots({1, -1e8, 1});
    EXPECT_NEAR(roots[0].real(), 1e8, 1e-7);
    EXPECT_NEAR(roots[1].real(), 1e-8, 1e-23);
}

TEST(PolyRootsReal, OfAPairTheRootWithTheSignOfTheLeadingCoefficientStandsFirst) {
    EXPECT_EQ(Roots({5, -2, 2}), (std::vector<Complex>{{0.5, 1.5}, {0.5, -1.5}}));
    EXPECT_EQ(Roots({-5, 2, -2}), (std::vector<Complex>{{0.5, -1.5}, {0.5, 1.5}}));
}

TEST(PolyRootsReal, HighZeroCoefficientsLowerTheDegree) {
    Records roots = RecordOutput(3);
    EXPECT_EQ(ZemFunc299(Reals{-5, 1, 0, 0}, 4, roots), 0);
    EXPECT_EQ(roots[0].re, 5);
    EXPECT_EQ(roots[1].re, kUnwritten);
    EXPECT_EQ(roots[2].re, kUnwritten);
}

TEST(PolyRootsReal, SimpleRootsAreThoseOfTheCompanionMatrix) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const Reals c = RandomReals(5 + seed % 10, seed);
        for (const Complex& z : Roots(c)) {
            Complex p = 0;
            double size = 0;
            for (std::size_t k = c.size(); k-- > 0;) {
                p = p * z + c[k];
                size = size * std::abs(z) + std::fabs(c[k]);
            }
            EXPECT_LE(std::abs(p), 1e-12 * size) << seed;
        }
    }
}

TEST(PolyRootsReal, KeepMultipleRootsTogether) {
    ExpectRoots(FromRoots({2, 2, 2, -1, -1, 0.5}), {2, 2, 2, -1, -1, 0.5}, 1e-10);
    const std::vector<Complex> pairs{{1, 2}, {1, -2}, {1, 2}, {1, -2}, {1, 2}, {1, -2}, -3};
    ExpectRoots(FromRoots(pairs), pairs, 1e-9);
    std::vector<Complex> high(9, Complex(0.75));
    high.insert(high.end(), 4, Complex(-1.25));
    ExpectRoots(FromRoots(high), high, 1e-8);
}

TEST(PolyRootsReal, ScalesRootsFarFromOne) {
    for (double scale : {1e-20, 1e-3, 1e6, 1e30}) {
        const std::vector<Complex> roots{2 * scale, 2 * scale, 3 * scale, -scale};
        Records found = RecordOutput(4);
        ASSERT_EQ(ZemFunc299(FromRoots(roots), 5, found), 0);
        double sum = 0;
        for (const ComplexRecord& z : found) sum += z.re / scale;
        EXPECT_NEAR(sum, 6, 1e-9);
        EXPECT_EQ(std::count_if(found.begin(), found.end(),
                                [&](const ComplexRecord& z) { return std::fabs(z.re / scale - 2) < 1e-9; }),
                  2);
    }
}

TEST(PolyRootsReal, RefuseCoefficientsThatDoNotPassTheScreen) {
    Records roots = RecordOutput(4);
    for (double bad : {kNaN, kInf, -kInf, DBL_MAX, -DBL_MAX}) {
        EXPECT_EQ(ZemFunc299(Reals{1, 2, bad, 3, 1}, 5, roots), -20063);
        EXPECT_EQ(ZemFunc299(Reals{bad, 0}, 2, roots), -20063) << "before the constant is seen";
    }
    EXPECT_TRUE(Untouched(roots));
}

TEST(PolyRootsReal, RefuseASizeBelowOne) {
    EXPECT_EQ(ZemFunc299(nullptr, 0, nullptr), -20003);
    EXPECT_EQ(ZemFunc299(nullptr, 0x80000000u, nullptr), -20003) << "beyond the counts";
}

TEST(PolyRootsReal, OfCoefficientsWhoseQuotientsOverflowAreRefusedByTheScreenOfTheMatrix) {
    const Reals c{1e300, 1, 1, 1e-300};
    Records roots = RecordOutput(3);
    EXPECT_EQ(ZemFunc299(c, 4, roots), -20068);
    EXPECT_TRUE(Untouched(roots));
}

TEST(PolyRootsReal, EndForEveryPolynomial) {
    std::mt19937_64 engine(11);
    for (int round = 0; round < 400; ++round) {
        Reals c(2 + round % 8);
        for (double& v : c) v = std::bit_cast<double>(engine() & ~(std::uint64_t{1} << 62));
        Records roots(c.size() - 1);
        const Status status = ZemFunc299(c, std::uint32_t(c.size()), roots);
        EXPECT_TRUE(status == 0 || status == -20062 || status == -20063 || status == -20068) << status;
    }
}

TEST(PolyRootsReal, EveryAllocationFails) {
    const Reals c = FromRoots({2, 2, -1, 0.5, 0.5});
    Records roots(5);
    ExpectEveryAllocationFails([&] { return ZemFunc299(c, 6, roots); });
}

}  // namespace
}  // namespace quorvan::testing
