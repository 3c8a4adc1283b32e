// What the robust fits share: how residuals become the weights of the next least-squares fit. Given weights count by
// magnitude, null: all 1.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The state of an iteration by least absolute residuals: w(i) = |u(i) / max(t, |y(i) - f(i)|)| with t a hundredth of
// the median residual, 1e-7 where that is 0 (E. J. Schlossmacher, J. Amer. Statist. Assoc. 68, 1973). `residuals` is
// room for n. -20104 for a residual of NaN.
Status LeastAbsoluteWeights(const double* y, const double* fitted, const double* given, Count n, double* residuals,
                            double* weights) noexcept;

// The factor sqrt(|w| / (1 - h)) that a leverage h gives a residual, 1 - h being held above 1e-4.
double LeverageFactor(double leverage, const double* given, Count i) noexcept;

// Tukey's bisquare weights (1 - u²)², u = r·0.6745 / (4.685 s), of the residuals r = (y - f)·factor, s being the median
// of their distances from their median; 0 for |u| of 1 and above (A. E. Beaton and J. W. Tukey, Technometrics 16,
// 1974). Given weights are not multiplied in. `work` is room for 2n.
struct BisquareOutcome {
    Status status;  // -20104 for a residual of NaN, -20001
    bool exact;     // all residuals are 0: no weights
    Count zeros;    // the number of weights that are 0
};
BisquareOutcome BisquareWeights(const double* y, const double* fitted, const double* factors, Count n, double* work,
                                double* weights) noexcept;

}  // namespace quorvan
