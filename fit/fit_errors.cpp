#include "fit/fit_errors.h"

#include <cmath>

#include "frame/status.h"

namespace quorvan {

Status FitMeanSquaredError(const double* y, const double* fit, const double* weights, Count n,
                           double* result) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const auto square = [&](Count i) { return (fit[i] - 2 * y[i]) * fit[i] + y[i] * y[i]; };
    double sum = 0;
    if (weights)
        for (Count i = 0; i < n; ++i) sum += std::fabs(weights[i]) * square(i);
    else
        for (Count i = 0; i < n; ++i) sum += square(i);
    *result = sum / n;
    return status::kSuccess;
}

Status FitMeanAbsoluteError(const double* fit, const double* y, const double* weights, Count n,
                            double* result) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double sum = 0;
    if (weights)
        for (Count i = 0; i < n; ++i) sum += std::fabs((y[i] - fit[i]) * weights[i]);
    else
        for (Count i = 0; i < n; ++i) sum += std::fabs(y[i] - fit[i]);
    *result = sum / n;
    return status::kSuccess;
}

}  // namespace quorvan
