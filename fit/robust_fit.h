// Robust fits of a linear design by reweighted least squares: by least absolute residuals, and by Tukey's bisquare.
// Arguments as in fit/general_fit.h. Curve and covariance may be null.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Chooses the best of the last two fits and the first. A tolerance at or below 0 means 0.0001.
Status FitLeastAbsoluteCore(const double* design, Count m, Count n, const double* y, const double* weights,
                            double* coefficients, double* fitted, double* meanAbsoluteError, double* covariance,
                            std::uint32_t selector, Count limit, double tolerance, double smallestError) noexcept;

// *limit: in the limit, out the iterations made. The mean squared error is that of the last fit under its own weights.
// -20037 for m below n, -20068 for input that is not finite, -20116 where the error is not, or where m - n samples and
// more have lost their weight. keepWeights copies the last weights over the given ones.
Status FitBisquareCore(const double* design, Count m, Count n, const double* y, double* weights, double* coefficients,
                       double* fitted, double* meanSquaredError, double* covariance, std::uint32_t selector,
                       Count* limit, double tolerance, bool keepWeights) noexcept;

}  // namespace quorvan
