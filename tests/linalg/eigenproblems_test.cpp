#include <algorithm>
#include <numeric>

#include "linalg/schur.h"
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

// All results of MatQz.
template <class T>
struct Qz {
    Guarded<T> s, t, q, z, beta;
    Records alpha, right, left;

    explicit Qz(int n)
        : s(Unwritten<T>(n * n)),
          t(s),
          q(s),
          z(s),
          beta(Unwritten<T>(n)),
          alpha(RecordOutput(n)),
          right(RecordOutput(n * n)),
          left(right) {}

    Status operator()(const T* a, const T* b, Size n, std::uint32_t sort) {
        return QzForm<T>(a, b, n, sort, s, t, q, z, alpha, beta, right, left);
    }
    bool untouched() const {
        return Untouched(s) && Untouched(t) && Untouched(q) && Untouched(z) && Untouched(beta) && Untouched(alpha) &&
               Untouched(right) && Untouched(left);
    }
};

template <class T>
Guarded<T> Diagonal(std::initializer_list<double> values) {
    Guarded<T> a(values.size() * values.size());
    std::size_t i = 0;
    for (double v : values) {
        a[i * (values.size() + 1)] = Element<T>(v);
        ++i;
    }
    return a;
}

// |A·v - lambda·v| at its largest, over all eigenvectors.
template <class T>
double Residual(const Guarded<T>& a, const Records& values, const Records& vectors, int n) {
    Records scaled(n * n);
    for (int i = 0; i < n * n; ++i) {
        const Long w = Wide(vectors[i]) * Wide(values[i % n]);
        scaled[i] = {static_cast<double>(w.real()), static_cast<double>(w.imag())};
    }
    return Misfit(a, vectors, scaled, n, n, n);
}

// Eigenvalues

TEST(MatEigenGeneral, RefusesSizesFlagsAndContentInThisOrder) {
    Reals a(9, kNaN);
    Records values = RecordOutput(3), vectors = RecordOutput(9);
    EXPECT_EQ(ZemFunc201(a, kTooLarge, 2, values, vectors), -20046);
    for (Size n : {Size{0}, Size{-1}}) EXPECT_EQ(ZemFunc201(a, n, 2, values, vectors), -20003);
    for (std::uint32_t want : {2u, 0xFFFFFFFFu}) EXPECT_EQ(ZemFunc201(a, 3, want, values, vectors), -20061);
    EXPECT_EQ(ZemFunc201(a, kTooManyElements, 0, values, vectors), -20046);
    EXPECT_EQ(ZemFunc201(a, 3, 1, values, vectors), -20068);
    EXPECT_TRUE(Untouched(values) && Untouched(vectors));
    ExpectScreened<double>(Sound<double>(3), [&](Reals& m) { return ZemFunc201(m, 3, 1, values, vectors); });
}

TEST(MatEigenGeneral, OfARotationIsAConjugatePairWithConjugateVectors) {
    const Reals a{0.6, -0.8, 0.8, 0.6};
    Records values = RecordOutput(2), vectors = RecordOutput(4);
    ASSERT_EQ(ZemFunc201(a, 2, 1, values, vectors), 0);
    EXPECT_NEAR(values[0].re, 0.6, Bound(2));
    EXPECT_NEAR(values[0].im, 0.8, Bound(2));
    EXPECT_EQ(values[1].re, values[0].re);
    EXPECT_EQ(values[1].im, -values[0].im);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(vectors[2 * i].re, vectors[2 * i + 1].re);
        EXPECT_EQ(vectors[2 * i].im, -vectors[2 * i + 1].im);
    }
    EXPECT_LE(Residual(a, values, vectors, 2), Bound(2));
}

TEST(MatEigenGeneral, VectorsAreTheRightOnesOfTheCallersMatrix) {
    // The right vectors of a triangle differ from its left ones.
    const Reals a{1, 5, 0, 3};
    Records values = RecordOutput(2), vectors = RecordOutput(4);
    ASSERT_EQ(ZemFunc201(a, 2, 1, values, vectors), 0);
    EXPECT_EQ(values[0].re, 1);
    EXPECT_EQ(values[1].re, 3);
    EXPECT_EQ(vectors[2].re, 0) << "the first vector is (1, 0)";
    EXPECT_NEAR(vectors[1].re / vectors[3].re, 2.5, Bound(2, 3));
    for (const ComplexRecord& v : vectors) EXPECT_EQ(v.im, 0);
}

TEST(MatEigenGeneral, WithoutVectorsTheirArrayMayBeNullAndStaysAsItIs) {
    const Reals a = Sound<double>(4);
    Records values = RecordOutput(4), vectors = RecordOutput(16);
    EXPECT_EQ(ZemFunc201(a, 4, 0, values, nullptr), 0);
    EXPECT_EQ(ZemFunc201(a, 4, 0, values, vectors), 0);
    EXPECT_TRUE(Untouched(vectors));
    EXPECT_FALSE(Untouched(values));
}

TEST(MatEigenGeneral, EveryAllocationMayFail) {
    const Reals a = Sound<double>(4);
    Records values(4), vectors(16);
    for (std::uint32_t want : {0u, 1u})
        ExpectEveryAllocationFails([&] { return ZemFunc201(a, 4, want, values, vectors); });
}

TEST(MatEigenSymmetric, RefusesSizesFlagsAndContentInThisOrder) {
    Reals a(9, kNaN), values = Output(3), vectors = Output(9);
    EXPECT_EQ(ZemFunc202(a, kTooLarge, 2, values, vectors), -20046);
    for (Size n : {Size{0}, Size{-1}}) EXPECT_EQ(ZemFunc202(a, n, 2, values, vectors), -20003);
    for (std::uint32_t want : {2u, 0xFFFFFFFFu}) EXPECT_EQ(ZemFunc202(a, 3, want, values, vectors), -20061);
    EXPECT_EQ(ZemFunc202(a, kTooManyElements, 0, values, vectors), -20046);
    EXPECT_EQ(ZemFunc202(a, 3, 1, values, vectors), -20068);
    EXPECT_TRUE(Untouched(values) && Untouched(vectors));
    ExpectScreened<double>(Sound<double>(3), [&](Reals& m) { return ZemFunc202(m, 3, 1, values, vectors); });
}

TEST(MatEigenSymmetric, ReadsTheUpperTriangleAloneAndTestsNoSymmetry) {
    const Reals symmetric{2, 1, 1, 2};
    const Reals crooked{2, 1, -77, 2};
    Reals first = Output(2), second = Output(2), vectors = Output(4), others = Output(4);
    ASSERT_EQ(ZemFunc202(symmetric, 2, 1, first, vectors), 0);
    ASSERT_EQ(ZemFunc202(crooked, 2, 1, second, others), 0);
    EXPECT_TRUE(SameElements(first, second) && SameElements(vectors, others));
    EXPECT_NEAR(first[0], 1, Bound(2, 3));
    EXPECT_NEAR(first[1], 3, Bound(2, 3));
    EXPECT_NEAR(vectors[0], -vectors[2], Bound(2)) << "one vector a column: (1, -1) belongs to 1";
    EXPECT_NEAR(vectors[1], vectors[3], Bound(2));
}

TEST(MatEigenSymmetric, TakesTheInputAsOutputAndEveryAllocationMayFail) {
    const Reals a = Definite<double>(5);
    Reals values = Output(5), vectors = Output(25), again = Output(5), in = a;
    ASSERT_EQ(ZemFunc202(a, 5, 1, values, vectors), 0);
    ASSERT_EQ(ZemFunc202(in, 5, 1, again, in), 0);
    EXPECT_TRUE(SameElements(in, vectors) && SameElements(again, values));
    EXPECT_EQ(ZemFunc202(a, 5, 0, again, nullptr), 0);
    for (std::uint32_t want : {0u, 1u})
        ExpectEveryAllocationFails([&] { return ZemFunc202(a, 5, want, values, vectors); });
}

TEST(MatEigenComplex, RefusesSizesKindsFlagsAndContentInThisOrder) {
    Records a(9, {0, kNaN}), values = RecordOutput(3), vectors = RecordOutput(9);
    EXPECT_EQ(ZemFunc211(a, kTooLarge, 2, 2, values, vectors), -20046);
    for (Size n : {Size{0}, Size{-1}}) EXPECT_EQ(ZemFunc211(a, n, 2, 2, values, vectors), -20003);
    for (std::int32_t kind : {2, -1}) EXPECT_EQ(ZemFunc211(a, 3, kind, 0, values, vectors), -20061);
    for (std::int32_t kind : {0, 1}) {
        EXPECT_EQ(ZemFunc211(a, 3, kind, 2, values, vectors), -20061);
        EXPECT_EQ(ZemFunc211(a, kTooManyElements, kind, 0, values, vectors), -20046);
        EXPECT_EQ(ZemFunc211(a, 3, kind, 1, values, vectors), -20068);
    }
    EXPECT_TRUE(Untouched(values) && Untouched(vectors));
    for (std::int32_t kind : {0, 1})
        ExpectScreened<ComplexRecord>(Sound<ComplexRecord>(3),
                                      [&](Records& m) { return ZemFunc211(m, 3, kind, 1, values, vectors); });
}

TEST(MatEigenComplex, HermitianReadsTheUpperTriangleAndGivesRealPairsAscending) {
    // Eigenvalues 1 and 3; the vector of 3 is (i, 1) or (1, -i).
    Records a{{2, 0}, {0, 1}, {77, 77}, {2, 0}}, values = RecordOutput(2), vectors = RecordOutput(4);
    ASSERT_EQ(ZemFunc211(a, 2, 1, 1, values, vectors), 0);
    EXPECT_NEAR(values[0].re, 1, Bound(2, 3));
    EXPECT_NEAR(values[1].re, 3, Bound(2, 3));
    EXPECT_EQ(values[0].im, 0);
    EXPECT_EQ(values[1].im, 0);
    a[2] = {0, -1};
    EXPECT_LE(Residual(a, values, vectors, 2), Bound(2, 3));
}

TEST(MatEigenComplex, TakesTheInputAsOutputAndEveryAllocationMayFail) {
    const Records a = Definite<ComplexRecord>(5);
    for (std::int32_t kind : {0, 1}) {
        Records values = RecordOutput(5), vectors = RecordOutput(25), again = RecordOutput(5), in = a;
        ASSERT_EQ(ZemFunc211(a, 5, kind, 1, values, vectors), 0);
        ASSERT_EQ(ZemFunc211(in, 5, kind, 1, again, in), 0);
        EXPECT_TRUE(SameElements(in, vectors) && SameElements(again, values));
        for (std::uint32_t want : {0u, 1u})
            ExpectEveryAllocationFails([&] { return ZemFunc211(a, 5, kind, want, values, vectors); });
    }
}

// Schur forms

template <class T>
class SchurOf : public ::testing::Test {};
TYPED_TEST_SUITE(SchurOf, ElementTypes, ElementNames);

TYPED_TEST(SchurOf, ASelectorAboveFourIsRefusedBeforeAnySizeButNotBeforeNarrowing) {
    using T = TypeParam;
    Guarded<T> a(9, Element<T>(kNaN)), q = Unwritten<T>(9), t = Unwritten<T>(9);
    Records values = RecordOutput(3);
    for (Size n : {Size{-1}, Size{0}, Size{3}, kTooManyElements})
        for (std::uint32_t sort : {5u, 0xFFFFFFFFu}) EXPECT_EQ(Schur<T>(a, n, sort, q, t, values), -20061);
    EXPECT_EQ(Schur<T>(a, kTooLarge, 5, q, t, values), -20046);
    for (std::uint32_t sort : {0u, 4u}) {
        EXPECT_EQ(Schur<T>(a, 0, sort, q, t, values), -20003);
        EXPECT_EQ(Schur<T>(a, -1, sort, q, t, values), -20003);
        EXPECT_EQ(Schur<T>(a, kTooManyElements, sort, q, t, values), -20046);
        EXPECT_EQ(Schur<T>(a, 3, sort, q, t, values), -20068);
    }
    EXPECT_TRUE(Untouched(q) && Untouched(t) && Untouched(values));
    ExpectScreened<T>(Sound<T>(3), [&](Guarded<T>& m) { return Schur<T>(m, 3, 1, q, t, values); });
}

double Key(ComplexRecord value, std::uint32_t sort) {
    return sort <= 2 ? value.re : static_cast<double>(std::abs(Wide(value)));
}

// What a stable sort makes of the eigenvalues, pair by pair in the real form.
std::vector<ComplexRecord> StablySorted(const Records& values, std::uint32_t sort, bool pairs) {
    std::vector<std::vector<ComplexRecord>> blocks;
    for (std::size_t i = 0; i < values.size(); ++i) {
        blocks.push_back({values[i]});
        if (pairs && values[i].im != 0) blocks.back().push_back(values[++i]);
    }
    std::stable_sort(blocks.begin(), blocks.end(), [&](const auto& x, const auto& y) {
        const double first = Key(x[0], sort), second = Key(y[0], sort);
        return sort % 2 == 1 ? first < second : first > second;
    });
    std::vector<ComplexRecord> sorted;
    for (const auto& block : blocks) sorted.insert(sorted.end(), block.begin(), block.end());
    return sorted;
}

TYPED_TEST(SchurOf, SortsStablyAndMovesTheEigenvaluesUnchanged) {
    using T = TypeParam;
    for (int n : {1, 2, 3, 6, 11, 24})
        for (std::uint32_t sort : {1u, 2u, 3u, 4u}) {
            const Guarded<T> a = Random<T>(n * n, 10 + n);
            Guarded<T> q(n * n), t(n * n);
            Records plain(n), sorted(n);
            ASSERT_EQ(Schur<T>(a, n, 0, q, t, plain), 0);
            ASSERT_EQ(Schur<T>(a, n, sort, q, t, sorted), 0);
            const auto expected = StablySorted(plain, sort, std::is_same_v<T, double>);
            for (int i = 0; i < n; ++i) EXPECT_EQ(Wide(sorted[i]), Wide(expected[i])) << n << ' ' << sort << ' ' << i;
        }
}

TYPED_TEST(SchurOf, EqualKeysKeepTheirPlaces) {
    using T = TypeParam;
    // Moduli 2 2 2 1 1: sorting by modulus must not exchange 2 and -2.
    const Guarded<T> a = Diagonal<T>({2, -2, 2, -1, 1});
    Guarded<T> q(25), t = Unwritten<T>(25);
    Records values(5), plain(5);
    ASSERT_EQ(Schur<T>(a, 5, 0, q, t, plain), 0);
    ASSERT_EQ(Schur<T>(a, 5, 4, q, t, values), 0);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(values[i].re, plain[i].re);
    ASSERT_EQ(Schur<T>(a, 5, 3, q, t, values), 0);
    const double expected[] = {-1, 1, 2, -2, 2};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(values[i].re, expected[i]);
        EXPECT_EQ(Wide(t[i * 6]), Wide(expected[i]));
    }
}

TYPED_TEST(SchurOf, NullAndAliasedOutputsAndEveryFailingAllocation) {
    using T = TypeParam;
    const Guarded<T> a = Random<T>(25, 11);
    Guarded<T> q(25), t(25), t2(25);
    Records values(5), values2(5);
    for (std::uint32_t sort : {0u, 2u}) {
        ASSERT_EQ(Schur<T>(a, 5, sort, q, t, values), 0);
        ASSERT_EQ(Schur<T>(a, 5, sort, nullptr, t2, values2), 0) << "without vectors";
        Guarded<T> in_t = a, in_q = a, q2(25);
        ASSERT_EQ(Schur<T>(in_t, 5, sort, q2, in_t, values2), 0);
        EXPECT_TRUE(SameElements(in_t, t) && SameElements(q2, q) && SameElements(values2, values));
        ASSERT_EQ(Schur<T>(in_q, 5, sort, in_q, t2, values2), 0);
        EXPECT_TRUE(SameElements(in_q, q) && SameElements(t2, t) && SameElements(values2, values));
        ExpectEveryAllocationFails([&] {
            Guarded<T> fresh_q = Unwritten<T>(25), fresh_t = Unwritten<T>(25);
            Records fresh = RecordOutput(5);
            const Status status = Schur<T>(a, 5, sort, fresh_q, fresh_t, fresh);
            EXPECT_TRUE(status == 0 || (Untouched(fresh_q) && Untouched(fresh_t) && Untouched(fresh)));
            return status;
        });
    }
}

// Block diagonal: the pair re ± i·im in the rows `place` and `place` + 1, and the other eigenvalues around it.
Reals WithPair(std::initializer_list<double> others, int place, double re, double im) {
    const int n = static_cast<int>(others.size()) + 2;
    Reals a(n * n);
    auto other = others.begin();
    for (int i = 0; i < n; ++i) {
        if (i == place) {
            a[i * n + i] = a[(i + 1) * n + i + 1] = re;
            a[i * n + i + 1] = im;
            a[(i + 1) * n + i] = -im;
            ++i;
        } else {
            a[i * n + i] = *other++;
        }
    }
    return a;
}

TEST(MatSchur, AnImaginaryPartBelowRoundingIsSortedAsTwoRealEigenvaluesWithoutABlock) {
    for (std::uint32_t sort : {1u, 2u, 3u, 4u}) {
        const Reals a = WithPair({5, 0.5}, 1, 1, 1e-17);
        Reals q(16), t = Output(16);
        Records values = RecordOutput(4);
        ASSERT_EQ(ZemFunc258(a, 4, 0, q, t, values), 0);
        ASSERT_EQ(std::count_if(values.begin(), values.end(), [](ComplexRecord v) { return v.im != 0; }), 2)
            << "unsorted, it is a pair";
        ASSERT_EQ(ZemFunc258(a, 4, sort, q, t, values), 0);
        const std::vector<double> ascending{0.5, 1, 1, 5};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(values[i].re, ascending[sort % 2 == 1 ? i : 3 - i]);
            EXPECT_EQ(values[i].im, 0);
            for (int j = 0; j < i; ++j) EXPECT_EQ(t[i * 4 + j], 0);
        }
        // In either order the two stand in the middle.
        EXPECT_EQ(t[1 * 4 + 2], 0) << "the upper element of the block is cleared as well";
    }
}

TEST(MatSchur, FlatteningNeedsTheImaginaryPartSmallBesideBothItsRealPartAndAllEigenvalues) {
    const auto pairs = [](const Reals& a, int n) {
        Reals q(n * n), t(n * n);
        Records values(n);
        EXPECT_EQ(ZemFunc258(a, n, 1, q, t, values), 0);
        return std::count_if(values.begin(), values.end(), [](ComplexRecord v) { return v.im != 0; });
    };
    const double eps = DBL_EPSILON;
    // n = 3: beside the real part the limit is 3 eps; beside the sum it is 2 eps with a zero, 12 eps with a ten.
    EXPECT_EQ(pairs(WithPair({0}, 0, 1, 2.5 * eps), 3), 2) << "not small beside the sum";
    EXPECT_EQ(pairs(WithPair({10}, 0, 1, 2.5 * eps), 3), 0);
    EXPECT_EQ(pairs(WithPair({10}, 0, 1, 3.5 * eps), 3), 2) << "not small beside the real part";
    EXPECT_EQ(pairs(WithPair({0}, 0, 1, 1.5 * eps), 3), 0);
    EXPECT_EQ(pairs(WithPair({1}, 0, 1e-10, 1e-20), 3), 2) << "small beside the sum alone";
}

TEST(MatSchur, BothMembersOfAPairHaveTheSameKeyAndStayAdjacent) {
    // Modulus 5 between 4 and 6.
    const Reals a = WithPair({6, 4, -1}, 1, 3, 4);
    Reals q(25), t(25);
    Records values(5);
    ASSERT_EQ(ZemFunc258(a, 5, 3, q, t, values), 0);
    const ComplexRecord expected[] = {{-1, 0}, {4, 0}, {3, 4}, {3, -4}, {6, 0}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(values[i].re, expected[i].re, Bound(5, 6));
        EXPECT_NEAR(values[i].im, expected[i].im, Bound(5, 6));
    }
    EXPECT_EQ(values[2].im, -values[3].im);
    EXPECT_NE(t[3 * 5 + 2], 0);
}

// A = Q·T·Q^T
double SchurResidual(const Reals& a, const Reals& q, const Reals& t, int n) {
    Reals left(n * n), transposed(n * n);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            transposed[j * n + i] = q[i * n + j];
            long double sum = 0;
            for (int k = 0; k < n; ++k) sum += static_cast<long double>(q[i * n + k]) * t[k * n + j];
            left[i * n + j] = static_cast<double>(sum);
        }
    return Misfit(left, transposed, a, n, n, n);
}

double Largest(const Reals& a) {
    double largest = 0;
    for (double v : a) largest = std::max(largest, std::fabs(v));
    return largest;
}

// Two pairs of nearly equal eigenvalues, in blocks of very unequal elements and coupled more or less strongly: the
// provider refuses to exchange some of them.
Reals ClosePairs(std::mt19937_64& engine) {
    std::uniform_real_distribution<double> uniform(-1, 1);
    const auto power = [&](double low, double high) {
        return std::exp2(low + (high - low) * 0.5 * (1 + uniform(engine)));
    };
    const double w = power(-27, 3), first = power(-27, 27), second = power(-27, 27), coupling = power(-7, 33);
    const double re = 1 + power(-56, -20) * uniform(engine);
    Reals a{1, w * first, 0, 0, -w / first, 1, 0, 0, 0, 0, re, w * second, 0, 0, -w / second, re};
    for (int i : {2, 3, 6, 7}) a[i] = coupling * uniform(engine);
    return a;
}

// Members of one family behave differently from provider to provider; over the family each outcome occurs in both.
struct Outcomes {
    int sorted = 0, refused = 0, again = 0;
};

TEST(MatSchur, PairsThatAreTooCloseAreAWarningWithAValidForm) {
    Outcomes seen;
    std::mt19937_64 engine(4);
    for (int i = 0; i < 1000; ++i) {
        const Reals a = ClosePairs(engine);
        Reals q(16), t = Output(16);
        Records values(4);
        const Status status = ZemFunc258(a, 4, 1, q, t, values);
        ASSERT_TRUE(status == 0 || status == 20005) << status;
        ++(status == 0 ? seen.sorted : seen.refused);
        ASSERT_LE(SchurResidual(a, q, t, 4), Bound(4, Largest(a)));
        EXPECT_TRUE(status != 0 || values[0].re <= values[3].re);
    }
    EXPECT_GT(seen.refused, 0);
    EXPECT_GT(seen.sorted, 0);
}

TEST(MatSchur, APairThatSplitsWhileItMovesIsSortedAsTwoRealEigenvalues) {
    std::mt19937_64 engine(3);
    std::uniform_real_distribution<double> uniform(-1, 1);
    int split = 0;
    for (int i = 0; i < 400; ++i) {
        // 1 ± i·sqrt(1e-17): the smaller off-diagonal element is below the rounding of an exchange.
        Reals a{1,
                1.2,
                uniform(engine),
                uniform(engine),
                -1e-17,
                1,
                uniform(engine),
                uniform(engine),
                0,
                0,
                uniform(engine),
                uniform(engine),
                0,
                0,
                0,
                uniform(engine)};
        Reals q(16), t(16);
        Records plain(4), values(4);
        ASSERT_EQ(ZemFunc258(a, 4, 0, q, t, plain), 0);
        ASSERT_EQ(ZemFunc258(a, 4, 1, q, t, values), 0);
        const auto complex = [](ComplexRecord v) { return v.im != 0; };
        const auto left = std::count_if(values.begin(), values.end(), complex);
        if (std::count_if(plain.begin(), plain.end(), complex) == 2 && left == 0) ++split;
        for (int k = 0; k < 3; ++k) {
            EXPECT_LE(values[k].re, values[k + 1].re);
            EXPECT_EQ(t[(k + 1) * 4 + k] != 0, values[k].im > 0);
        }
        ASSERT_LE(SchurResidual(a, q, t, 4), Bound(4, 2));
    }
    EXPECT_GT(split, 0);
}

TEST(MatSchur, AlsoOrdersMatricesOfTheSmallestDoubles) {
    const Reals a = WithPair({-0x1p-1000, 0x1p-1001}, 1, 3 * 0x1p-1003, 0x1p-1002);
    for (std::uint32_t sort : {1u, 2u, 3u, 4u}) {
        Reals q(16), t(16);
        Records values(4), plain(4);
        ASSERT_EQ(ZemFunc258(a, 4, 0, q, t, plain), 0);
        ASSERT_EQ(ZemFunc258(a, 4, sort, q, t, values), 0);
        const auto expected = StablySorted(plain, sort, true);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(Wide(values[i]), Wide(expected[i]));
        ASSERT_LE(SchurResidual(a, q, t, 4), Bound(4, 0x1p-1000));
    }
}

// A selection brings eigenvalues to the front. These change their mind, as rounding can.

Count CallsOfSelection = 0;

TEST(MatSchur, ASelectionBringsTheChosenToTheFront) {
    const Reals a = WithPair({5, -2, 7, -3}, 1, 1, 1);
    Reals q(36), t(36);
    Records values(6);
    const auto negative = [](const double* re, const double*) -> Count { return *re < 0; };
    ASSERT_EQ(MatSchur<double>(a, 6, 0, q, t, values, negative), 0);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(values[i].re < 0, i < 2) << i;
    const Records c = RandomRecords(36, 12);
    Records cq(36), ct(36);
    const auto left = [](const ComplexRecord* v) -> Count { return v->re < 0; };
    ASSERT_EQ(MatSchur<ComplexRecord>(c, 6, 0, cq, ct, values, left), 0);
    EXPECT_TRUE(std::is_partitioned(values.begin(), values.end(), [](ComplexRecord v) { return v.re < 0; }));
}

TEST(MatSchur, ASelectionThatNoLongerHoldsAfterTheExchangesIsAnError) {
    const Reals a = Diagonal<double>({1, 2, 3});
    Reals q = Output(9), t = Output(9);
    Records values = RecordOutput(3);
    // The first three calls choose the last eigenvalue, the next, after the exchange, none but another.
    const auto fickle = [](const double*, const double*) -> Count { return CallsOfSelection++ >= 2; };
    const auto other = [](const double*, const double*) -> Count {
        const Count call = CallsOfSelection++;
        return call == 2 || call == 5;
    };
    CallsOfSelection = 0;
    EXPECT_EQ(MatSchur<double>(a, 3, 0, q, t, values, other), -20074);
    EXPECT_TRUE(Untouched(q) && Untouched(t) && Untouched(values));
    CallsOfSelection = 0;
    EXPECT_EQ(MatSchur<double>(a, 3, 0, q, t, values, fickle), 0) << "all chosen in the end: nothing is out of place";
}

TEST(MatSchur, ASelectionThatCannotBeBroughtToTheFrontIsAnError) {
    int refused = 0;
    std::mt19937_64 engine(4);
    for (int i = 0; i < 1000; ++i) {
        const Reals a = ClosePairs(engine);
        Reals q = Output(16), t = Output(16);
        Records values = RecordOutput(4);
        // The second pair.
        const auto last = [](const double*, const double*) -> Count { return CallsOfSelection++ >= 2; };
        CallsOfSelection = 0;
        const Status status = MatSchur<double>(a, 4, 0, q, t, values, last);
        if (status != -20073) continue;
        ++refused;
        EXPECT_TRUE(Untouched(q) && Untouched(t) && Untouched(values));
    }
    EXPECT_GT(refused, 0);
}

// Generalised problems

template <class T>
class QzOf : public ::testing::Test {};
TYPED_TEST_SUITE(QzOf, ElementTypes, ElementNames);

TYPED_TEST(QzOf, ASelectorOfFiveIsRefusedBeforeAnySizeButNotBeforeNarrowing) {
    using T = TypeParam;
    Guarded<T> a(9, Element<T>(kNaN));
    const Guarded<T> sound = Sound<T>(3);
    Qz<T> qz(3);
    for (Size n : {Size{-1}, Size{0}, Size{3}, kTooManyElements})
        for (std::uint32_t sort : {5u, 0xFFFFFFFFu}) EXPECT_EQ(qz(a, a, n, sort), -20061);
    EXPECT_EQ(qz(a, a, kTooLarge, 5), -20046);
    for (std::uint32_t sort : {0u, 4u}) {
        EXPECT_EQ(qz(a, a, 0, sort), -20003);
        EXPECT_EQ(qz(a, a, -1, sort), -20003);
        EXPECT_EQ(qz(a, a, kTooManyElements, sort), -20046);
        EXPECT_EQ(qz(a, sound, 3, sort), -20068);
        EXPECT_EQ(qz(sound, a, 3, sort), -20068);
    }
    Records values = RecordOutput(3), right = RecordOutput(9), left = RecordOutput(9);
    EXPECT_EQ(Generalised<T>(a, a, kTooLarge, values, right, left), -20046);
    EXPECT_EQ(Generalised<T>(a, a, kTooManyElements, values, right, left), -20046);
    for (Size n : {Size{0}, Size{-1}}) EXPECT_EQ(Generalised<T>(a, a, n, values, right, left), -20003);
    EXPECT_EQ(Generalised<T>(a, sound, 3, values, right, left), -20068);
    EXPECT_EQ(Generalised<T>(sound, a, 3, values, right, left), -20068);
    EXPECT_TRUE(qz.untouched() && Untouched(values) && Untouched(right) && Untouched(left));
    ExpectScreened<T>(sound, [&](Guarded<T>& m) { return qz(m, sound, 3, 1); });
    ExpectScreened<T>(sound, [&](Guarded<T>& m) { return qz(sound, m, 3, 1); });
}

TYPED_TEST(QzOf, ABetaOfZeroIsAnInfiniteEigenvalueLastAscendingAndFirstDescending) {
    using T = TypeParam;
    const Guarded<T> a = Diagonal<T>({4, 1, -6, 2}), b = Diagonal<T>({2, 0, 2, 1});
    for (std::uint32_t sort : {1u, 2u, 3u, 4u}) {
        Qz<T> qz(4);
        ASSERT_EQ(qz(a, b, 4, sort), 0);
        std::vector<double> expected =
            sort <= 2 ? std::vector<double>{-3, 2, 2, kInf} : std::vector<double>{2, 2, -3, kInf};
        if (sort % 2 == 0) std::reverse(expected.begin(), expected.end());
        for (int i = 0; i < 4; ++i) {
            const double beta = static_cast<double>(Wide(qz.beta[i]).real());
            if (std::isinf(expected[i])) {
                EXPECT_EQ(beta, 0) << sort;
                EXPECT_NE(qz.alpha[i].re, 0);
            } else {
                EXPECT_NEAR(qz.alpha[i].re / beta, expected[i], Bound(4, 3)) << sort << ' ' << i;
            }
        }
    }
}

TYPED_TEST(QzOf, SortsStablyAndMovesAlphaAndBetaUnchanged) {
    using T = TypeParam;
    const bool pairs = std::is_same_v<T, double>;
    for (int n : {1, 2, 3, 6, 11, 24})
        for (std::uint32_t sort : {1u, 2u, 3u, 4u}) {
            const Guarded<T> a = Random<T>(n * n, 20 + n), b = Sound<T>(n, 30 + n);
            Qz<T> plain(n), sorted(n);
            ASSERT_EQ(plain(a, b, n, 0), 0);
            ASSERT_EQ(sorted(a, b, n, sort), 0);
            std::vector<int> order;  // where blocks start
            for (int i = 0; i < n; ++i) {
                order.push_back(i);
                if (pairs && plain.alpha[i].im != 0) ++i;
            }
            std::stable_sort(order.begin(), order.end(), [&](int i, int j) {
                if (sort % 2 == 0) std::swap(i, j);
                return Key(plain.alpha[i], sort) * Wide(plain.beta[j]).real() <
                       Key(plain.alpha[j], sort) * Wide(plain.beta[i]).real();
            });
            int place = 0;
            for (int start : order)
                for (int i = start; i <= start + (pairs && plain.alpha[start].im != 0); ++i, ++place) {
                    EXPECT_EQ(Wide(sorted.alpha[place]), Wide(plain.alpha[i])) << n << ' ' << sort;
                    EXPECT_EQ(Wide(sorted.beta[place]), Wide(plain.beta[i])) << n << ' ' << sort;
                }
            for (int i = 0; i < n; ++i) {
                EXPECT_GE(Wide(sorted.t[i * n + i]).real(), 0);
                EXPECT_EQ(Wide(sorted.t[i * n + i]).imag(), 0);
                EXPECT_EQ(Wide(sorted.beta[i]).imag(), 0);
            }
        }
}

TYPED_TEST(QzOf, NullOutputsAndAliasedOnes) {
    using T = TypeParam;
    const int n = 5;
    const Guarded<T> a = Random<T>(n * n, 21), b = Sound<T>(n, 22);
    for (std::uint32_t sort : {0u, 1u}) {
        Qz<T> qz(n);
        ASSERT_EQ(qz(a, b, n, sort), 0);
        Qz<T> in(n);
        in.s = a;
        in.t = b;
        ASSERT_EQ(in(in.s, in.t, n, sort), 0) << "S over A, T over B";
        EXPECT_TRUE(SameElements(in.s, qz.s) && SameElements(in.t, qz.t) && SameElements(in.q, qz.q) &&
                    SameElements(in.right, qz.right));
        Guarded<T> s(n * n), t(n * n), beta(n);
        Records alpha(n);
        if constexpr (std::is_same_v<T, double>)
            ASSERT_EQ(ZemFunc256(a, b, n, sort, s, t, nullptr, nullptr, alpha, beta, nullptr, nullptr), 0);
        else
            ASSERT_EQ(ZemFunc257(a, b, n, sort, s, t, nullptr, nullptr, alpha, beta, nullptr, nullptr), 0);
        // The provider forms Q and Z or not; what is left differs by rounding alone.
        for (int i = 0; i < n; ++i)
            EXPECT_NEAR(std::abs(std::complex<double>(Wide(alpha[i]) - Wide(qz.alpha[i]))), 0, 1e-10);
    }
}

TYPED_TEST(QzOf, EveryAllocationMayFailAndWritesNothing) {
    using T = TypeParam;
    const Guarded<T> a = Random<T>(16, 23), b = Sound<T>(4, 24);
    for (std::uint32_t sort : {0u, 1u})
        ExpectEveryAllocationFails([&] {
            Qz<T> qz(4);
            const Status status = qz(a, b, 4, sort);
            EXPECT_TRUE(status == 0 || qz.untouched());
            return status;
        });
    Records values(4), right(16), left(16);
    ExpectEveryAllocationFails([&] { return Generalised<T>(a, b, 4, values, right, left); });
    ExpectEveryAllocationFails([&] { return Generalised<T>(a, b, 4, values, nullptr, nullptr); });
}

TYPED_TEST(QzOf, GeneralisedEigenvaluesAreTheQuotients) {
    using T = TypeParam;
    const Guarded<T> a = Diagonal<T>({4, 1, -6}), b = Diagonal<T>({2, 4, 2});
    Records values = RecordOutput(3), right = RecordOutput(9), left = RecordOutput(9);
    ASSERT_EQ(Generalised<T>(a, b, 3, values, right, left), 0);
    std::vector<double> parts;
    for (ComplexRecord v : values) {
        parts.push_back(v.re);
        EXPECT_EQ(v.im, 0);
    }
    std::sort(parts.begin(), parts.end());
    EXPECT_NEAR(parts[0], -3, Bound(3, 3));
    EXPECT_NEAR(parts[1], 0.25, Bound(3, 3));
    EXPECT_NEAR(parts[2], 2, Bound(3, 3));
}

TEST(MatEigenGeneralised, ABetaOfZeroDividesToInfinityWithoutAnError) {
    const Reals a{3, 0, 0, 2}, b{1, 0, 0, 0};
    Records values = RecordOutput(2);
    ASSERT_EQ(ZemFunc252(a, b, 2, values, nullptr, nullptr), 0);
    EXPECT_NEAR(values[0].re, 3, Bound(2, 3));
    EXPECT_TRUE(std::isinf(values[1].re));
    // In the complex form the quotient of records is used, and 0 / 0 arises in it.
    const Records ca{{3, 0}, {0, 0}, {0, 0}, {2, 0}}, cb{{1, 0}, {0, 0}, {0, 0}, {0, 0}};
    ASSERT_EQ(ZemFunc253(ca, cb, 2, values, nullptr, nullptr), 0);
    EXPECT_NEAR(values[0].re, 3, Bound(2, 3));
    EXPECT_FALSE(std::isfinite(values[1].re) && std::isfinite(values[1].im));
}

TEST(MatQz, APairBelowRoundingIsSortedAsTwoRealEigenvalues) {
    const Reals a{1, 1e-18, -1e-15, 1}, b{1, 0, 0, 1};
    Qz<double> plain(2), sorted(2);
    ASSERT_EQ(plain(a, b, 2, 0), 0);
    ASSERT_NE(plain.alpha[0].im, 0) << "unsorted, it is a pair";
    ASSERT_EQ(sorted(a, b, 2, 1), 0);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(sorted.alpha[i].im, 0);
        EXPECT_NEAR(sorted.alpha[i].re / sorted.beta[i], 1, Bound(2));
        EXPECT_EQ(sorted.right[i].im, 0);
    }
    EXPECT_EQ(sorted.s[1], 0);
    EXPECT_EQ(sorted.s[2], 0);
}

// A = Q·S·Z^T
double PencilResidual(const Reals& a, const Reals& q, const Reals& s, const Reals& z, int n) {
    Reals left(n * n), transposed(n * n);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            transposed[j * n + i] = z[i * n + j];
            long double sum = 0;
            for (int k = 0; k < n; ++k) sum += static_cast<long double>(q[i * n + k]) * s[k * n + j];
            left[i * n + j] = static_cast<double>(sum);
        }
    return Misfit(left, transposed, a, n, n, n);
}

// m := P·m·P' with reflections P and P', which are drawn once for both matrices of a pencil.
struct Reflections {
    double left[4], right[4];

    explicit Reflections(std::mt19937_64& engine) {
        std::normal_distribution<double> normal;
        for (double* v : {left, right}) {
            double norm = 0;
            for (int i = 0; i < 4; ++i) {
                v[i] = normal(engine);
                norm += v[i] * v[i];
            }
            for (int i = 0; i < 4; ++i) v[i] /= std::sqrt(norm);
        }
    }
    void apply(Reals& m) const {
        for (int k = 0; k < 4; ++k) {
            double down = 0;
            for (int i = 0; i < 4; ++i) down += left[i] * m[i * 4 + k];
            for (int i = 0; i < 4; ++i) m[i * 4 + k] -= 2 * down * left[i];
        }
        for (int k = 0; k < 4; ++k) {
            double across = 0;
            for (int j = 0; j < 4; ++j) across += right[j] * m[k * 4 + j];
            for (int j = 0; j < 4; ++j) m[k * 4 + j] -= 2 * across * right[j];
        }
    }
};

TEST(MatQz, PairsThatAreTooCloseAreTriedOnASecondFormAndOnlyThenRefused) {
    Outcomes seen;
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> uniform(-1, 1);
    const auto power = [&](double low, double high) {
        return std::exp2(low + (high - low) * 0.5 * (1 + uniform(engine)));
    };
    for (int i = 0; i < 4000; ++i) {
        const double w = power(-20, 3), first = power(-6, 6), second = power(-6, 6), couplingA = power(5, 15);
        const double re = 1 + power(-40, -20) * uniform(engine), couplingB = power(5, 12);
        Reals a{1, w * first, 0, 0, -w / first, 1, 0, 0, 0, 0, re, w * second, 0, 0, -w / second, re};
        Reals b = Diagonal<double>({1, 1, 1, 1});
        for (int k : {2, 3, 6, 7}) {
            a[k] = couplingA * uniform(engine);
            b[k] = couplingB * uniform(engine);
        }
        const Reflections reflections(engine);
        reflections.apply(a);
        reflections.apply(b);

        Qz<double> sorted(4), vectors(4);
        const auto factors = [&](Qz<double>& qz) {
            return ZemFunc256(a, b, 4, 1, qz.s, qz.t, qz.q, qz.z, qz.alpha, qz.beta, nullptr, nullptr);
        };
        FailAllocation(-1);
        const Status status = factors(sorted);
        const long allocations = AllocationCount();
        ASSERT_TRUE(status == 0 || status == -20073) << status;
        if (status == -20073) {
            ++seen.refused;
            ASSERT_TRUE(sorted.untouched());
            continue;
        }
        // Vectors change nothing but where a pair is so nearly real that it has none.
        const Status complete = vectors(a, b, 4, 1);
        ASSERT_TRUE(complete == 0 ? SameElements(vectors.s, sorted.s) && SameElements(vectors.alpha, sorted.alpha)
                                  : complete == -20062 && vectors.untouched())
            << complete;
        // One form takes 7 blocks; the second takes as many of its own.
        ++(allocations > 7 ? seen.again : seen.sorted);
        ASSERT_LE(PencilResidual(a, sorted.q, sorted.s, sorted.z, 4), Bound(4, Largest(a)));
        ASSERT_LE(PencilResidual(b, sorted.q, sorted.t, sorted.z, 4), Bound(4, Largest(b)));
        const double lower = sorted.alpha[0].re * sorted.beta[3], upper = sorted.alpha[3].re * sorted.beta[0];
        EXPECT_LE(lower, upper);
        if (allocations > 7 && seen.again == 1)
            ExpectEveryAllocationFails([&] {
                Qz<double> fresh(4);
                const Status failed = factors(fresh);
                EXPECT_TRUE(failed == 0 || fresh.untouched());
                return failed;
            });
    }
    EXPECT_GT(seen.refused, 0);
    EXPECT_GT(seen.sorted, 0);
    EXPECT_GT(seen.again, 0);
}

}  // namespace
}  // namespace quorvan::testing::dense
