// Fits of five fixed models by least squares, least absolute residuals or bisquare.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum FitMethod : std::uint32_t { kFitLeastSquares, kFitLeastAbsolute, kFitBisquare };

// Where results go. Without a curve a residue that is wanted puts the curve over y. Nothing is written on an error.
struct FitTargets {
    double* fitted;           // may be null
    double* coefficients[3];  // as many as the model has
    double* residue;          // mean squared error, of least absolute residuals the mean absolute one; may be null
};

struct FitInput {
    const double* x;
    double* y;
    const double* weights;  // by magnitude; null: all 1
    Count n;
};

// Checks of all: -20061 for another method, -20006 (-20007 for the Gaussian) for n too small, -20068 for a weight of
// NaN, -20141 for too few weights that are not 0, none excepted. Then those of fit/model_engines.h.
Status FitLine(const FitInput& input, const FitTargets& out) noexcept;  // unweighted
Status FitLineRobust(const FitInput& input, std::uint32_t method, double tolerance, const FitTargets& out) noexcept;
Status FitExponential(const FitInput& input, const FitTargets& out) noexcept;  // unweighted, without iteration
Status FitExponentialRobust(const FitInput& input, std::uint32_t method, double tolerance,
                            const FitTargets& out) noexcept;
Status FitPower(const FitInput& input, std::uint32_t method, double tolerance, const FitTargets& out) noexcept;
Status FitLogarithm(const FitInput& input, double base, std::uint32_t method, double tolerance,
                    const FitTargets& out) noexcept;
// The guess of three coefficients may be null.
Status FitGaussian(const FitInput& input, std::uint32_t method, double tolerance, const double* guess,
                   const FitTargets& out) noexcept;

}  // namespace quorvan
