// The robust methods for a fixed model, as templates over it.
#pragma once

#include <algorithm>
#include <cmath>

#include "fit/fit_errors.h"
#include "fit/model_engines.h"
#include "fit/model_rows.h"
#include "fit/robust_weights.h"
#include "frame/memory.h"
#include "linalg/solve.h"

namespace quorvan {

template <class Model>
void EvaluateModel(const Model& model, const double* x, Count n, const double* c, double* fitted) noexcept {
    for (Count i = 0; i < n; ++i) fitted[i] = model.Value(x[i], c);
}

// Least absolute residuals. The outputs' residue is the mean absolute error.
template <class Model>
Status FitModelAbsolute(const Model& model, const ModelSamples& samples, double tolerance, const double* guess,
                        const ModelOutputs& out) noexcept {
    constexpr Count kLimit = 50, kCount = Model::kCount;
    constexpr double kSmallestError = 1e-12;
    const auto [x, y, given, n] = samples;
    const double relative = ToleranceOrDefault(tolerance);
    const auto room = static_cast<std::size_t>(n);
    Block<double> block(2 * room);
    if (!block) return status::kOutOfMemory;
    double *residuals = block, *weights = residuals + room;
    double* c = out.coefficients;

    if (Status failed = FitModelCore(model, samples, {tolerance, Model::kLimits.absoluteFirst, guess}, out))
        return failed;
    double first_error = 0, first[kCount], before[kCount];
    FitMeanAbsoluteError(out.fitted, y, given, n, &first_error);
    std::copy_n(c, kCount, first);
    std::copy_n(c, kCount, before);
    double previous = 2 * first_error, current = first_error;
    for (Count count = 0; std::fabs(previous - current) > previous * relative && current > kSmallestError &&
                          previous > current && count < kLimit;
         ++count) {
        previous = current;
        std::copy_n(c, kCount, before);
        if (Status failed = LeastAbsoluteWeights(y, out.fitted, given, n, residuals, weights)) return failed;
        const ModelControl control{tolerance, Model::kLimits.absoluteRefit, before};
        if (Status failed = FitModelCore(model, {x, y, weights, n}, control, out)) return failed;
        FitMeanAbsoluteError(out.fitted, y, given, n, &current);
    }
    *out.residue = ChooseModelFit(kCount, {current, c}, {previous, before}, {first_error, first}, c);
    EvaluateModel(model, x, n, c, out.fitted);
    return status::kSuccess;
}

// The factors that the leverages at the coefficients give the residuals. The weight is in the leverage here.
template <class Model>
Status ModelLeverageFactors(const Model& model, const ModelSamples& samples, const double* c, double* rows,
                            double* factors) noexcept {
    constexpr Count k = Model::kCount;
    double inverse[k * k] = {};
    const auto weight = [&](Count i) { return samples.weights ? std::fabs(samples.weights[i]) : 1.0; };
    double* row = rows;
    for (Count i = 0; i < samples.n; ++i, row += k) {
        model.Row(samples.x[i], c, row);
        AddInformation<k>(row, weight(i), inverse);
    }
    if (Status failed = MatPseudoInverse<double>(inverse, k, k, -1, nullptr)) return failed;
    row = rows;
    for (Count i = 0; i < samples.n; ++i, row += k)
        factors[i] = LeverageFactor(weight(i) * RowVariance<k>(row, inverse), samples.weights, i);
    return status::kSuccess;
}

// Bisquare. The outputs' residue is the mean squared error under the given weights.
template <class Model>
Status FitModelBisquare(const Model& model, const ModelSamples& samples, double tolerance, const double* guess,
                        const ModelOutputs& out) noexcept {
    constexpr Count kLimit = 50, kCount = Model::kCount;
    const auto [x, y, given, n] = samples;
    tolerance = ToleranceOrDefault(tolerance);
    const auto room = static_cast<std::size_t>(n);
    Block<double> block((kCount + 4) * room);
    if (!block) return status::kOutOfMemory;
    double *rows = block, *factors = rows + kCount * room, *work = factors + room, *weights = work + 2 * room;
    double* c = out.coefficients;

    if (Status failed = FitModelCore(model, samples, {-1, Model::kLimits.bisquareFirst, guess}, out)) return failed;
    double previous[kCount];
    for (Count j = 0; j < kCount; ++j) previous[j] = c[j] + 100000.0;
    // One coefficient that has converged is enough: deliberate.
    const auto converged = [&] {
        for (Count j = 0; j < kCount; ++j)
            if (!(std::fabs(previous[j] - c[j]) > std::fabs(previous[j]) * tolerance)) return true;
        return false;
    };
    for (Count count = 0; count == 0 || (count < kLimit && !converged()); ++count) {
        std::copy_n(c, kCount, previous);
        if (Status failed = ModelLeverageFactors(model, samples, c, rows, factors)) return failed;
        const BisquareOutcome outcome = BisquareWeights(y, out.fitted, factors, n, work, weights);
        if (outcome.status) return outcome.status;
        // Too few samples keep a weight: a clean end.
        if (outcome.exact || n - outcome.zeros < Model::kLeastInliers) break;
        if (given)
            for (Count i = 0; i < n; ++i) weights[i] *= std::fabs(given[i]);
        const ModelControl control{Model::kRefitTolerance, Model::kLimits.bisquareRefit};
        if (Status failed = FitModelCore(model, {x, y, weights, n}, control, out)) return failed;
    }
    EvaluateModel(model, x, n, c, out.fitted);
    return FitMeanSquaredError(y, out.fitted, given, n, out.residue);
}

}  // namespace quorvan
