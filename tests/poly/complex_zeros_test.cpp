// Zeros of a polynomial by Madsen's search.
#include <algorithm>
#include <complex>
#include <gtest/gtest.h>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {
namespace {

using Complex = std::complex<double>;

// The coefficients of the product of (x - z), the highest power first; the zeros must come in conjugate pairs.
Reals FromZeros(const std::vector<Complex>& zeros) {
    std::vector<std::complex<long double>> c{1};
    for (const Complex& z : zeros) {
        c.push_back(0);
        for (std::size_t k = c.size() - 1; k > 0; --k) c[k] -= std::complex<long double>(z) * c[k - 1];
    }
    Reals out(c.size());
    for (std::size_t k = 0; k < c.size(); ++k) out[k] = double(c[k].real());
    return out;
}

std::vector<Complex> Zeros(const Reals& c) {
    Records z = RecordOutput(c.size() - 1);
    EXPECT_EQ(ZemFunc231(c, int(c.size()), z), 0);
    std::vector<Complex> out;
    for (const ComplexRecord& v : z) out.emplace_back(v.re, v.im);
    return out;
}

// Every true zero is met once, to the relative distance.
void ExpectZeros(std::vector<Complex> found, const std::vector<Complex>& truth, double relative) {
    ASSERT_EQ(found.size(), truth.size());
    for (const Complex& zero : truth) {
        const auto nearest = std::min_element(found.begin(), found.end(), [&](const Complex& a, const Complex& b) {
            return std::abs(a - zero) < std::abs(b - zero);
        });
        EXPECT_LE(std::abs(*nearest - zero), relative * std::abs(zero)) << zero << " by " << *nearest;
        found.erase(nearest);
    }
}

TEST(PolyZeros, OfAQuadraticStartWithTheLargerCombination) {
    // b = -3 - 1, the larger one: the zeros are -b / 2 = 2, then -2·2 / b = 1.
    const std::vector<Complex> z = Zeros({1, -3, 2});
    EXPECT_EQ(z[0], Complex(2));
    EXPECT_EQ(z[1], Complex(1));
}

TEST(PolyZeros, OfAQuadraticWithEqualCombinationsTakeThePlusSign) {
    // x² + 4: the root of the discriminant is 4i, and |0 + 4i| = |0 - 4i|: b = 4i, -b / 2 = -2i first.
    const std::vector<Complex> z = Zeros({1, 0, 4});
    EXPECT_NEAR(std::abs(z[0] - Complex(0, -2)), 0, 4 * kEpsilon);
    EXPECT_NEAR(std::abs(z[1] - Complex(0, 2)), 0, 4 * kEpsilon);
}

TEST(PolyZeros, OfALine) { EXPECT_EQ(Zeros({2, -6})[0], Complex(3)); }

TEST(PolyZeros, OfXSquaredAreTwoZeros) {
    const std::vector<Complex> z = Zeros({1, 0, 0});
    EXPECT_EQ(z[0], Complex(0));
    EXPECT_EQ(z[1], Complex(0));
}

TEST(PolyZeros, AtZeroComeFirst) {
    const std::vector<Complex> z = Zeros({1, -6, 11, -6, 0, 0});  // x²(x - 1)(x - 2)(x - 3)
    EXPECT_EQ(z[0], Complex(0));
    EXPECT_EQ(z[1], Complex(0));
    ExpectZeros({z.begin() + 2, z.end()}, {1, 2, 3}, 1e-12);
}

TEST(PolyZeros, HighZeroCoefficientsLowerTheDegreeAndTheRestStaysUnwritten) {
    const Reals c{0, 0, 1, -5};
    Records z = RecordOutput(3);
    EXPECT_EQ(ZemFunc231(c, 4, z), 0);
    EXPECT_EQ(z[0].re, 5);
    EXPECT_EQ(z[1].re, kUnwritten);
    EXPECT_EQ(z[2].re, kUnwritten);
}

TEST(PolyZeros, OfDegreeTenWithKnownZerosAllComeBack) {
    const std::vector<Complex> truth{{1, 1},    {1, -1},   {-2, 0.5},  {-2, -0.5}, 3,
                                     {-0.5, 0}, {0.25, 2}, {0.25, -2}, {-1.5, 3},  {-1.5, -3}};
    // The conditions of these zeros are below 1e4, and the last coefficient was rounded once.
    ExpectZeros(Zeros(FromZeros(truth)), truth, 1e-10);
}

TEST(PolyZeros, OfTheUnitCircle) {
    for (int n : {5, 12, 33, 64}) {
        Reals c(n + 1);
        c[0] = 1;
        c[n] = -1;
        std::vector<Complex> truth;
        for (int k = 0; k < n; ++k) truth.push_back(std::polar(1.0, kTwoPi * k / n));
        ExpectZeros(Zeros(c), truth, 1e-9);
    }
}

TEST(PolyZeros, SatisfyThePolynomialToItsRounding) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const Reals c = RandomReals(4 + seed % 14, seed);
        double largest = 0;
        for (const Complex& z : Zeros(c)) {
            Complex p = 0;
            double size = 0;
            for (double v : c) {
                p = p * z + v;
                size = size * std::abs(z) + std::abs(v);
            }
            largest = std::max(largest, std::abs(p) / size);
        }
        // The search stops at a relative step of 1e-10; deflation carries that into the later zeros.
        EXPECT_LT(largest, 1e-9) << "seed " << seed;
    }
}

TEST(PolyZeros, ComeWithTheSumAndTheProductOfTheCoefficients) {
    for (unsigned seed = 1; seed <= 50; ++seed) {
        Reals c = RandomReals(9, seed);
        c[0] = 1;
        Complex sum = 0, product = 1;
        for (const Complex& z : Zeros(c)) {
            sum += z;
            product *= z;
        }
        EXPECT_NEAR(std::abs(sum + c[1]), 0, 1e-8) << seed;
        EXPECT_NEAR(std::abs(product - c[8]), 0, 1e-8) << seed;
    }
}

TEST(PolyZeros, OfAMultipleZeroStandInARing) {
    // The finder has no notion of multiplicity: rounding to 1e-10 spreads a fourfold zero by about its fourth root.
    for (const Complex& z : Zeros(FromZeros({1, 1, 1, 1}))) EXPECT_NEAR(std::abs(z - 1.0), 0, 5e-2);
}

TEST(PolyZeros, RefusesASizeBelowOne) {
    Records z = RecordOutput(2);
    EXPECT_EQ(ZemFunc231(nullptr, 0, z), -20003);
    EXPECT_EQ(ZemFunc231(nullptr, -1, z), -20003);
    EXPECT_TRUE(Untouched(z));
}

TEST(PolyZeros, RefusesAConstant) {
    Records z = RecordOutput(2);
    EXPECT_EQ(ZemFunc231(Reals{5}, 1, z), -20063);
    EXPECT_EQ(ZemFunc231(Reals{0, 5}, 2, z), -20063);
    EXPECT_EQ(ZemFunc231(Reals{0, 0, 0}, 3, z), -20063);
    EXPECT_TRUE(Untouched(z));
}

TEST(PolyZeros, RefusesNaN) {
    Records z = RecordOutput(3);
    for (int bad = 0; bad < 4; ++bad) {
        Reals c{1, 2, 3, 4};
        c[bad] = kNaN;
        EXPECT_EQ(ZemFunc231(c, 4, z), -20063);
    }
    EXPECT_TRUE(Untouched(z));
}

TEST(PolyZeros, OfInfiniteCoefficientsIsNotFeasible) {
    Records z = RecordOutput(4);
    EXPECT_EQ(ZemFunc231(Reals{1, kInf, 3, 4, 5}, 5, z), -20116);
    EXPECT_TRUE(Untouched(z));
}

TEST(PolyZeros, AfterAnErrorTheZerosFoundSoFarStand) {
    Records z = RecordOutput(5);
    EXPECT_EQ(ZemFunc231(Reals{1, kInf, 3, 4, 5, 0}, 6, z), -20116);
    EXPECT_EQ(z[0].re, 0);
    EXPECT_EQ(z[1].re, kUnwritten);
}

TEST(PolyZeros, EndsForEveryPolynomial) {
    // Coefficients over the whole range of doubles, zeros and infinities among them: each call must come back.
    std::mt19937_64 engine(7);
    for (int round = 0; round < 3000; ++round) {
        Reals c(2 + round % 9);
        for (double& v : c)
            v = std::bit_cast<double>(engine() & ~(round % 3 ? std::uint64_t{0} : std::uint64_t{1} << 62));
        Records z(c.size() - 1);
        const Status status = ZemFunc231(c, int(c.size()), z);
        EXPECT_TRUE(status == 0 || status == -20062 || status == -20063 || status == -20116) << status;
    }
}

TEST(PolyZeros, EveryAllocationFails) {
    const Reals c{1, 2, 3, 4, 5};
    Records z(4);
    ExpectEveryAllocationFails([&] { return ZemFunc231(c, 5, z); });
}

}  // namespace
}  // namespace quorvan::testing
