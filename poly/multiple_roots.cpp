#include "poly/multiple_roots.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/complex.h"
#include "frame/memory.h"
#include "linalg/lapack.h"
#include "linalg/solve.h"
#include "poly/coefficient_span.h"
#include "poly/polynomial_matrices.h"
#include "poly/root_structure.h"

namespace quorvan {
namespace {

constexpr Count kPasses = 20;
constexpr double kConverged = 1e-6;

// a·x² + b·x + c, with the larger of b ± d for the first root.
void Quadratic(const ComplexRecord* c, ComplexRecord* roots) {
    const ComplexRecord d = CxSqrt(CxSubtract(CxMultiply(c[1], c[1]), CxScale(CxMultiply(c[2], c[0]), 4)));
    const ComplexRecord minus = CxSubtract(c[1], d), plus = CxAdd(c[1], d);
    const ComplexRecord q = CxMagnitude(minus) > CxMagnitude(plus) ? minus : plus;
    roots[0] = CxDivide(CxScale(q, -0.5), c[2]);
    roots[1] = CxDivide(CxScale(c[0], -2), q);
}

// Leja order (F. Leja, 1957; L. Reichel, "Newton interpolation at Leja points", BIT 30, 1990): first the greatest, then
// always the one with the greatest product of distances to those before it. In any other order the product of many
// factors loses digits to intermediate coefficients that are far larger than the last ones.
void OrderRoots(ComplexRecord* roots, Count* multiplicities, Count count, double* products) {
    for (Count i = 0; i < count; ++i) products[i] = CxMagnitude(roots[i]);
    for (Count placed = 0; placed < count; ++placed) {
        const Count next = static_cast<Count>(std::max_element(products + placed, products + count) - products);
        std::swap(roots[placed], roots[next]);
        std::swap(multiplicities[placed], multiplicities[next]);
        std::swap(products[placed], products[next]);
        for (Count i = placed + 1; i < count; ++i) {
            const double distance = CxMagnitude(CxSubtract(roots[i], roots[placed]));
            products[i] = placed == 0 ? distance : products[i] * distance;
        }
    }
}

// Gauss-Newton on the roots with their multiplicities held fixed: on the manifold of polynomials of this structure the
// multiple roots are as well conditioned as simple ones (Z. Zeng, 2005). With G(r) the coefficients of the product of
// (x - r(j))^mult(j), each pass solves the weighted least squares G'(r)·step = p - G(r); the rows are weighted by 1,
// and by 1/|p(i)| where that is below 1.
class Refinement {
public:
    Refinement(const ComplexRecord* p, Count degree, ComplexRecord* roots, const Count* multiplicities, Count count)
        : p_(p),
          degree_(degree),
          roots_(roots),
          multiplicities_(multiplicities),
          count_(count),
          jacobian_(Elements(degree, count)),
          work_(4 * (static_cast<std::size_t>(degree) + 1) + static_cast<std::size_t>(count)) {
        if (!*this) return;
        common_ = work_;
        next_ = common_ + degree + 1;
        product_ = next_ + degree + 1;
        difference_ = product_ + degree + 1;
        step_ = difference_ + degree + 1;
    }

    explicit operator bool() const { return jacobian_ && work_; }

    Status Run() {
        bool converged = false;
        double before = 0;
        for (Count pass = 0; pass < kPasses; ++pass) {
            Linearise();
            const Status solved =
                SolveLeastSquares<ComplexRecord>(jacobian_, degree_, count_, difference_, 1, -1.0, step_);
            if (solved < 0) return solved;
            const double length = Nrm2(count_, step_);
            if (length < kConverged) converged = true;
            if (pass > 0) {
                if (!(length < before)) {
                    if (converged) return status::kSuccess;
                } else if (length * length / (before - length) < kConverged) {
                    converged = true;
                }
            }
            for (Count j = 0; j < count_; ++j) roots_[j] = CxAdd(roots_[j], step_[j]);
            before = length;
        }
        return converged ? status::kSuccess : status::kTooManyIterations;
    }

private:
    // p·(x - r), in place; p has the given degree and room for one more.
    static void TimesFactor(ComplexRecord* p, Count degree, ComplexRecord r) {
        p[degree + 1] = {0, 0};
        for (Count i = degree + 1; i > 0; --i) p[i] = CxSubtract(p[i], CxMultiply(r, p[i - 1]));
    }

    void Linearise() {
        // What all columns share: each factor once less than its multiplicity.
        Count shared = 0;
        common_[0] = {1, 0};
        for (Count j = 0; j < count_; ++j)
            for (Count i = 1; i < multiplicities_[j]; ++i) TimesFactor(common_, shared++, roots_[j]);
        // dG/dr(j) = -mult(j)·common·(the other factors once); its leading coefficient stands one power below G's.
        for (Count j = 0; j < count_; ++j) {
            Count degree = shared;
            std::copy_n(common_, degree + 1, next_);
            for (Count i = 0; i < count_; ++i)
                if (i != j) TimesFactor(next_, degree++, roots_[i]);
            for (Count i = 0; i < degree_; ++i)
                jacobian_[static_cast<Size>(i) * count_ + j] = CxScale(next_[i], -multiplicities_[j] * Weight(i));
            if (j == 0) {
                std::copy_n(next_, degree + 1, product_);
                TimesFactor(product_, degree, roots_[0]);
            }
        }
        for (Count i = 0; i < degree_; ++i) difference_[i] = CxScale(CxSubtract(p_[i + 1], product_[i + 1]), Weight(i));
    }

    double Weight(Count i) const {
        const double size = CxMagnitude(p_[i + 1]);
        return size < 1 ? 1 : 1 / size;
    }

    const ComplexRecord* p_;
    Count degree_;
    ComplexRecord* roots_;
    const Count* multiplicities_;
    Count count_;
    Block<ComplexRecord> jacobian_;
    Block<ComplexRecord> work_;
    ComplexRecord* common_ = nullptr;
    ComplexRecord* next_ = nullptr;
    ComplexRecord* product_ = nullptr;
    ComplexRecord* difference_ = nullptr;
    ComplexRecord* step_ = nullptr;
};

Status HigherRoots(const ComplexRecord* c, Count m, ComplexRecord* roots, Count* multiplicities, Count* count) {
    Block<ComplexRecord> p(static_cast<std::size_t>(m));
    if (!p) return status::kOutOfMemory;
    const double scale = DescendScaled<ComplexRecord>(c, m, p);
    if (Status failed = PolyRootsStructure<ComplexRecord>(p, m - 1, kRootTolerance, roots, multiplicities, count))
        return failed;
    {
        Block<double> products(static_cast<std::size_t>(*count));
        if (!products) return status::kOutOfMemory;
        OrderRoots(roots, multiplicities, *count, products);
        Refinement refinement(p, m - 1, roots, multiplicities, *count);
        if (!refinement) return status::kOutOfMemory;
        if (Status failed = refinement.Run()) return failed;
    }
    for (Count j = 0; j < *count; ++j) roots[j] = CxScale(roots[j], scale);
    return status::kSuccess;
}

}  // namespace

Status PolyRootsMultiple(const ComplexRecord* c, Count n, ComplexRecord* roots) noexcept {
    CoefficientSpan<ComplexRecord> span;
    if (Status failed = FindSpan(c, n, &span)) return failed;
    const std::size_t degree = static_cast<std::size_t>(n) - 1;
    Block<ComplexRecord> distinct(degree);
    Block<Count> multiplicities(degree);
    if (!distinct || !multiplicities) return status::kOutOfMemory;
    Count count = 0;
    if (span.count > 3) {
        if (Status failed = HigherRoots(span.first, span.count, distinct, multiplicities, &count)) return failed;
    } else {
        count = span.count - 1;
        std::fill_n(multiplicities.get(), count, 1);
        if (span.count == 2) distinct[0] = CxNegate(CxDivide(span.first[0], span.first[1]));
        if (span.count == 3) Quadratic(span.first, distinct);
    }
    AddZeroRoot(span.zeros, distinct, multiplicities, &count);
    for (Count i = 0; i < count; ++i) roots = std::fill_n(roots, multiplicities[i], distinct[i]);
    return status::kSuccess;
}

}  // namespace quorvan
