// Roots of complex polynomials, with their multiplicities.
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

struct Root {
    Complex at;
    int multiplicity;
};

Records FromRoots(const std::vector<Root>& roots) {
    std::vector<std::complex<long double>> c{1};
    for (const Root& root : roots)
        for (int i = 0; i < root.multiplicity; ++i) {
            c.insert(c.begin(), 0);
            for (std::size_t k = 0; k + 1 < c.size(); ++k) c[k] -= std::complex<long double>(root.at) * c[k + 1];
        }
    Records out(c.size());
    for (std::size_t k = 0; k < c.size(); ++k) out[k] = {double(c[k].real()), double(c[k].imag())};
    return out;
}

// Each root comes back with its multiplicity, as so many equal values.
void ExpectRoots(const std::vector<Root>& truth, double tolerance) {
    const Records c = FromRoots(truth);
    Records roots = RecordOutput(c.size() - 1);
    ASSERT_EQ(ZemFunc300(c, std::uint32_t(c.size()), roots), 0);
    std::size_t found = 0;
    for (const Root& root : truth) {
        std::vector<ComplexRecord> near;
        for (const ComplexRecord& z : roots)
            if (std::abs(Complex(z.re, z.im) - root.at) <= tolerance * (1 + std::abs(root.at))) near.push_back(z);
        EXPECT_EQ(int(near.size()), root.multiplicity) << root.at;
        for (const ComplexRecord& z : near) EXPECT_TRUE(z.re == near[0].re && z.im == near[0].im);
        found += near.size();
    }
    EXPECT_EQ(found, roots.size());
}

// Roots with their multiplicities held fixed are conditioned like simple roots: the bounds below are the rounding of
// the coefficients times that condition, not the 1e-16^(1/m) of a cluster.

TEST(PolyRootsMultiple, KeepAFourfoldAndAThreefoldRoot) { ExpectRoots({{1, 4}, {Complex(0, -2), 3}}, 1e-13); }

TEST(PolyRootsMultiple, KeepHighMultiplicities) {
    ExpectRoots({{1, 20}}, 1e-13);
    ExpectRoots({{1, 8}, {2, 6}, {3, 4}, {4, 2}}, 1e-9);
    ExpectRoots({{Complex(0.5, 0.5), 10}, {Complex(-1, 0.25), 7}, {Complex(0, -1), 3}, {2, 1}}, 1e-10);
}

TEST(PolyRootsMultiple, TellCloseRootsApart) { ExpectRoots({{0.9, 6}, {1.1, 4}, {Complex(0, 0.5), 2}}, 1e-8); }

TEST(PolyRootsMultiple, KeepWilkinsonsSimpleRootsSimple) {
    std::vector<Root> roots;
    for (int k = 1; k <= 10; ++k) roots.push_back({double(k), 1});
    // The condition of the roots of degree ten is some 1e7 (Wilkinson 1963).
    ExpectRoots(roots, 1e-8);
}

TEST(PolyRootsMultiple, KeepAWilkinsonClusterOfDoubleRoots) {
    ExpectRoots({{1, 2}, {2, 2}, {3, 2}, {4, 2}, {5, 2}}, 1e-8);
}

TEST(PolyRootsMultiple, KeepRandomProductsOfRepeatedRoots) {
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> angle(0, kTwoPi), radius(0.5, 1.5);
    for (int round = 0; round < 40; ++round) {
        std::vector<Root> roots;
        while (roots.size() < 4) {
            const Complex z = std::polar(radius(engine), angle(engine));
            const bool apart = std::all_of(roots.begin(), roots.end(),
                                           [&](const Root& other) { return std::abs(other.at - z) > 0.6; });
            if (apart) roots.push_back({z, 1 + int(engine() % 4)});
        }
        ExpectRoots(roots, 1e-9);
    }
}

// A product of so many factors, taken around the circle and not across it, loses six digits: the test's own goes
// across.
TEST(PolyRootsMultiple, KeepManySimpleRootsToTheirRounding) {
    std::vector<Root> roots;
    for (int i = 0; i < 20; ++i) {
        const int k = i * 7 % 20;
        const Complex z = std::polar(1 + k / 100.0, kTwoPi * (2 * k + 1) / 80);
        roots.push_back({z, 1});
        roots.push_back({std::conj(z), 1});
    }
    ExpectRoots(roots, 1e-14);
}

TEST(PolyRootsMultiple, PutTheRootZeroLast) {
    // z³(z - 1)²(z + i)²
    Records c = FromRoots({{1, 2}, {Complex(0, -1), 2}});
    Records shifted(8), roots = RecordOutput(7);
    for (int k = 0; k < 5; ++k) shifted[k + 3] = c[k];
    ASSERT_EQ(ZemFunc300(shifted, 8, roots), 0);
    for (int k = 4; k < 7; ++k) EXPECT_TRUE(roots[k].re == 0 && roots[k].im == 0);
    EXPECT_GT(std::hypot(roots[3].re, roots[3].im), 0.5);
}

TEST(PolyRootsMultiple, OfZeroRootsAloneIsThatRoot) {
    Records roots = RecordOutput(3);
    EXPECT_EQ(ZemFunc300(Records{{0, 0}, {0, 0}, {0, 0}, {2, 1}}, 4, roots), 0);
    for (const ComplexRecord& z : roots) EXPECT_TRUE(z.re == 0 && z.im == 0);
}

TEST(PolyRootsMultiple, OfALineAndOfAQuadratic) {
    Records roots = RecordOutput(2);
    EXPECT_EQ(ZemFunc300(Records{{0, -2}, {1, 0}}, 2, roots), 0);
    EXPECT_TRUE(roots[0].re == 0 && roots[0].im == 2);
    // (z - i)(z - 3): b = -3 - i, d = sqrt((3 + i)² - 12i) = ±(3 - i); the larger of b ± d gives the root 3 first.
    EXPECT_EQ(ZemFunc300(Records{{0, 3}, {-3, -1}, {1, 0}}, 3, roots), 0);
    EXPECT_NEAR(roots[0].re, 3, 1e-15);
    EXPECT_NEAR(roots[0].im, 0, 1e-15);
    EXPECT_NEAR(roots[1].re, 0, 1e-15);
    EXPECT_NEAR(roots[1].im, 1, 1e-15);
    EXPECT_EQ(ZemFunc300(Records{{1, 0}, {2, 0}, {1, 0}}, 3, roots), 0);
    EXPECT_TRUE(roots[0].re == -1 && roots[1].re == -1);
}

TEST(PolyRootsMultiple, StatusesStandInOrder) {
    Records roots = RecordOutput(3);
    EXPECT_EQ(ZemFunc300(nullptr, 0, roots), -20003);
    EXPECT_EQ(ZemFunc300(nullptr, 0x80000000u, roots), -20003);
    for (double bad : {kNaN, kInf, DBL_MAX}) {
        EXPECT_EQ(ZemFunc300(Records{{bad, 0}}, 1, roots), -20063);
        EXPECT_EQ(ZemFunc300(Records{{0, 0}, {0, bad}}, 2, roots), -20063);
    }
    EXPECT_EQ(ZemFunc300(Records{{0, 0}, {0, 0}}, 2, roots), -20111);
    EXPECT_EQ(ZemFunc300(Records{{0, 0}}, 1, roots), -20111);
    EXPECT_EQ(ZemFunc300(Records{{3, 1}, {0, 0}}, 2, roots), -20021);
    EXPECT_TRUE(Untouched(roots));
}

TEST(PolyRootsMultiple, OfCoefficientsWhoseQuotientsOverflowAreRefusedByTheScreenOfTheMatrix) {
    const Records c{{1e300, 0}, {1, 0}, {1, 0}, {1e-300, 0}};
    Records roots = RecordOutput(3);
    EXPECT_EQ(ZemFunc300(c, 4, roots), -20068);
    EXPECT_TRUE(Untouched(roots));
}

TEST(PolyRootsMultiple, EndForEveryPolynomial) {
    std::mt19937_64 engine(13);
    for (int round = 0; round < 300; ++round) {
        Records c(2 + round % 7);
        for (ComplexRecord& v : c)
            v = {std::bit_cast<double>(engine() & ~(std::uint64_t{1} << 62)),
                 std::bit_cast<double>(engine() & ~(std::uint64_t{1} << 62))};
        Records roots(c.size() - 1);
        const Status status = ZemFunc300(c, std::uint32_t(c.size()), roots);
        EXPECT_TRUE(status == 0 || status == -20062 || status == -20063 || status == -20068) << status;
    }
}

TEST(PolyRootsMultiple, EveryAllocationFails) {
    const Records c = FromRoots({{1, 2}, {Complex(0, -2), 2}});
    Records roots(4);
    ExpectEveryAllocationFails([&] { return ZemFunc300(c, 5, roots); });
}

}  // namespace
}  // namespace quorvan::testing
