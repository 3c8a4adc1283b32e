#include "poly/root_structure.h"

#include <limits>
#include <utility>

#include "poly/polynomial_matrices.h"

namespace quorvan {
namespace {

constexpr Count kRefinements = 200;
constexpr double kSingularDrop = 5e-5;  // a singular value that falls by so much makes a candidate

// A try at f = q·u and h = q·v for f of degree m and its monic derivative h: u of degree k, v of degree k - 1, q of
// degree m - k. All are monic.
template <class T>
struct Division {
    const T* f;
    const T* h;
    Count m;
    Count k;
    T* u;
    T* v;
    T* q;
};

// Gauss-Newton on q·u = f and q·v = h over all coefficients but the leading ones, each equation weighted by
// 1 / max(1, |coefficient|).
template <class T>
class Refinement {
public:
    explicit Refinement(const Division<T>& division)
        : d_(division),
          rows_(2 * division.m - 1),
          columns_(division.m + division.k - 1),
          matrix_(Elements(rows_, columns_)),
          work_(2 * static_cast<std::size_t>(rows_) + 2 * static_cast<std::size_t>(columns_) + 1),
          weight_(static_cast<std::size_t>(rows_)) {
        if (!*this) return;
        difference_ = work_;
        product_ = difference_ + rows_;
        step_ = product_ + division.m + 1;
        kept_ = step_ + columns_;
        for (Count i = 0; i < rows_; ++i) weight_[i] = 1 / std::fmax(1, element::Magnitude(Coefficient(i)));
    }

    explicit operator bool() const { return matrix_ && work_ && weight_; }

    // *residual is the largest weighted difference that is left; it stays as it was when the iterations run out.
    Status Run(double* residual) {
        double best = Residual();
        for (Count iteration = 0; iteration < kRefinements; ++iteration) {
            Linearise();
            const Status solved = PolyLeastSquaresQr<T>(matrix_, rows_, columns_, difference_, step_);
            if (solved == status::kSingularMatrix || solved == status::kNonFiniteInput) {
                *residual = best;
                return status::kSuccess;
            }
            if (solved != status::kSuccess) return solved;
            Unknowns([&](T& unknown, Count j) {
                kept_[j] = unknown;
                unknown = element::Sum(unknown, step_[j]);
            });
            const double now = Residual();
            if (!(now < best)) {
                Unknowns([&](T& unknown, Count j) { unknown = kept_[j]; });
                *residual = best;
                return status::kSuccess;
            }
            best = now;
        }
        return status::kSuccess;
    }

private:
    // Equations 0 .. m - 1 are the coefficients of f behind the leading one, then come the m - 1 of h.
    T Coefficient(Count i) const { return i < d_.m ? d_.f[i + 1] : d_.h[i + 1 - d_.m]; }

    // The unknowns in the order of the columns: u, v, q behind their leading ones.
    template <class Visit>
    void Unknowns(const Visit& visit) const {
        Count j = 0;
        for (Count i = 1; i <= d_.k; ++i) visit(d_.u[i], j++);
        for (Count i = 1; i <= d_.k - 1; ++i) visit(d_.v[i], j++);
        for (Count i = 1; i <= d_.m - d_.k; ++i) visit(d_.q[i], j++);
    }

    // Sets the weighted differences of the equations; the largest magnitude.
    double Residual() {
        double largest = 0;
        const auto compare = [&](const T* cofactor, Count degree, Count first, Count equations) {
            MultiplyPolynomials(d_.q, d_.m - d_.k, cofactor, degree, product_);
            for (Count i = 0; i < equations; ++i) {
                const T difference = element::Difference(Coefficient(first + i), product_[i + 1]);
                difference_[first + i] = element::Scaled(difference, weight_[first + i]);
                const double size = element::Magnitude(difference_[first + i]);
                if (!(size <= largest)) largest = size;
            }
        };
        compare(d_.u, d_.k, 0, d_.m);
        compare(d_.v, d_.k - 1, d_.m, d_.m - 1);
        return largest;
    }

    void Linearise() {
        const Count degreeQ = d_.m - d_.k;
        std::fill_n(matrix_.get(), Elements(rows_, columns_), T{});
        // d(q·u) = q·du + u·dq; the unknowns start one power below the leading one, and so do the equations.
        PlaceProducts<T>(d_.q, degreeQ, d_.k, matrix_, columns_, 0, 0);
        PlaceProducts<T>(d_.u, d_.k, degreeQ, matrix_, columns_, 0, 2 * d_.k - 1);
        PlaceProducts<T>(d_.q, degreeQ, d_.k - 1, matrix_, columns_, d_.m, d_.k);
        PlaceProducts<T>(d_.v, d_.k - 1, degreeQ, matrix_, columns_, d_.m, 2 * d_.k - 1);
        for (Count i = 0; i < rows_; ++i)
            for (Count j = 0; j < columns_; ++j) {
                T& entry = matrix_[static_cast<Size>(i) * columns_ + j];
                entry = element::Scaled(entry, weight_[i]);
            }
    }

    Division<T> d_;
    Count rows_;
    Count columns_;
    Block<T> matrix_;
    Block<T> work_;
    Block<double> weight_;
    T* difference_ = nullptr;
    T* product_ = nullptr;
    T* step_ = nullptr;
    T* kept_ = nullptr;
};

// f·v = h·u has a solution exactly when f and h have a common divisor of degree m - k: the matrix of the products with
// h (k + 1 columns) and with f (k columns), m + k rows, is singular then, and its null vector holds u and -v.
template <class T>
class SylvesterTrial {
public:
    explicit SylvesterTrial(Count g)
        : matrix_(Elements(2 * g, 2 * g + 1)),
          left_(Elements(2 * g, 2 * g)),
          right_(Elements(2 * g + 1, 2 * g + 1)),
          singular_(2 * static_cast<std::size_t>(g)),
          right_hand_(static_cast<std::size_t>(g) + 1) {}

    explicit operator bool() const { return matrix_ && left_ && right_ && singular_ && right_hand_; }

    Status SmallestSingularValue(const T* f, const T* h, Count m, Count k, double* sigma) {
        Build(f, h, m, k);
        const Count rows = m + k, columns = 2 * k + 1;
        if (Status failed = MatSingularValues<T>(matrix_, rows, columns, singular_)) return failed;
        *sigma = singular_[std::min(rows, columns) - 1];
        return status::kSuccess;
    }

    // The cofactors from the null vector, and the divisor as the quotient of f by u in the sense of least squares.
    Status Candidate(const Division<T>& d) {
        const Count rows = d.m + d.k, columns = 2 * d.k + 1;
        // As many rows as a basis of all columns needs are missing for k = m: there the null vector is beyond the
        // economy form.
        const bool wide = rows < columns;
        Build(d.f, d.h, d.m, d.k);
        if (Status failed = MatSvdMode<T>(matrix_, rows, columns, wide ? 0 : 1, left_, singular_, right_))
            return failed;
        const auto null_entry = [&](Count i) { return right_[static_cast<Size>(i) * columns + columns - 1]; };
        for (Count i = 0; i <= d.k; ++i) d.u[i] = null_entry(i);
        for (Count i = 0; i < d.k; ++i) d.v[i] = null_entry(d.k + 1 + i);
        MakeMonic(d.u, d.k + 1);
        MakeMonic(d.v, d.k);
        return Divide(d);
    }

private:
    void Build(const T* f, const T* h, Count m, Count k) {
        const Count columns = 2 * k + 1;
        std::fill_n(matrix_.get(), Elements(m + k, columns), T{});
        PlaceProducts<T>(h, m - 1, k + 1, matrix_, columns, 0, 0);
        PlaceProducts<T>(f, m, k, matrix_, columns, 0, k + 1);
    }

    // q with its leading 1 fixed: u·(q - x^(m-k)) = f - x^(m-k)·u behind the leading coefficients.
    Status Divide(const Division<T>& d) {
        const Count columns = d.m - d.k;
        d.q[0] = element::One<T>();
        if (columns == 0) return status::kSuccess;
        std::fill_n(matrix_.get(), Elements(d.m, columns), T{});
        PlaceProducts<T>(d.u, d.k, columns, matrix_, columns, 0, 0);
        for (Count i = 1; i <= d.m; ++i) right_hand_[i - 1] = i <= d.k ? element::Difference(d.f[i], d.u[i]) : d.f[i];
        return PolyLeastSquaresQr<T>(matrix_, d.m, columns, right_hand_, d.q + 1);
    }

    Block<T> matrix_;
    Block<T> left_;
    Block<T> right_;
    Block<double> singular_;
    Block<T> right_hand_;
};

// The first of the roots nearest z.
Count Nearest(const ComplexRecord* roots, Count count, ComplexRecord z) {
    Count nearest = 0;
    double smallest = std::numeric_limits<double>::infinity();
    for (Count i = 0; i < count; ++i) {
        const double distance = CxSquaredMagnitude(CxSubtract(roots[i], z));
        if (distance < smallest) smallest = distance, nearest = i;
    }
    return nearest;
}

// Conjugate roots stand side by side and must have one multiplicity.
bool PairsAgree(const double*, const ComplexRecord* roots, const Count* multiplicities, Count count) {
    for (Count i = 0; i < count; ++i) {
        if (roots[i].im == 0) continue;
        if (i + 1 == count || multiplicities[i] != multiplicities[i + 1]) return false;
        ++i;
    }
    return true;
}
bool PairsAgree(const ComplexRecord*, const ComplexRecord*, const Count*, Count) { return true; }

template <class T>
class Structure {
public:
    Structure(const T* p, Count g, double tolerance, ComplexRecord* roots, Count* multiplicities)
        : p_(p),
          g_(g),
          theta_(tolerance),
          rho_(100 * tolerance),
          roots_(roots),
          multiplicities_(multiplicities),
          trial_(g),
          polynomials_(5 * (static_cast<std::size_t>(g) + 1)),
          level_roots_(static_cast<std::size_t>(g)) {
        T* next = polynomials_;
        for (T** polynomial : {&f_, &h_, &u_, &v_, &q_})
            *polynomial = polynomials_ ? std::exchange(next, next + g + 1) : nullptr;
    }

    explicit operator bool() const { return trial_ && polynomials_ && level_roots_; }

    Status Run(Count* count) {
        std::copy_n(p_, g_ + 1, f_);
        Count m = g_;
        *count = 0;
        for (;;) {
            Count k = 0;
            if (Status failed = Level(m, &k)) return failed;
            const T* distinct = k == g_ ? p_ : u_;
            if (Status failed = PolyCompanionRoots(distinct, k, level_roots_.get())) return failed;
            if (m == g_) {
                std::copy_n(level_roots_.get(), k, roots_);
                std::fill_n(multiplicities_, k, k == 1 ? g_ : 1);
                *count = k;
                if (k == 1) break;
            } else {
                for (Count i = 0; i < k; ++i) {
                    const Count nearest = Nearest(roots_, *count, level_roots_[i]);
                    multiplicities_[nearest] += k == 1 ? m : 1;
                }
            }
            if (k < 2 || m - k < 1) break;
            std::copy_n(q_, m - k + 1, f_);
            m -= k;
        }
        if (PairsAgree(p_, roots_, multiplicities_, *count)) return status::kSuccess;
        std::fill_n(multiplicities_, g_, 1);
        *count = g_;
        return PolyCompanionRoots(p_, g_, roots_);
    }

private:
    // The number k of distinct roots of f, of degree m; u has them, and q is the rest of f. For k = g no trial is made.
    Status Level(Count m, Count* k) {
        MakeMonic(f_, m + 1);
        double largest = 0;
        for (Count i = 0; i <= m; ++i) largest = std::fmax(largest, element::Magnitude(f_[i]));
        if (m == 1) {
            std::copy_n(f_, 2, u_);
            *k = 1;
            return status::kSuccess;
        }
        for (Count i = 0; i < m; ++i) h_[i] = element::Scaled(f_[i], m - i);
        MakeMonic(h_, m);
        for (*k = 1; *k <= m; ++*k) {
            if (*k == g_) return status::kSuccess;
            double sigma = 0;
            if (Status failed = trial_.SmallestSingularValue(f_, h_, m, *k, &sigma)) return failed;
            const double before = std::exchange(sigma_before_, sigma);
            if (sigma >= largest * rho_ && *k != m && sigma >= kSingularDrop * before) continue;
            bool accepted = false;
            if (Status failed = Try(m, *k, largest, sigma, &accepted)) return failed;
            if (accepted) return status::kSuccess;
        }
        *k = m;
        return status::kSuccess;
    }

    Status Try(Count m, Count k, double largest, double sigma, bool* accepted) {
        const Division<T> division{f_, h_, m, k, u_, v_, q_};
        if (Status failed = trial_.Candidate(division)) return Unsolved(failed, m, k);
        Refinement<T> refinement(division);
        if (!refinement) return status::kOutOfMemory;
        if (Status failed = refinement.Run(&residual_)) return failed;
        if (!(residual_ < theta_) && k != m) return status::kSuccess;
        theta_ = std::fmax(theta_, 100 * residual_);
        rho_ = std::fmax(rho_, 100 * sigma / largest);
        *accepted = true;
        return status::kSuccess;
    }

    // A candidate that has no divisor is none; the last one of a level must be.
    static Status Unsolved(Status failed, Count m, Count k) {
        const bool none = failed == status::kSingularMatrix || failed == status::kNonFiniteInput;
        return none && k != m ? status::kSuccess : failed;
    }

    const T* p_;
    Count g_;
    double theta_;
    double rho_;
    double sigma_before_ = 0;  // carries over from one level to the next
    double residual_ = std::numeric_limits<double>::infinity();
    ComplexRecord* roots_;
    Count* multiplicities_;
    SylvesterTrial<T> trial_;
    Block<T> polynomials_;
    Block<ComplexRecord> level_roots_;
    T* f_;
    T* h_;
    T* u_;
    T* v_;
    T* q_;
};

}  // namespace

template <class T>
Status PolyRootsStructure(const T* p, Count g, double tolerance, ComplexRecord* roots, Count* multiplicities,
                          Count* count) noexcept {
    Structure<T> structure(p, g, tolerance, roots, multiplicities);
    if (!structure) return status::kOutOfMemory;
    return structure.Run(count);
}

template Status PolyRootsStructure(const double*, Count, double, ComplexRecord*, Count*, Count*) noexcept;
template Status PolyRootsStructure(const ComplexRecord*, Count, double, ComplexRecord*, Count*, Count*) noexcept;

}  // namespace quorvan
