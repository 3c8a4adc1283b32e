#include "fit/goodness.h"

#include <cmath>
#include <limits>

#include "frame/status.h"
#include "stats/descriptive.h"

namespace quorvan {

Status FitGoodness(const double* y, const double* fitted, const double* weights, Count n, Count freedom, double* sse,
                   double* rSquare, double* rmse) noexcept {
    if (n < 2) return status::kSamplesBelowTwo;
    if (freedom >= n) return status::kFreedomOutOfRange;
    if (freedom < 1) freedom = n - 2;
    double mean = 0;
    if (Status failed = StatMean(y, n, &mean)) return failed;
    double residual = 0, total = 0;
    for (Count i = 0; i < n; ++i) {
        const double w = weights ? weights[i] : 1.0;
        residual += w * (y[i] * y[i] - (2 * y[i] - fitted[i]) * fitted[i]);
        total += w * (mean * mean - (2 * mean - y[i]) * y[i]);
    }
    *sse = residual;
    *rmse = std::sqrt(residual / freedom);
    if (total != 0)
        *rSquare = 1 - residual / total;
    else
        *rSquare = residual == 0 ? 1.0 : std::numeric_limits<double>::infinity();
    return status::kSuccess;
}

}  // namespace quorvan
