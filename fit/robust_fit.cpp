#include "fit/robust_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "fit/fit_errors.h"
#include "fit/general_fit.h"
#include "fit/robust_weights.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/products.h"
#include "linalg/solve.h"

namespace quorvan {
namespace {

// h(i) = x(i)·(X'WX)⁺·x(i)', and what it makes of a residual. The weight stays out of h here, deliberately: the fits of
// the fixed models have it in.
Status LeverageFactors(const double* design, Count m, Count n, const double* weights, double* factors) {
    const auto cols = static_cast<std::size_t>(n);
    Block<double> scaled(Elements(m, n)), inverse(Elements(n, n));
    if (!scaled || !inverse) return status::kOutOfMemory;
    for (Count i = 0; i < m; ++i) {
        const double root = weights ? std::sqrt(std::fabs(weights[i])) : 1.0;
        for (std::size_t j = i * cols; j < (i + 1) * cols; ++j) scaled[j] = design[j] * root;
    }
    Gemm(provider::Transposition::kTransposed, provider::Transposition::kNone, n, n, m, scaled, n, scaled, n, inverse,
         n);
    if (Status failed = MatPseudoInverse<double>(inverse, n, n, -1, nullptr)) return failed;
    MatMultiply<double>(design, inverse, m, n, n, scaled);
    for (Count i = 0; i < m; ++i) {
        double leverage = 0;
        for (std::size_t j = i * cols; j < (i + 1) * cols; ++j) leverage += scaled[j] * design[j];
        factors[i] = LeverageFactor(leverage, weights, i);
    }
    return status::kSuccess;
}

}  // namespace

Status FitLeastAbsoluteCore(const double* design, Count m, Count n, const double* y, const double* weights,
                            double* coefficients, double* fitted, double* meanAbsoluteError, double* covariance,
                            std::uint32_t selector, Count limit, double tolerance, double smallestError) noexcept {
    if (m < n) return status::kPointsNotAboveOrder;
    tolerance = ToleranceOrDefault(tolerance);
    const auto room = static_cast<std::size_t>(std::max(m, 0));
    Block<double> block(4 * room);
    if (!block) return status::kOutOfMemory;
    double *residuals = block, *own_curve = residuals + room, *last = own_curve + room, *before_last = last + room;
    if (!fitted) fitted = own_curve;
    double squared = 0;
    const auto fit = [&](const double* with, double* covariance_out, double* error) {
        const Status failed =
            FitGeneralCore(design, m, n, y, with, coefficients, fitted, &squared, covariance_out, selector);
        return failed ? failed : FitMeanAbsoluteError(fitted, y, weights, m, error);
    };

    double first = 0;
    if (Status failed = fit(weights, nullptr, &first)) return failed;
    for (Count i = 0; i < m; ++i) last[i] = weights ? weights[i] : 1.0;
    double previous = 2 * first, current = first;
    const auto stop = [&](Count count) {
        if (count == 0) return false;
        return count >= limit || previous * tolerance >= std::fabs(previous - current) || smallestError >= previous ||
               smallestError >= current;
    };
    for (Count count = 0; !stop(count); ++count) {
        std::swap(last, before_last);
        if (Status failed = LeastAbsoluteWeights(y, fitted, weights, m, residuals, last)) return failed;
        previous = current;
        if (Status failed = fit(last, nullptr, &current)) return failed;
    }

    // Each test overrules the one before, deliberately: a tie goes to the later.
    const double* chosen = last;
    if (previous >= current && first >= current) chosen = last;
    if (current >= previous && first >= previous) chosen = before_last;
    if (previous >= first && current >= first) chosen = weights;
    return fit(chosen, covariance, meanAbsoluteError);
}

Status FitBisquareCore(const double* design, Count m, Count n, const double* y, double* weights, double* coefficients,
                       double* fitted, double* meanSquaredError, double* covariance, std::uint32_t selector,
                       Count* limit, double tolerance, bool keepWeights) noexcept {
    if (m < n) return status::kPointsNotAboveOrder;
    const std::size_t room = Elements(m, 1);
    if (MatScreen(y, room) || MatScreen(design, Elements(m, n)) || (weights && MatScreen(weights, room)))
        return status::kNonFiniteInput;
    tolerance = ToleranceOrDefault(tolerance);
    Block<double> block(5 * room + Elements(n, 1));
    if (!block) return status::kOutOfMemory;
    double *factors = block, *work = factors + room, *robust = work + 2 * room, *own_curve = robust + room,
           *old = own_curve + room;
    if (!fitted) fitted = own_curve;
    const auto fit = [&](const double* with) {
        const Status failed =
            FitGeneralCore(design, m, n, y, with, coefficients, fitted, meanSquaredError, covariance, selector);
        if (failed) return failed;
        return std::isfinite(*meanSquaredError) ? status::kSuccess : status::kNoFeasibleSolution;
    };
    const auto converged = [&] {
        for (Count j = 0; j < n; ++j)
            if (!(std::fabs(coefficients[j] - old[j]) <= std::fabs(coefficients[j]) * tolerance)) return false;
        return true;
    };

    if (Status failed = fit(weights)) return failed;
    if (Status failed = LeverageFactors(design, m, n, weights, factors)) return failed;
    Count count = 0;
    while (*meanSquaredError > tolerance * 0.0001 && (count == 0 || !(count >= *limit || converged()))) {
        const BisquareOutcome outcome = BisquareWeights(y, fitted, factors, m, work, robust);
        if (outcome.status) return outcome.status;
        if (outcome.exact) break;
        if (outcome.zeros >= m - n) return status::kNoFeasibleSolution;
        if (weights)
            for (Count i = 0; i < m; ++i) robust[i] *= std::fabs(weights[i]);
        std::copy_n(coefficients, n, old);
        if (Status failed = fit(robust)) return failed;
        ++count;
    }
    if (keepWeights && weights && count > 0) std::copy_n(robust, m, weights);
    *limit = count;
    return status::kSuccess;
}

}  // namespace quorvan
