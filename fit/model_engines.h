// Least squares for the five fixed models: the engine of each, on which the robust methods build.
//
// All take the samples and write n values of the curve, the coefficients and the mean squared error; none may be null.
// They look at the weights first: NaN gives -20068, fewer of them that are not 0 than the model has coefficients
// -20141, unless all are 0: then the fit goes without.
#pragma once

#include "fit/fit_errors.h"
#include "fit/models.h"
#include "frame/types.h"

namespace quorvan {

struct ModelSamples {
    const double* x;
    const double* y;
    const double* weights;  // by magnitude; null: all 1
    Count n;
};

struct ModelOutputs {
    double* fitted;
    double* coefficients;
    double* residue;
};

// How an engine that iterates does so.
struct ModelControl {
    double tolerance;               // relative, of the error; at or below 0: 0.0001
    Count limit;                    // of the iterations
    const double* guess = nullptr;  // coefficients to start from; one that is not finite spoils all
    double smallestError = 1e-12;   // ends the iteration
};

// The look at the weights; *weights becomes null when all are 0.
Status CheckModelWeights(const double** weights, Count n, Count least) noexcept;

// 1 when at least as many elements are positive as negative, else -1.
double FitSignOfMajority(const double* y, Count n) noexcept;
// 1 when all elements are positive, -1 when all are negative, else 0.
double FitCommonSign(const double* x, Count n) noexcept;

// In closed form. Equal abscissas give what the division gives.
Status FitLineCore(const ModelSamples& samples, const ModelOutputs& out) noexcept;

// The line through (x, ln y), or (ln x, ln y), with the weights y², of the samples with the sign of the majority;
// -20037 for fewer than two. Then, with `iterate`, Gauss-Newton steps. -20140 for an abscissa of a power at or below 0.
Status FitExponentialCore(const ModelSamples& samples, bool iterate, const ModelControl& control,
                          const ModelOutputs& out) noexcept;
Status FitPowerCore(const ModelSamples& samples, bool iterate, const ModelControl& control,
                    const ModelOutputs& out) noexcept;

// A line in the logarithm of the abscissas, which must have one sign: -20036.
Status FitLogarithmCore(const LogBase& base, const ModelSamples& samples, const ModelOutputs& out) noexcept;

// From the guess or an estimate, steps up the gradient, halved while they do not help. -20068 for an abscissa that is
// not finite, -20026 for a width of 0. The residue is the error of the last trial, a rejected one too: deliberate.
Status FitGaussianCore(const ModelSamples& samples, const ModelControl& control, const ModelOutputs& out) noexcept;

// A fit that an iteration went through.
struct ModelCandidate {
    double error;
    const double* coefficients;
};
// The best of the last fit, the one before and the first: written to c, and its error returned. Each test overrules the
// one before, so that a tie goes to the earlier fit: deliberate.
double ChooseModelFit(Count count, const ModelCandidate& last, const ModelCandidate& before,
                      const ModelCandidate& first, double* c) noexcept;

// One name for all, for the templates of the robust methods.
inline Status FitModelCore(const LineModel&, const ModelSamples& samples, const ModelControl&,
                           const ModelOutputs& out) noexcept {
    return FitLineCore(samples, out);
}
inline Status FitModelCore(const ExponentialModel&, const ModelSamples& samples, const ModelControl& control,
                           const ModelOutputs& out) noexcept {
    return FitExponentialCore(samples, true, control, out);
}
inline Status FitModelCore(const PowerModel&, const ModelSamples& samples, const ModelControl& control,
                           const ModelOutputs& out) noexcept {
    return FitPowerCore(samples, true, control, out);
}
inline Status FitModelCore(const LogarithmModel& model, const ModelSamples& samples, const ModelControl&,
                           const ModelOutputs& out) noexcept {
    return FitLogarithmCore(model.base, samples, out);
}
inline Status FitModelCore(const GaussianModel&, const ModelSamples& samples, const ModelControl& control,
                           const ModelOutputs& out) noexcept {
    return FitGaussianCore(samples, control, out);
}

}  // namespace quorvan
