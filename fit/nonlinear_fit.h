// Levenberg-Marquardt fits of a model that the caller supplies as a function.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The caller's model: the value at x for `count` coefficients. Runs on the caller's thread.
using FitNonlinearModel = ::QvModel;

// Fits the m coefficients, from their values on entry, to n samples. A negative limit sets no limit to the iterations.
// The curve and the mean squared error are written only when both are wanted. -20003 for n or m below 1, -20037 for n
// below m, -20062 at the limit when chi-square still changes (results are written all the same), -20001.
Status FitNonlinear(const double* x, const double* y, double* fitted, Count n, Count limit, FitNonlinearModel model,
                    double* coefficients, Count m, double* meanSquaredError) noexcept;

// The same with weights, which may be null and count by magnitude; samples of weight 0 are left out of the fit, but not
// of the curve. No curve, no mean squared error. -20068 for a weight that is not finite. On an error the curve and the
// mean squared error stay unwritten.
Status FitNonlinearWeighted(const double* x, const double* y, const double* weights, double* fitted, Count n,
                            Count limit, FitNonlinearModel model, double* coefficients, Count m,
                            double* meanSquaredError, Count* iterations) noexcept;

}  // namespace quorvan
