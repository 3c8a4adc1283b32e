#include "fit/model_fits.h"

#include <algorithm>

#include "fit/median_line.h"
#include "fit/model_engines.h"
#include "fit/robust_models.h"
#include "frame/memory.h"

namespace quorvan {
namespace {

template <class Model>
Status Absolute(const Model& model, const ModelSamples& samples, double tolerance, const double* guess,
                const ModelOutputs& out) {
    return FitModelAbsolute(model, samples, tolerance, guess, out);
}
Status Absolute(const LineModel&, const ModelSamples& samples, double tolerance, const double*,
                const ModelOutputs& out) {
    return FitMedianLine(samples, tolerance, out);
}

// Whether the robust methods have an exact answer for so few samples.
template <class Model>
bool SolvedExactly(const Model&, const ModelSamples&, const ModelOutputs&) {
    return false;
}
bool SolvedExactly(const LineModel& model, const ModelSamples& samples, const ModelOutputs& out) {
    if (samples.n != 2) return false;
    const auto [x, y, weights, n] = samples;
    out.coefficients[0] = (y[0] - y[1]) / (x[0] - x[1]);
    out.coefficients[1] = (x[0] * y[1] - x[1] * y[0]) / (x[0] - x[1]);
    EvaluateModel(model, x, n, out.coefficients, out.fitted);
    *out.residue = 0;
    return true;
}

template <class Model>
Status Dispatch(const Model& model, ModelSamples samples, std::uint32_t method, double tolerance, const double* guess,
                const ModelOutputs& out) {
    if (method != kFitLeastSquares && SolvedExactly(model, samples, out)) return status::kSuccess;
    if (Status failed = CheckModelWeights(&samples.weights, samples.n, Model::kLeastSamples)) return failed;
    switch (method) {
        case kFitLeastAbsolute: return Absolute(model, samples, tolerance, guess, out);
        case kFitBisquare: return FitModelBisquare(model, samples, tolerance, guess, out);
        default: return FitModelCore(model, samples, {tolerance, Model::kLimits.leastSquares, guess}, out);
    }
}

// Runs the fit on arrays of its own and writes what it found.
template <class Fit>
Status Written(const FitInput& input, Count count, const FitTargets& out, const Fit& fit) {
    Block<double> curve(static_cast<std::size_t>(input.n));
    if (!curve) return status::kOutOfMemory;
    double coefficients[3], residue = 0;
    const ModelOutputs own{curve, coefficients, &residue};
    if (Status failed = fit(ModelSamples{input.x, input.y, input.weights, input.n}, own)) return failed;
    for (Count j = 0; j < count; ++j) *out.coefficients[j] = coefficients[j];
    // Without a curve y takes it, deliberately, where polynomial fits use x.
    if (out.fitted || out.residue) std::copy_n(curve.get(), input.n, out.fitted ? out.fitted : input.y);
    if (out.residue) *out.residue = residue;
    return status::kSuccess;
}

template <class Model>
Status FitModel(const Model& model, const FitInput& input, std::uint32_t method, double tolerance, const double* guess,
                const FitTargets& out) {
    if (method > kFitBisquare) return status::kInvalidSelection;
    if (input.n < Model::kLeastSamples) return Model::kTooFew;
    return Written(input, Model::kCount, out, [&](const ModelSamples& samples, const ModelOutputs& own) {
        return Dispatch(model, samples, method, tolerance, guess, own);
    });
}

}  // namespace

Status FitLine(const FitInput& input, const FitTargets& out) noexcept {
    return FitModel(LineModel{}, input, kFitLeastSquares, -1, nullptr, out);
}

Status FitLineRobust(const FitInput& input, std::uint32_t method, double tolerance, const FitTargets& out) noexcept {
    return FitModel(LineModel{}, input, method, tolerance, nullptr, out);
}

Status FitExponential(const FitInput& input, const FitTargets& out) noexcept {
    if (input.n < ExponentialModel::kLeastSamples) return ExponentialModel::kTooFew;
    return Written(input, ExponentialModel::kCount, out, [&](const ModelSamples& samples, const ModelOutputs& own) {
        return FitExponentialCore(samples, false, {-1, 0}, own);
    });
}

Status FitExponentialRobust(const FitInput& input, std::uint32_t method, double tolerance,
                            const FitTargets& out) noexcept {
    return FitModel(ExponentialModel{}, input, method, tolerance, nullptr, out);
}

Status FitPower(const FitInput& input, std::uint32_t method, double tolerance, const FitTargets& out) noexcept {
    return FitModel(PowerModel{}, input, method, tolerance, nullptr, out);
}

Status FitLogarithm(const FitInput& input, double base, std::uint32_t method, double tolerance,
                    const FitTargets& out) noexcept {
    return FitModel(LogarithmModel(base), input, method, tolerance, nullptr, out);
}

Status FitGaussian(const FitInput& input, std::uint32_t method, double tolerance, const double* guess,
                   const FitTargets& out) noexcept {
    return FitModel(GaussianModel{}, input, method, tolerance, guess, out);
}

}  // namespace quorvan
