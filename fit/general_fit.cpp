#include "fit/general_fit.h"

#include <algorithm>
#include <cmath>

#include "fit/fit_errors.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/matrix_kind.h"
#include "linalg/products.h"
#include "linalg/solve.h"
#include "linalg/tall_qr.h"

namespace quorvan {
namespace {

using provider::Transposition;

constexpr double kDefaultTolerance = -1;

std::size_t RowStart(Count i, Count n) { return static_cast<std::size_t>(i) * static_cast<std::size_t>(n); }

Status Check(Count m, Count n, std::uint32_t selector) {
    if (n < 1) return status::kOrderNotPositive;
    if (m < n) return status::kPointsNotAboveOrder;
    if (selector > kFitTruncatedSingularValues) return status::kInvalidSelection;
    if (!ElementsFit(m, n)) return status::kOverflow;
    return status::kSuccess;
}

// A design and its observations, both scaled by the square roots of the weights where there are some.
struct Observations {
    const double* design;
    const double* y;
    Count m, n;
};

// out = A'·y.
void TransposedTimes(const double* a, Count m, Count n, const double* y, double* out) {
    provider::cblas_dgemv(provider::Order::kRowMajor, Transposition::kTransposed, m, n, 1.0, a, n, y, 1, 0.0, out, 1);
}

// c = sum of u(j)/s(j)·v(j) with X = U·S·V', u = U'y; the covariance is V·S⁻²·V'. Of m observations; a reduced system
// has fewer rows.
Status BySingularValues(const Observations& data, Count m, bool truncated, double* coefficients, double* covariance) {
    const Count n = data.n;
    const auto cols = static_cast<std::size_t>(n);
    Block<double> u(Elements(data.m, n)), v(Elements(n, n)), rows(2 * cols);
    if (!u || !v || !rows) return status::kOutOfMemory;
    double *s = rows, *projected = s + cols;
    if (Status failed = MatSvd<double>(data.design, data.m, n, u, s, v)) return failed;

    const double threshold = truncated ? m * s[0] * kEpsilon : 0;
    TransposedTimes(u, data.m, n, data.y, projected);
    std::fill_n(coefficients, n, 0.0);
    for (Count j = 0; j < n; ++j) {
        if (!(s[j] > threshold)) continue;
        const double factor = projected[j] / s[j];
        for (Count i = 0; i < n; ++i) coefficients[i] += factor * v[RowStart(i, n) + j];
    }
    if (!covariance) return status::kSuccess;
    for (Count i = 0; i < n; ++i)
        for (Count j = 0; j < n; ++j) v[RowStart(i, n) + j] *= s[j] > threshold ? 1 / s[j] : 0;
    Gemm(Transposition::kNone, Transposition::kTransposed, n, n, n, v, n, v, n, covariance, n);
    return status::kSuccess;
}

// R·c = Q'y; the covariance is (R'R)⁺.
Status ByTriangle(const double* r, double* projected, Count n, double* coefficients, double* covariance) {
    if (Status failed = MatSolveUpperTriangular(r, projected, n, coefficients)) return failed;
    if (!covariance) return status::kSuccess;
    Gemm(Transposition::kTransposed, Transposition::kNone, n, n, n, r, n, r, n, covariance, n);
    return MatPseudoInverse<double>(covariance, n, n, kDefaultTolerance, nullptr);
}

Status ByQr(const Observations& data, double* coefficients, double* covariance) {
    const Count m = data.m, n = data.n;
    Block<double> q(Elements(m, n)), r(Elements(n, n)), projected(static_cast<std::size_t>(n));
    if (!q || !r || !projected) return status::kOutOfMemory;
    // With both factors given the design is only read.
    if (Status failed = MatQr<double>(const_cast<double*>(data.design), m, n, true, q, r)) return failed;
    TransposedTimes(q, m, n, data.y, projected);
    return ByTriangle(r, projected, n, coefficients, covariance);
}

constexpr bool UsesSingularValues(std::uint32_t selector) {
    return selector == kFitSingularValues || selector == kFitTruncatedSingularValues;
}

// Of a narrow design only R and Q'y are needed: the singular values of R and its V are those of the design. *reduced
// tells whether the numbers allowed it.
Status ByReduction(const Observations& data, const double* weights, std::uint32_t selector, double* coefficients,
                   double* covariance, bool* reduced) {
    const Count n = data.n;
    const std::size_t square = Elements(n, n), cols = static_cast<std::size_t>(n), work = TallQrWork(n);
    Block<double> block(work + 2 * square + 2 * cols);
    if (!block) return status::kOutOfMemory;
    double *both = block + work, *r = both + square + cols, *projected = r + square;
    *reduced = kTallQr().reduce(data.design, data.y, weights, data.m, n, both, block);
    if (!*reduced) return status::kSuccess;
    for (Count j = 0; j < n; ++j) {
        std::copy_n(both + RowStart(j, n + 1), n, r + RowStart(j, n));
        projected[j] = both[RowStart(j, n + 1) + n];
    }
    if (UsesSingularValues(selector))
        return BySingularValues({r, projected, n, n}, data.m, selector == kFitTruncatedSingularValues, coefficients,
                                covariance);
    return ByTriangle(r, projected, n, coefficients, covariance);
}

// N·c = b with N = X'WX, b = X'Wy; the covariance is N⁺, taken before the system is solved.
Status ByNormalEquations(const Observations& data, const double* weights, bool definite, double* coefficients,
                         double* covariance) {
    const Count m = data.m, n = data.n;
    Block<double> normal(Elements(n, n)), right(static_cast<std::size_t>(n));
    if (!normal || !right) return status::kOutOfMemory;
    std::fill_n(normal.get(), Elements(n, n), 0.0);
    std::fill_n(right.get(), n, 0.0);
    const double* row = data.design;
    for (Count i = 0; i < m; ++i, row += n)
        for (Count j = 0; j < n; ++j) {
            const double scaled = weights ? std::fabs(weights[i]) * row[j] : row[j];
            double* to = normal + RowStart(j, n);
            for (Count k = j; k < n; ++k) to[k] += scaled * row[k];
            right[j] += scaled * data.y[i];
        }
    for (Count j = 0; j < n; ++j)
        for (Count k = 0; k < j; ++k) normal[RowStart(j, n) + k] = normal[RowStart(k, n) + j];
    if (covariance)
        if (Status failed = MatPseudoInverse<double>(normal, n, n, kDefaultTolerance, covariance)) return failed;
    if (definite) return MatSolveKind<double>(normal, n, n, right, kPositiveDefinite, coefficients);
    return MatSolve(normal, right, n, coefficients);
}

Status Solve(const Observations& data, const double* weights, double* coefficients, double* covariance,
             std::uint32_t selector) {
    if (selector == kFitNormalLu || selector == kFitNormalCholesky)
        return ByNormalEquations(data, weights, selector == kFitNormalCholesky, coefficients, covariance);

    if (data.n <= kTallQrColumns) {
        bool reduced = false;
        const Status status = ByReduction(data, weights, selector, coefficients, covariance, &reduced);
        if (status != status::kSuccess || reduced) return status;
    }
    Observations scaled = data;
    Block<double> work;
    if (weights) {
        const std::size_t elements = Elements(data.m, data.n);
        work = Block<double>(elements + static_cast<std::size_t>(data.m));
        if (!work) return status::kOutOfMemory;
        double *to = work, *y = to + elements;
        scaled = {work, y, data.m, data.n};
        const double* row = data.design;
        for (Count i = 0; i < data.m; ++i, row += data.n, to += data.n) {
            const double root = std::sqrt(std::fabs(weights[i]));
            for (Count j = 0; j < data.n; ++j) to[j] = row[j] * root;
            y[i] = data.y[i] * root;
        }
    }
    if (UsesSingularValues(selector))
        return BySingularValues(scaled, scaled.m, selector == kFitTruncatedSingularValues, coefficients, covariance);
    return ByQr(scaled, coefficients, covariance);
}

}  // namespace

Status FitGeneralCore(const double* design, Count m, Count n, const double* y, const double* weights,
                      double* coefficients, double* fitted, double* meanSquaredError, double* covariance,
                      std::uint32_t selector) noexcept {
    if (Status failed = Check(m, n, selector)) return failed;
    if (Status failed = Solve({design, y, m, n}, weights, coefficients, covariance, selector)) return failed;
    // One of the two alone is not produced: deliberate.
    if (!fitted || !meanSquaredError) return status::kSuccess;
    if (Status failed = MatVectorMultiply(design, coefficients, m, n, fitted)) return failed;
    return FitMeanSquaredError(y, fitted, weights, m, meanSquaredError);
}

Status FitGeneralLinear(const double* design, Count m, Count n, const double* y, double* coefficients,
                        std::uint32_t selector) noexcept {
    return FitGeneralCore(design, m, n, y, nullptr, coefficients, nullptr, nullptr, nullptr, selector);
}

Status FitGeneralLinearEx(const double* design, Count m, Count n, const double* y, const double* deviations,
                          std::uint32_t selector, double* fitted, double* coefficients, double* covariance,
                          double* meanSquaredError) noexcept {
    if (Status failed = Check(m, n, selector)) return failed;
    Block<double> weights;
    if (deviations) {
        weights = Block<double>(static_cast<std::size_t>(m));
        if (!weights) return status::kOutOfMemory;
        for (Count i = 0; i < m; ++i) weights[i] = deviations[i] == 0 ? 1.0 : 1 / (deviations[i] * deviations[i]);
    }
    return FitGeneralCore(design, m, n, y, weights, coefficients, fitted, meanSquaredError, covariance, selector);
}

}  // namespace quorvan
