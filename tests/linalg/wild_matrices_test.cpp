// Every export over matrices of any bits, of small and of forbidden sizes and selections: it ends with a status that it
// is documented to give, stays within its arrays (Guarded), and an error of a decomposition writes nothing.
#include "tests/linalg/matrices.h"

namespace quorvan::testing::dense {
namespace {

template <class T>
class Wild {
public:
    explicit Wild(unsigned seed) : engine_(seed) {}

    int below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
    // Mostly a small size, rarely one that is refused.
    Size size() {
        const Size sizes[] = {1, 1, 2, 2, 3, 3, 4, 5, 7, 12, 0, -1, INT32_MIN};
        return sizes[below(std::size(sizes))];
    }

    // One array is all of one sort: any bits, any bits of modest exponents, tiny and huge numbers, or few integers,
    // which make singular and defective matrices.
    Guarded<T> array(Size count) {
        Guarded<T> out(static_cast<std::size_t>(std::max<Size>(count, 0)));
        const int sort = below(5);
        double* parts = reinterpret_cast<double*>(out.data());
        for (std::size_t i = 0; i < out.size() * sizeof(T) / sizeof(double); ++i) parts[i] = number(sort);
        return out;
    }
    static std::size_t elements(Size m, Size n) { return m < 1 || n < 1 ? 0 : static_cast<std::size_t>(m * n); }
    Guarded<T> matrix(Size m, Size n) { return array(static_cast<Size>(elements(m, n))); }

private:
    double number(int sort) {
        const std::uint64_t bits = engine_();
        const double sign = bits & 1 ? -1 : 1, unit = static_cast<double>(bits >> 11) * 0x1p-53;
        switch (sort) {
            case 0: return std::bit_cast<double>(bits);
            case 1: return std::bit_cast<double>(bits & ~(std::uint64_t{1} << 62));  // below 2
            case 2: return sign * std::ldexp(1 + unit, below(2) ? -1060 : 1020);
            case 3: return below(4) - 1;
            default: return 2 * unit - 1;
        }
    }

    std::mt19937_64 engine_;
};

template <class T>
struct WildMatrices : ::testing::Test {
    static constexpr int kRounds = 400;

    // Among the statuses of the documentation, 0 included.
    void expect(Status status, std::initializer_list<Status> allowed) {
        EXPECT_TRUE(status == 0 || std::find(allowed.begin(), allowed.end(), status) != allowed.end()) << status;
    }
};
TYPED_TEST_SUITE(WildMatrices, ElementTypes, ElementNames);

TYPED_TEST(WildMatrices, AreSolvedOrRefused) {
    using T = TypeParam;
    for (int round = 0; round < this->kRounds; ++round) {
        Wild<T> wild(round);
        const Size m = wild.size(), n = wild.below(3) ? m : wild.size(), r = wild.size();
        const auto kind = static_cast<unsigned>(wild.below(5));
        const auto a = wild.matrix(m, n), b = wild.matrix(m, r);
        auto x = Unwritten<T>(wild.elements(n, r));
        const Status status = SolveMany<T>(a, m, n, kind, b, r, x);
        this->expect(status, {-20003, -20040, -20061, -20068, -20071, -20041, -20062, 20001});
        if (status < 0) {
            EXPECT_TRUE(Untouched(x));
        }

        auto square = wild.matrix(n, n);
        auto inverse = Unwritten<T>(wild.elements(n, n));
        const Status inverted = InverseKind<T>(square, n, static_cast<int>(kind), inverse);
        this->expect(inverted, {-20003, -20061, -20068, -20071, -20041});
        if (inverted < 0) {
            EXPECT_TRUE(Untouched(inverse));
        }

        auto wide = wild.matrix(m, n);
        const Status pseudo = PseudoInverse<T>(wide, m, n, wild.below(2) ? -1 : 1e-3, nullptr);
        this->expect(pseudo, {-20003, -20068, -20062});
    }
}

TYPED_TEST(WildMatrices, HaveNumbersOrNone) {
    using T = TypeParam;
    for (int round = 0; round < this->kRounds; ++round) {
        Wild<T> wild(round);
        const Size m = wild.size(), n = wild.below(3) ? m : wild.size();
        const auto selector = static_cast<unsigned>(wild.below(5));
        const auto a = wild.matrix(m, n), square = wild.matrix(n, n);
        auto determinant = Unwritten<T>(1);
        const Status status = DeterminantKind<T>(square, n, selector, determinant);
        this->expect(status, {-20003, -20061, -20068, -20071});
        if (status < 0 && status != -20071) {
            EXPECT_TRUE(std::isnan(Wide(determinant[0]).real()));
        }

        Reals norm = Output(1), condition = Output(1);
        const Status normed = Norm<T>(a, m, n, selector, norm);
        this->expect(normed, {-20003, -20061, -20068, -20062});
        EXPECT_EQ(normed < 0, std::isnan(norm[0]));
        const Status conditioned = ConditionNumber<T>(a, m, n, selector, condition);
        this->expect(conditioned, {-20003, -20061, -20068, -20040, -20062});
        if (conditioned < 0) {
            EXPECT_TRUE(std::isnan(condition[0]));
        }

        std::int64_t rank = 77;
        const Status ranked = Rank<T>(a, m, n, -1, &rank);
        this->expect(ranked, {-20003, -20068, -20062});
        EXPECT_TRUE(ranked < 0 ? rank == -1 : rank >= 0 && rank <= std::min(m, n));

        std::uint32_t flag = 7;
        const Status tested = IsPositiveDefinite<T>(square, n, &flag);
        this->expect(tested, {-20003, -20068, -20062});
        EXPECT_EQ(flag, tested == -20003 ? 7 : tested < 0 ? 0 : flag & 1);
    }
}

TYPED_TEST(WildMatrices, AreDecomposedOrRefusedWithNothingWritten) {
    using T = TypeParam;
    for (int round = 0; round < this->kRounds; ++round) {
        Wild<T> wild(round);
        const Size m = wild.size(), n = wild.below(3) ? m : wild.size();
        const Size k = std::max<Size>(0, std::min(m, n));
        const int mode = wild.below(4) - 1;
        auto a = wild.matrix(m, n);
        const auto kept = a;

        auto u = Unwritten<T>(wild.elements(m, mode == 0 ? m : k)),
             v = Unwritten<T>(wild.elements(n, mode == 0 ? n : k));
        auto s = Unwritten<T>(k), values = Unwritten<T>(k);
        const Status svd = SvdMode<T>(a, m, n, mode, u, s, v);
        this->expect(svd, {-20003, -20061, -20068, -20062});
        if (svd < 0) {
            EXPECT_TRUE(Untouched(u) && Untouched(s) && Untouched(v));
        }
        this->expect(SingularValues<T>(a, m, n, values), {-20003, -20068, -20062});
        EXPECT_TRUE(SameElements(a, kept));

        const auto pivoting = static_cast<unsigned>(wild.below(4));
        const bool economy = wild.below(2);
        auto q = Unwritten<T>(wild.elements(m, economy ? k : m)), r = Unwritten<T>(wild.elements(economy ? k : m, n));
        Guarded<Size> p(wild.elements(n, pivoting == 2 ? n : 1), -77);
        const Status qr = QrPivot<T>(a, m, n, pivoting, economy, p, q, r);
        this->expect(qr, {-20003, -20061, -20068});
        if (qr < 0) {
            const bool keptP = std::all_of(p.begin(), p.end(), [](Size v) { return v == -77; });
            EXPECT_TRUE(Untouched(q) && Untouched(r) && keptP);
        }
        EXPECT_TRUE(SameElements(a, kept));

        if constexpr (std::is_same_v<T, double>) {
            const auto method = static_cast<unsigned>(wild.below(4));
            Reals full = Output(wild.elements(m, m)), triangle = Output(wild.elements(m, n));
            const Status status = ZemFunc192(a, m, n, method, full, triangle);
            this->expect(status, {-20003, -20061, -20068});
            if (status < 0) {
                EXPECT_TRUE(Untouched(full) && Untouched(triangle));
            }
        } else {
            Records full = RecordOutput(wild.elements(m, m)), triangle = RecordOutput(wild.elements(m, n));
            const Status status = ZemFunc228(a, m, n, full, triangle);
            this->expect(status, {-20003, -20068});
            if (status < 0) {
                EXPECT_TRUE(Untouched(full) && Untouched(triangle));
            }
        }
    }
}

TYPED_TEST(WildMatrices, OfSquareShapeHaveFactorsAndFormsOrNone) {
    using T = TypeParam;
    for (int round = 0; round < this->kRounds; ++round) {
        Wild<T> wild(round);
        const Size n = wild.size();
        const std::size_t order = static_cast<std::size_t>(std::max<Size>(n, 0)), count = wild.elements(n, n);
        const auto a = wild.matrix(n, n);

        auto factors = a;
        Guarded<Size> pivots(order, -77);
        std::uint32_t parity = 7;
        const Status lu = Lu<T>(factors, n, pivots, &parity);
        this->expect(lu, {20003, -20003, -20068});
        if (lu < 0) {
            EXPECT_TRUE(SameElements(factors, a) && parity == 7);
        }

        auto factor = a;
        const Status cholesky = Cholesky<T>(factor, n, nullptr);
        this->expect(cholesky, {-20003, -20068, -20071});
        if (cholesky < 0) {
            EXPECT_TRUE(SameElements(factor, a));
        }

        auto copy = a;
        auto h = Unwritten<T>(count), q = Unwritten<T>(count);
        const Status hessenberg = Hessenberg<T>(copy, n, h, q);
        this->expect(hessenberg, {-20003, -20068});
        if (hessenberg < 0) {
            EXPECT_TRUE(Untouched(h) && Untouched(q));
        }

        const auto job = static_cast<unsigned>(wild.below(5));
        Size low = -77, high = -77;
        Reals scale = Output(order);
        auto balanced = Unwritten<T>(count);
        const Status balance = Balance<T>(copy, n, job, &low, &high, scale, balanced);
        this->expect(balance, {-20003, -20061, -20068});
        if (balance < 0) {
            EXPECT_TRUE(low == -77 && high == -77 && Untouched(balanced) && Untouched(scale));
        }
        if (balance == 0) {
            auto back = wild.matrix(n, n);
            this->expect(BalanceBack<T>(back, n, job, static_cast<unsigned>(wild.below(2)), low, high, scale, nullptr),
                         {});
        }
        // Limits and interchanges of any bits.
        auto vectors = wild.matrix(n, n);
        Reals wrong(order);
        std::mt19937_64 engine(round);
        for (double& v : wrong) v = wild.below(2) ? std::bit_cast<double>(engine()) : wild.below(6);
        this->expect(BalanceBack<T>(vectors, n, job, static_cast<unsigned>(wild.below(3)), wild.below(6) - 1,
                                    wild.below(6) - 1, wrong, nullptr),
                     {-20003, -20061, -20017});
    }
}

TYPED_TEST(WildMatrices, HaveEigenvaluesOrNone) {
    using T = TypeParam;
    for (int round = 0; round < this->kRounds; ++round) {
        Wild<T> wild(round);
        const Size n = wild.size();
        const std::size_t order = static_cast<std::size_t>(std::max<Size>(n, 0)), count = wild.elements(n, n);
        const auto a = wild.matrix(n, n), b = wild.matrix(n, n);
        const auto sort = static_cast<unsigned>(wild.below(6));

        Records values = RecordOutput(order), right = RecordOutput(count), left = RecordOutput(count);
        auto q = Unwritten<T>(count), t = Unwritten<T>(count);
        const Status schur = Schur<T>(a, n, sort, q, t, values);
        this->expect(schur, {20005, -20061, -20003, -20068, -20062});
        if (schur < 0) {
            EXPECT_TRUE(Untouched(q) && Untouched(t) && Untouched(values));
        }

        const Status generalised = Generalised<T>(a, b, n, values, right, left);
        this->expect(generalised, {-20003, -20068, -20062, -20999});

        auto s = Unwritten<T>(count), z = Unwritten<T>(count), beta = Unwritten<T>(order);
        Records alpha = RecordOutput(order);
        q = t = s;
        right = left = RecordOutput(count);
        const Status qz = QzForm<T>(a, b, n, sort, s, t, q, z, alpha, beta, right, left);
        this->expect(qz, {20005, -20061, -20003, -20068, -20062, -20999, -20073});
        if (qz < 0) {
            EXPECT_TRUE(Untouched(s) && Untouched(t) && Untouched(q) && Untouched(z) && Untouched(alpha) &&
                        Untouched(beta) && Untouched(right) && Untouched(left));
        }

        const auto want = static_cast<unsigned>(wild.below(3));
        const auto none = RecordOutput(order);
        values = none;
        if constexpr (std::is_same_v<T, double>) {
            const Status general = ZemFunc201(a, n, want, values, right);
            this->expect(general, {-20003, -20061, -20068, -20062, -20999});
            if (general < 0) {
                EXPECT_TRUE(Untouched(values));
            }
            Reals found = Output(order), vectors = Output(count);
            const Status symmetric = ZemFunc202(a, n, want, found, vectors);
            this->expect(symmetric, {-20003, -20061, -20068, -20062, -20999});
            if (symmetric < 0) {
                EXPECT_TRUE(Untouched(found) && Untouched(vectors));
            }
        } else {
            const Status general = ZemFunc211(a, n, wild.below(4) - 1, want, values, right);
            this->expect(general, {-20003, -20061, -20068, -20062, -20999});
            if (general < 0) {
                EXPECT_TRUE(Untouched(values));
            }
        }
    }
}

TYPED_TEST(WildMatrices, AreMultipliedAndBuilt) {
    using T = TypeParam;
    for (int round = 0; round < this->kRounds; ++round) {
        Wild<T> wild(round);
        const Size m = wild.size(), n = wild.size(), k = wild.size(), l = wild.size();
        const auto a = wild.matrix(m, k), b = wild.matrix(k, n), x = wild.array(k), y = wild.array(n);
        auto product = Unwritten<T>(wild.elements(m, n));
        const Status status = Multiply<T>(a, b, m, k, n, product);
        this->expect(status, {-20004});
        if (status < 0 || m == 0 || n == 0) {
            EXPECT_TRUE(Untouched(product));
        }

        auto vector = Unwritten<T>(static_cast<std::size_t>(std::max<Size>(m, 0)));
        this->expect(VectorMultiply<T>(a, x, m, k, vector), {-20003});
        auto outer = Unwritten<T>(wild.elements(k, n)), turned = Unwritten<T>(wild.elements(k, m));
        this->expect(OuterProduct<T>(x, k, y, n, outer), {-20003});
        auto kronecker = Unwritten<T>(wild.elements(m, k) * wild.elements(k, n));
        this->expect(Kronecker<T>(a, b, m, k, k, n, kronecker), {-20003});
        auto copy = a;
        this->expect(Turned<T>(copy, m, k, turned), {-20003});
        this->expect(Turned<T>(copy, m, k, nullptr), {-20003});
        EXPECT_TRUE(SameElements(copy, turned) || m < 1 || k < 1);

        const auto type = static_cast<unsigned>(wild.below(6));
        const std::size_t built = type == 0   ? wild.elements(l, l)
                                  : type == 2 ? wild.elements(k, n)
                                  : type == 4 ? wild.elements(k - 1, k - 1)
                                              : wild.elements(k, k);
        auto special = Unwritten<T>(built);
        this->expect(BuildSpecial<T>(type, l, x, k, y, n, special), {-20003, -20006, -20061});

        const Size p = wild.below(8) - 1;
        auto lags = Unwritten<T>(wild.elements(p + 1, p + 1));
        const Status lagged = LagProduct<T>(x, k, p, static_cast<unsigned>(wild.below(6)), lags);
        this->expect(lagged, {-20003, -20059, -20037, -20061});
        if (lagged < 0) {
            EXPECT_TRUE(Untouched(lags));
        }
    }
}

}  // namespace
}  // namespace quorvan::testing::dense
